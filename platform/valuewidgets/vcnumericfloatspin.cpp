#include "valuewidgets/vcnumericfloatspin.h"

#include "valuewidgets/decimal.h"
#include "valuewidgets/hintcache.h"
#include "valuewidgets/numericvalue.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <charconv>
#include <cmath>

namespace TKE
{

namespace
{

constexpr qsizetype longestHint = 18; // characters; longer numbers scroll

// Without the noise of adding: 0.1 + 0.2 is 0.3.
double WithoutNoise(double number)
{
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, 15).ptr;
    std::from_chars(text.data(), end, number);
    return number;
}

} // namespace

VCNumericFloatSpin::VCNumericFloatSpin(QWidget* parent, const QString& name) : QAbstractSpinBox(parent), TextEntry(this)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
}

void VCNumericFloatSpin::SetFactor(double factor)
{
    if (!(factor > 0) || factor == m_factor)
        return;
    m_factor = factor;
    if (GetBoundValue())
        ShowContent();
}

void VCNumericFloatSpin::setAdditionalPrecision(int decimals)
{
    const int before = this->decimals();
    m_decimals = std::clamp(decimals, 0, 15);
    if (GetBoundValue() && m_decimals != before)
        ShowContent();
}

int VCNumericFloatSpin::decimals() const
{
    if (m_decimals >= 0)
        return m_decimals;
    return GetBoundValue() ? NumericValue::GetDecimals(*GetBoundValue(), m_factor) : 0;
}

double VCNumericFloatSpin::value() const
{
    return GetBoundValue() ? NumericValue::Get(*GetBoundValue()) * m_factor : 0.0;
}

bool VCNumericFloatSpin::CanShow(const ValueBase& value) const
{
    return NumericValue::Is(value);
}

void VCNumericFloatSpin::ShowDescription()
{
    m_minimum = NumericValue::GetMinimum(*GetBoundValue());
    m_maximum = NumericValue::GetMaximum(*GetBoundValue());
}

QString VCNumericFloatSpin::Shown(double stored) const
{
    return Decimal::ToText(stored * m_factor, decimals(), locale());
}

QString VCNumericFloatSpin::ContentText() const
{
    return Shown(NumericValue::Get(*GetBoundValue()));
}

void VCNumericFloatSpin::ShowContent()
{
    m_stepped.reset();
    TextEntry::ShowContent();
    update(); // an arrow may have come to its end
}

bool VCNumericFloatSpin::Write(const QString& typed, QString& reason)
{
    ValueBase& value = *GetBoundValue();
    double stored = 0;
    if (m_stepped)
        stored = *std::exchange(m_stepped, std::nullopt);
    else if (!NumericValue::Read(value, typed, m_factor, locale(), stored, reason))
        return false;
    return NumericValue::Set(value, stored, this, reason);
}

void VCNumericFloatSpin::stepBy(int steps)
{
    const ValueBase* value = GetBoundValue();
    if (!value)
        return;
    double from = m_stepped ? *m_stepped : NumericValue::Get(*value);
    QString reason;
    if (!m_stepped && IsEdited() && !NumericValue::Read(*value, Field().text(), m_factor, locale(), from, reason))
    {
        Refuse(reason);
        return;
    }
    const double step = value->GetDescriptor().step > 0 ? value->GetDescriptor().step : 1.0;
    double to = WithoutNoise(from + steps * step);
    if (to > m_maximum)
        to = wrapping() && from >= m_maximum ? m_minimum : m_maximum;
    else if (to < m_minimum)
        to = wrapping() && from <= m_minimum ? m_maximum : m_minimum;
    m_stepped = to;
    {
        const QSignalBlocker quiet(lineEdit());
        lineEdit()->setText(Shown(to));
    }
    if (hasFocus())
        selectAll();
    OnEdited();
}

QAbstractSpinBox::StepEnabled VCNumericFloatSpin::stepEnabled() const
{
    if (!GetBoundValue() || isReadOnly())
        return StepNone;
    if (wrapping())
        return StepUpEnabled | StepDownEnabled;
    const double stored = m_stepped ? *m_stepped : NumericValue::Get(*GetBoundValue());
    return (stored < m_maximum ? StepUpEnabled : StepNone) | (stored > m_minimum ? StepDownEnabled : StepNone);
}

bool VCNumericFloatSpin::event(QEvent* event)
{
    return Handle(event, [&] { return QAbstractSpinBox::event(event); });
}

void VCNumericFloatSpin::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void VCNumericFloatSpin::paintEvent(QPaintEvent* event)
{
    QAbstractSpinBox::paintEvent(event);
    PaintRefusal();
}

QSize VCNumericFloatSpin::sizeHint() const
{
    static HintCache shared;
    const auto length = [this](double limit) { return std::isfinite(limit) ? Shown(limit).size() : 10 + decimals(); };
    const qsizetype characters = std::min<qsizetype>(std::max(length(m_minimum), length(m_maximum)), longestHint);
    const size_t look = size_t(characters) * 16 + size_t(buttonSymbols()) * 2 + size_t(hasFrame());
    return shared.Get(*this, look,
                      [&]
                      {
                          QStyleOptionSpinBox option;
                          initStyleOption(&option);
                          const QString widest(characters + 1, u'0'); // and room for a cursor
                          const QSize content(fontMetrics().horizontalAdvance(widest), lineEdit()->sizeHint().height());
                          return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
                      });
}

} // namespace TKE
