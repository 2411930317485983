#include "valuewidgets/numericvalue.h"

#include "value/value.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/suffixeddouble.h"

#include <QCoreApplication>
#include <cmath>
#include <limits>

namespace TKE
{

namespace
{

// n when `factor` is 10^n, which is how a decimal number is scaled without rounding.
std::optional<int> PowerOfTen(double factor)
{
    if (factor == 1.0)
        return 0;
    const int power = int(std::lround(std::log10(factor)));
    if (std::abs(std::pow(10.0, power) - factor) > factor * 1e-12)
        return {};
    return power;
}

bool IsWhole(const ValueBase& value)
{
    return value.GetKind() == ValueKind::Int || value.GetKind() == ValueKind::Frequency;
}

// The largest number that a value of this kind holds and a double holds exactly.
double LimitOf(const ValueBase& value)
{
    switch (value.GetKind())
    {
    case ValueKind::Int:
        return std::numeric_limits<int>::max();
    case ValueKind::Frequency:
        return double(qint64(1) << std::numeric_limits<double>::digits);
    default:
        return std::numeric_limits<double>::infinity();
    }
}

QString NotWhole(const QString& typed)
{
    return QCoreApplication::translate("TKE::NumericValue", "\"%1\" is not a whole number").arg(typed);
}

// The stored number that is shown as `shown`; nothing when it must be whole and is not, or is too large.
std::optional<double> ToStored(const Decimal& shown, bool whole, double factor)
{
    const auto power = PowerOfTen(factor);
    if (whole && power)
    {
        const auto exact = shown.ToInteger(-*power);
        return exact ? std::optional<double>(double(*exact)) : std::nullopt;
    }
    if (power)
        return shown.ToDouble(-*power);
    const auto number = shown.ToDouble();
    if (!number)
        return {};
    const double stored = *number / factor;
    if (!std::isfinite(stored))
        return {};
    if (!whole)
        return stored;
    // A factor such as 0.3 does not divide exactly.
    const double rounded = std::round(stored);
    return std::abs(rounded - stored) <= std::abs(stored) * 1e-12 ? std::optional<double>(rounded) : std::nullopt;
}

} // namespace

bool NumericValue::Is(const ValueBase& value)
{
    return value.GetKind() == ValueKind::Int || value.GetKind() == ValueKind::Double ||
           value.GetKind() == ValueKind::Frequency;
}

double NumericValue::Get(const ValueBase& value)
{
    switch (value.GetKind())
    {
    case ValueKind::Int:
        return static_cast<const IntValue&>(value).GetValue();
    case ValueKind::Double:
        return static_cast<const DoubleValue&>(value).GetValue();
    case ValueKind::Frequency:
        return double(static_cast<const FrequencyValue&>(value).GetValue());
    default:
        return 0;
    }
}

bool NumericValue::Set(ValueBase& value, double stored, const IObserver* excluded, QString& reason)
{
    switch (value.GetKind())
    {
    case ValueKind::Int:
        return static_cast<IntValue&>(value).SetValue(int(stored), excluded, &reason);
    case ValueKind::Double:
        return static_cast<DoubleValue&>(value).SetValue(stored, excluded, &reason);
    case ValueKind::Frequency:
        return static_cast<FrequencyValue&>(value).SetValue(qint64(stored), excluded, &reason);
    default:
        return false;
    }
}

double NumericValue::GetMinimum(const ValueBase& value)
{
    const double kind = value.GetKind() == ValueKind::Int ? std::numeric_limits<int>::min() : -LimitOf(value);
    return std::max(value.GetDescriptor().minimum.value_or(kind), kind);
}

double NumericValue::GetMaximum(const ValueBase& value)
{
    const double kind = LimitOf(value);
    return std::min(value.GetDescriptor().maximum.value_or(kind), kind);
}

int NumericValue::GetDecimals(const ValueBase& value, double factor)
{
    const int precision = value.GetKind() == ValueKind::Double ? value.GetDescriptor().precision : 0;
    return factor < 1.0 ? precision + int(std::ceil(-std::log10(factor) - 1e-9)) : precision;
}

bool NumericValue::Read(const ValueBase& value, const QString& typed, double factor, const QLocale& locale,
                        double& stored, QString& reason)
{
    const QString text = typed.trimmed();
    if (value.GetKind() == ValueKind::Frequency && !text.isEmpty() && text.back().isLetter())
    {
        qint64 hertz = 0;
        if (!SuffixedDouble::FromText(text, SuffixedDouble::Hertz, locale, hertz, reason))
            return false;
        stored = double(hertz);
        return IsInRange(value, stored, factor, locale, reason);
    }
    const auto shown = Decimal::Read(text, locale, reason);
    if (!shown)
        return false;
    const auto number = ToStored(*shown, IsWhole(value), factor);
    if (!number)
    {
        reason = IsWhole(value) ? NotWhole(text)
                                : QCoreApplication::translate("TKE::NumericValue", "\"%1\" is too large").arg(text);
        return false;
    }
    stored = *number;
    return IsInRange(value, stored, factor, locale, reason);
}

bool NumericValue::IsInRange(const ValueBase& value, double stored, double factor, const QLocale& locale,
                             QString& reason)
{
    const auto shown = [&](double number) { return Decimal::ToText(number * factor, -1, locale); };
    const double minimum = GetMinimum(value);
    const double maximum = GetMaximum(value);
    if (stored < minimum)
        reason =
            QCoreApplication::translate("TKE::NumericValue", "%1 is less than %2").arg(shown(stored), shown(minimum));
    else if (stored > maximum)
        reason =
            QCoreApplication::translate("TKE::NumericValue", "%1 is more than %2").arg(shown(stored), shown(maximum));
    else
        return true;
    return false;
}

} // namespace TKE
