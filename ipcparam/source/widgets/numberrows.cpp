#include "widgets/numberrows.h"

#include <algorithm>
#include <cmath>

namespace TKE
{

namespace
{

constexpr double partsPerStoredUnit = 1000.0;
constexpr int decimalsWithoutFactor = 2;

} // namespace

NumberRows::Rows NumberRows::FromList(const QList<double>& list, double fill) const
{
    Rows rows;
    for (auto number = list.begin(); list.end() - number >= m_columns; number += m_columns)
        rows.emplace_back(number, number + m_columns);
    rows.resize(std::max(rows.size(), size_t(m_minRows)), Row(size_t(m_columns), fill));
    return rows;
}

QList<double> NumberRows::ToList(const Rows& rows)
{
    QList<double> list;
    for (const Row& row : rows)
        list.append(QList<double>(row.begin(), row.end()));
    return list;
}

NumberRows::Rows NumberRows::Normalised(Rows rows) const
{
    if (HoldsRanges())
    {
        for (Row& row : rows)
            std::sort(row.begin(), row.end());
    }
    if (!m_sorted)
        return rows;
    std::sort(rows.begin(), rows.end());
    int surplus = int(rows.size()) - m_minRows;
    Rows kept;
    for (const Row& row : rows)
    {
        const bool joins = !kept.empty() && (HoldsRanges() ? row[0] <= kept.back()[1] : row == kept.back());
        if (!joins || surplus <= 0)
        {
            kept.push_back(row);
            continue;
        }
        --surplus;
        if (HoldsRanges())
            kept.back()[1] = std::max(kept.back()[1], row[1]);
    }
    return kept;
}

std::optional<int> NumberRows::Find(const Rows& rows, double number, int column) const
{
    const auto holds = [&](const Row& row)
    { return HoldsRanges() ? row[0] <= number && number <= row[1] : row[size_t(column)] == number; };
    const auto found = std::find_if(rows.begin(), rows.end(), holds);
    if (!m_sorted || found == rows.end())
        return {};
    return int(found - rows.begin());
}

QString NumberRows::ToText(double stored, QLocale locale) const
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const int decimals = m_factor > 1.0 ? int(std::lround(std::log10(m_factor))) : decimalsWithoutFactor;
    QString text = locale.toString(stored / m_factor, 'f', decimals);
    if (decimals == 0)
        return text;
    while (text.endsWith(locale.zeroDigit()))
        text.chop(1);
    if (text.endsWith(locale.decimalPoint()))
        text.chop(1);
    return text;
}

double NumberRows::Rounded(double stored)
{
    return std::round(stored * partsPerStoredUnit) / partsPerStoredUnit;
}

} // namespace TKE
