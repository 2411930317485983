#include "valuewidgets/suffixeddouble.h"

#include "valuewidgets/decimal.h"

#include <QCoreApplication>

namespace TKE
{

namespace
{

// The unit that `typed` names, whatever its case: whoever types "433 mhz" means megahertz. Only "mHz" says millihertz,
// which it is.
std::optional<SuffixedDouble::ESuffix> ReadUnit(const QString& typed)
{
    if (typed == u"mHz")
        return {};
    const QString unit = typed.toLower();
    if (unit == u"hz")
        return SuffixedDouble::Hertz;
    if (unit == u"k" || unit == u"khz")
        return SuffixedDouble::Kilo;
    if (unit == u"m" || unit == u"mhz")
        return SuffixedDouble::Mega;
    if (unit == u"g" || unit == u"ghz")
        return SuffixedDouble::Giga;
    return {};
}

} // namespace

QString SuffixedDouble::GetUnitText(ESuffix unit)
{
    switch (unit)
    {
    case Hertz:
        return QStringLiteral("Hz");
    case Kilo:
        return QStringLiteral("kHz");
    case Mega:
        return QStringLiteral("MHz");
    case Giga:
        return QStringLiteral("GHz");
    }
    return {};
}

QString SuffixedDouble::ToText(qint64 hertz, ESuffix unit, const QLocale& locale)
{
    return Decimal::ToText(hertz, GetExponent(unit), locale);
}

bool SuffixedDouble::FromText(const QString& text, ESuffix unit, const QLocale& locale, qint64& hertz, QString& reason)
{
    const QString typed = text.trimmed();
    qsizetype letters = 0;
    while (letters < typed.size() && typed.at(typed.size() - 1 - letters).isLetter())
        ++letters;
    if (letters > 0)
    {
        const auto named = ReadUnit(typed.right(letters));
        if (!named)
        {
            reason =
                QCoreApplication::translate("TKE::SuffixedDouble", "\"%1\" is no unit of frequency (Hz, kHz, MHz, GHz)")
                    .arg(typed.right(letters));
            return false;
        }
        unit = *named;
    }
    const auto number = Decimal::Read(typed.chopped(letters), locale, reason);
    if (!number)
        return false;
    const auto whole = number->ToInteger(GetExponent(unit));
    if (!whole)
    {
        reason = QCoreApplication::translate("TKE::SuffixedDouble", "\"%1\" is not a whole number of Hz").arg(typed);
        return false;
    }
    hertz = *whole;
    return true;
}

} // namespace TKE
