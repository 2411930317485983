#include "widgets/vctimeperiod.h"

#include "widgets/periodedit.h"
#include "widgets/periodwidget.h"

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
    PeriodWidget<VCTimePeriod>::LayOut(*this);

    QTime now = QTime::currentTime();
    now = now.addMSecs(-now.msec());
    now = now.addSecs(-now.second());
    m_startEdit->setDisplayFormat(m_timeFormat);
    m_startEdit->setTime(now);
    m_stopEdit->setDisplayFormat(m_timeFormat);
    m_stopEdit->setTime(now.addSecs(60));

    connect(m_startEdit, &QTimeEdit::timeChanged, this, &VCTimePeriod::SlotStartTimeValueChanged);
    connect(m_stopEdit, &QTimeEdit::timeChanged, this, &VCTimePeriod::SlotStopTimeValueChanged);
}

bool VCTimePeriod::SetPeriod_ValuePath(const QString& startPath, const QString& stopPath)
{
    return PeriodWidget<VCTimePeriod>::Bind(*this, startPath, stopPath);
}

void VCTimePeriod::Lock()
{
    m_locked = true;
    setEnabled(false);
}

std::vector<FieldHolder::Field> VCTimePeriod::GetFields() const
{
    return PeriodWidget<VCTimePeriod>::GetFields(*this);
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
    PeriodWidget<VCTimePeriod>::Update(*this, source, code);
}

} // namespace TKE
