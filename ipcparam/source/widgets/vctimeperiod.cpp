#include "widgets/vctimeperiod.h"

#include "value/tree.h"
#include "widgets/periodedit.h"

#include <QGridLayout>
#include <QLabel>

namespace TKE
{

VCTimePeriod::VCTimePeriod(QWidget* parent, const char* name)
    : QWidget(parent)
    , m_startLabel(new QLabel(tr("Start time:"), this))
    , m_stopLabel(new QLabel(tr("Stop time:"), this))
    , m_startEdit(new PeriodEdit<QTimeEdit>(this, QStringLiteral("StartTime")))
    , m_stopEdit(new PeriodEdit<QTimeEdit>(this, QStringLiteral("StopTime")))
    , m_timeFormat(QStringLiteral("hh:mm"))
{
    setObjectName(QString::fromUtf8(name));
    m_startLabel->setObjectName(QStringLiteral("StartLabel"));
    m_startLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_startLabel->setBuddy(m_startEdit);
    m_stopLabel->setObjectName(QStringLiteral("StopLabel"));
    m_stopLabel->setBuddy(m_stopEdit);

    QTime now = QTime::currentTime();
    now = now.addMSecs(-now.msec());
    now = now.addSecs(-now.second());
    m_startEdit->setDisplayFormat(m_timeFormat);
    m_startEdit->setTime(now);
    m_stopEdit->setDisplayFormat(m_timeFormat);
    m_stopEdit->setTime(now.addSecs(60));

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_startLabel, 0, 0);
    grid->addWidget(m_startEdit, 0, 1);
    grid->addWidget(m_stopLabel, 1, 0);
    grid->addWidget(m_stopEdit, 1, 1);

    connect(m_startEdit, &QTimeEdit::timeChanged, this, &VCTimePeriod::SlotStartTimeValueChanged);
    connect(m_stopEdit, &QTimeEdit::timeChanged, this, &VCTimePeriod::SlotStopTimeValueChanged);
}

bool VCTimePeriod::SetPeriod_ValuePath(const QString& startPath, const QString& stopPath)
{
    Release();
    m_startValue = dynamic_cast<TextValue*>(Tree::Instance()->FindValue(startPath));
    m_stopValue = dynamic_cast<TextValue*>(Tree::Instance()->FindValue(stopPath));
    if (!m_startValue || !m_stopValue)
    {
        Release();
        setEnabled(false);
        return false;
    }
    // Attached before they are loaded, since loading may write and whoever hears of that may remove the other value.
    m_startValue->Attach(this);
    m_stopValue->Attach(this);
    m_bound = true;
    setEnabled(!m_locked && m_startValue->GetState() == stEnabled && m_stopValue->GetState() == stEnabled);
    const QPointer<QWidget> alive(this);
    Load(m_startValue, *m_startEdit);
    if (alive)
        Load(m_stopValue, *m_stopEdit);
    return true;
}

void VCTimePeriod::Release()
{
    if (m_startValue)
        m_startValue->Detach(this);
    if (m_stopValue)
        m_stopValue->Detach(this);
    m_startValue = nullptr;
    m_stopValue = nullptr;
    m_bound = false;
}

void VCTimePeriod::Lock()
{
    m_locked = true;
    setEnabled(false);
}

void VCTimePeriod::Load(TextValue* value, QTimeEdit& edit)
{
    if (!value)
        return;
    if (value->GetValue().isEmpty())
    {
        Write(value, edit.time());
        return;
    }
    const QSignalBlocker quiet(edit);
    edit.setTime(QTime::fromString(value->GetValue(), m_timeFormat));
}

void VCTimePeriod::Write(TextValue* value, const QTime& time)
{
    if (value)
        value->SetValue(time.toString(m_timeFormat), this);
}

void VCTimePeriod::SlotStartTimeValueChanged(const QTime& time)
{
    Write(m_startValue, time);
}

void VCTimePeriod::SlotStopTimeValueChanged(const QTime& time)
{
    Write(m_stopValue, time);
}

void VCTimePeriod::Update(Observable* source, TChangeCode code)
{
    const bool isStart = source && source == m_startValue;
    const bool isStop = source && source == m_stopValue;
    if (code == ccState)
    {
        if (isStart)
            FollowState(m_startValue);
        if (isStop)
            FollowState(m_stopValue);
    }
    else if (code == ccContent && isStart)
        Load(m_startValue, *m_startEdit);
    else if (code == ccContent && isStop)
        Load(m_stopValue, *m_stopEdit);
}

void VCTimePeriod::FollowState(TextValue*& value)
{
    switch (value->GetState())
    {
    case stEnabled:
        setEnabled(!m_locked);
        break;
    case stDisabled:
        setEnabled(false);
        break;
    case stReleased:
        value->Detach(this);
        value = nullptr;
        m_bound = m_startValue || m_stopValue;
        break;
    }
}

} // namespace TKE
