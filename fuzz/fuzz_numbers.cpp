// A number or a frequency as somebody types it, in any locale, unit, factor and range: reading never crashes, what is
// taken fits into the value, and what is shown of it reads as the same again.
//
// The first four bytes choose locale, kind, factor and range; what follows is typed.

#include "fuzz.h"
#include "value/value.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/numericvalue.h"
#include "valuewidgets/showntext.h"
#include "valuewidgets/suffixeddouble.h"

#include <array>

using namespace TKE;
using Fuzz::Require;

namespace
{

const std::array locales{QLocale(QLocale::C),
                         QLocale(QLocale::German, QLocale::Germany),
                         QLocale(QLocale::German, QLocale::Switzerland),
                         QLocale(QLocale::English, QLocale::UnitedStates),
                         QLocale(QLocale::French, QLocale::France),
                         QLocale(QLocale::Swedish, QLocale::Sweden),
                         QLocale(QLocale::Arabic, QLocale::Egypt),
                         QLocale(QLocale::Persian, QLocale::Iran)};
constexpr std::array factors{1.0, 1e-3, 1e-6, 1e-9, 1000.0, 60.0, 0.3};

void CheckDecimal(const QString& typed, const QLocale& locale)
{
    QString reason;
    const auto number = Decimal::Read(typed, locale, reason);
    Require(number.has_value() == reason.isEmpty());
    if (!number)
        return;
    if (const auto whole = number->ToInteger())
    {
        const auto again = Decimal::Read(Decimal::ToText(*whole, 0, locale), locale, reason);
        Require(again && again->ToInteger() == whole);
    }
    if (const auto real = number->ToDouble())
    {
        const auto again = Decimal::Read(Decimal::ToText(*real, -1, locale), locale, reason);
        Require(std::isfinite(*real) && again && again->ToDouble() == real);
    }
}

void CheckFrequency(const QString& typed, SuffixedDouble::ESuffix unit, const QLocale& locale)
{
    QString reason;
    qint64 hertz = 0;
    if (!SuffixedDouble::FromText(typed, unit, locale, hertz, reason))
        return Require(!reason.isEmpty());
    for (const auto shown : {SuffixedDouble::Hertz, SuffixedDouble::Kilo, SuffixedDouble::Mega, SuffixedDouble::Giga})
    {
        const QString text = SuffixedDouble::ToText(hertz, shown, locale);
        qint64 again = 0;
        Require(SuffixedDouble::FromText(text, shown, locale, again, reason) && again == hertz);
        Require(SuffixedDouble::FromText(text + QLatin1Char(' ') + SuffixedDouble::GetUnitText(shown), unit, locale,
                                         again, reason) &&
                again == hertz);
    }
}

template <class Number> void CheckEntry(const QString& typed, double factor, uint8_t range, const QLocale& locale)
{
    static const QString name = QStringLiteral("value");
    ValueDescriptor descriptor = Number(name).GetDescriptor();
    descriptor.precision = range % 16;
    if (range & 0x40)
        descriptor.minimum = -100;
    if (range & 0x80)
        descriptor.maximum = 30e6;
    Number value(name, descriptor);
    double stored = 0;
    QString reason;
    if (!NumericValue::Read(value, typed, factor, locale, stored, reason))
        return Require(!reason.isEmpty());
    Require(NumericValue::Set(value, stored, nullptr, reason) && NumericValue::Get(value) == stored);
    Require(NumericValue::GetDecimals(value, factor) >= 0);
    double again = 0;
    Require(NumericValue::Read(value, ShownText::Of(value, locale), 1, locale, again, reason) && again == stored);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr size_t head = 4;
    if (size < head || size > 2000)
        return 0;
    const QLocale& locale = locales[data[0] % locales.size()];
    const double factor = factors[data[2] % factors.size()];
    const QString typed = QString::fromUtf8(reinterpret_cast<const char*>(data) + head, qsizetype(size - head));
    CheckDecimal(typed, locale);
    CheckFrequency(typed, SuffixedDouble::ESuffix(SuffixedDouble::Hertz + data[2] % 4), locale);
    switch (data[1] % 3)
    {
    case 0:
        CheckEntry<IntValue>(typed, factor, data[3], locale);
        break;
    case 1:
        CheckEntry<DoubleValue>(typed, factor, data[3], locale);
        break;
    default:
        CheckEntry<FrequencyValue>(typed, factor, data[3], locale);
        break;
    }
    return 0;
}
