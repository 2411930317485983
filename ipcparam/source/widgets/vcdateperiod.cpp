#include "widgets/vcdateperiod.h"

#include "widgets/periodedit.h"
#include "widgets/periodwidget.h"

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
    PeriodWidget<VCDatePeriod>::LayOut(*this);

    const QDate today = QDate::currentDate();
    for (QDateEdit* edit : {m_startEdit, m_stopEdit})
    {
        edit->setDateRange(QDate(1970, 1, 1), QDate(2999, 12, 31));
        edit->setDate(today);
    }

    connect(m_startEdit, &QDateEdit::dateChanged, this, &VCDatePeriod::SlotStartDateValueChanged);
    connect(m_stopEdit, &QDateEdit::dateChanged, this, &VCDatePeriod::SlotStopDateValueChanged);
}

bool VCDatePeriod::SetPeriod_ValuePath(const QString& startPath, const QString& stopPath)
{
    return PeriodWidget<VCDatePeriod>::Bind(*this, startPath, stopPath);
}

void VCDatePeriod::Lock()
{
    m_locked = true;
    setEnabled(false);
}

std::vector<FieldHolder::Field> VCDatePeriod::GetFields() const
{
    return PeriodWidget<VCDatePeriod>::GetFields(*this);
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
    PeriodWidget<VCDatePeriod>::Update(*this, source, code);
}

} // namespace TKE
