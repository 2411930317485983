#pragma once

#include <QLocale>
#include <QString>

namespace TKE
{

/// Frequencies in exact Hz, as numbers with a unit.
class SuffixedDouble
{
public:
    enum ESuffix
    {
        Hertz = 1,
        Kilo = 2,
        Mega = 3,
        Giga = 4,
    };

    static bool IsSuffix(int code) { return code >= Hertz && code <= Giga; }
    /// "Hz", "kHz", "MHz" or "GHz".
    static QString GetUnitText(ESuffix unit);
    /// 0, 3, 6 or 9: the unit is that power of ten in Hz.
    static int GetExponent(ESuffix unit) { return 3 * (unit - Hertz); }

    /// The number of `unit`, exact and as short as it can be, without the unit.
    static QString ToText(qint64 hertz, ESuffix unit, const QLocale& locale);
    /// Reads a number (see Decimal) and the unit behind it: Hz, kHz, MHz, GHz or their first letter, in either case;
    /// without one it is `unit`. Refuses what is not a whole number of Hz; `reason` is for people.
    static bool FromText(const QString& text, ESuffix unit, const QLocale& locale, qint64& hertz, QString& reason);
};

} // namespace TKE
