#include "widgets/vcdateperiod.h"

#include "value/tree.h"
#include "widgets/periodedit.h"

#include <QGridLayout>
#include <QLabel>

namespace TKE
{

VCDatePeriod::VCDatePeriod(QWidget* parent, const char* name)
    : QWidget(parent)
    , m_startLabel(new QLabel(tr("From:"), this))
    , m_stopLabel(new QLabel(tr("to:"), this))
    , m_startEdit(new PeriodEdit<QDateEdit>(this, QStringLiteral("StartDate")))
    , m_stopEdit(new PeriodEdit<QDateEdit>(this, QStringLiteral("StopDate")))
{
    setObjectName(QString::fromUtf8(name));
    m_startLabel->setObjectName(QStringLiteral("StartLabel"));
    m_startLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_startLabel->setBuddy(m_startEdit);
    m_stopLabel->setObjectName(QStringLiteral("StopLabel"));
    m_stopLabel->setBuddy(m_stopEdit);

    const QDate today = QDate::currentDate();
    for (QDateEdit* edit : {m_startEdit, m_stopEdit})
    {
        edit->setDateRange(QDate(1970, 1, 1), QDate(2999, 12, 31));
        edit->setDate(today);
    }

    auto* grid = new QGridLayout(this);
    grid->addWidget(m_startLabel, 0, 0);
    grid->addWidget(m_startEdit, 0, 1);
    grid->addWidget(m_stopLabel, 1, 0);
    grid->addWidget(m_stopEdit, 1, 1);

    connect(m_startEdit, &QDateEdit::dateChanged, this, &VCDatePeriod::SlotStartDateValueChanged);
    connect(m_stopEdit, &QDateEdit::dateChanged, this, &VCDatePeriod::SlotStopDateValueChanged);
}

bool VCDatePeriod::SetPeriod_ValuePath(const QString& startPath, const QString& stopPath)
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

void VCDatePeriod::Release()
{
    if (m_startValue)
        m_startValue->Detach(this);
    if (m_stopValue)
        m_stopValue->Detach(this);
    m_startValue = nullptr;
    m_stopValue = nullptr;
    m_bound = false;
}

void VCDatePeriod::Lock()
{
    m_locked = true;
    setEnabled(false);
}

void VCDatePeriod::Load(TextValue* value, QDateEdit& edit)
{
    if (!value)
        return;
    if (value->GetValue().isEmpty())
    {
        Write(value, edit.date());
        return;
    }
    const QSignalBlocker quiet(edit);
    edit.setDate(QDate::fromString(value->GetValue(), Qt::ISODate));
}

void VCDatePeriod::Write(TextValue* value, const QDate& date)
{
    // Nobody is excluded: this widget hears of its own write and shows it again.
    if (value)
        value->SetValue(date.toString(Qt::ISODate));
}

void VCDatePeriod::SlotStartDateValueChanged(const QDate& date)
{
    Write(m_startValue, date);
}

void VCDatePeriod::SlotStopDateValueChanged(const QDate& date)
{
    Write(m_stopValue, date);
}

void VCDatePeriod::Update(Observable* source, TChangeCode code)
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

void VCDatePeriod::FollowState(TextValue*& value)
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
