#pragma once

#include <QLocale>
#include <QString>
#include <optional>
#include <string>

namespace TKE
{

/// A decimal number as a person types it, exact.
///
/// Understood are "." and "," as decimal point, and as group separators in well-formed groups of three ("1.234.567",
/// "1.234,5"); blanks and apostrophes group too; an exponent may follow. What could be either is refused: a single
/// separator that is the locale's group separator and stands before exactly three digits.
class Decimal
{
public:
    /// Nothing when `text` is no such number; `reason` is for people.
    static std::optional<Decimal> Read(const QString& text, const QLocale& locale, QString& reason);

    /// The number x 10^`exponent`; nothing when that is no whole number or too large.
    std::optional<qint64> ToInteger(int exponent = 0) const;
    /// The number x 10^`exponent`, correctly rounded; nothing when it is too large.
    std::optional<double> ToDouble(int exponent = 0) const;

    /// `number` with exactly `decimals` decimals (-1: as many as it takes to read the same again), without group
    /// separators.
    static QString ToText(double number, int decimals, const QLocale& locale);
    /// The whole number x 10^-`decimals`, exact and without needless zeros.
    static QString ToText(qint64 number, int decimals, const QLocale& locale);

private:
    bool m_negative = false;
    std::string m_digits; // of the whole number that stands before x 10^m_exponent
    int m_exponent = 0;
};

} // namespace TKE
