#pragma once

#include <QList>
#include <QLocale>
#include <optional>
#include <vector>

namespace TKE
{

/// The rules of a list of numbers in rows: how it is stored, shown and kept in order. Numbers are in stored units
/// where nothing else is said; stored number = shown number x factor.
class NumberRows
{
public:
    using Row = std::vector<double>;
    using Rows = std::vector<Row>;

    /// `columns` numbers per row. With two columns a row is a range. The rows of a sorted list are a set.
    NumberRows(int columns, int minRows, bool sorted, double factor)
        : m_columns(columns), m_minRows(minRows), m_sorted(sorted), m_factor(factor)
    {
    }

    /// The rows of a list that holds them one after the other; an incomplete last row is left out, missing rows are
    /// made of `fill`.
    Rows FromList(const QList<double>& list, double fill) const;
    static QList<double> ToList(const Rows& rows);

    /// Ranges from small to large; a sorted list in ascending order, without duplicates and with ranges that touch made
    /// one, but never with fewer than the least number of rows.
    Rows Normalised(Rows rows) const;
    /// The row of a sorted list that holds `number`, which was written into `column`; nothing when there is none or the
    /// list is not sorted.
    std::optional<int> Find(const Rows& rows, double number, int column) const;

    QString ToText(double stored, QLocale locale) const;
    /// To a thousandth of a stored unit.
    static double Rounded(double stored);
    double GetFactor() const { return m_factor; }

private:
    bool HoldsRanges() const { return m_columns == 2; }

    int m_columns;
    int m_minRows;
    bool m_sorted;
    double m_factor;
};

} // namespace TKE
