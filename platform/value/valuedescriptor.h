#pragma once

#include <QString>
#include <cmath>
#include <optional>
#include <vector>

namespace TKE
{

/// Kind of a value's content; the numbers are the type codes that ValueBase::GetTypeCode reports.
enum class ValueKind : quint8
{
    Bool = 1,
    Int = 2,
    Double = 3,
    Frequency = 4, ///< exact integer Hz
    Text = 5,
    DateTime = 6,
    DoubleList = 7,
    Selection = 8,
};

/// One item of a selection: a key, which is stored, and a name, which is shown.
class SelectionItem
{
public:
    SelectionItem() = default;
    SelectionItem(int key, QString name) : m_key(key), m_name(std::move(name)) {}
    int GetKey() const { return m_key; }
    const QString& GetName() const { return m_name; }
    bool operator==(const SelectionItem&) const = default;

private:
    int m_key = 0;
    QString m_name;
};

/// What all values of one kind and key share: the texts, the range and the items. A descriptor outlives the values made
/// from it. Members have initializers, so that one may be written with the names of some of them and without a warning.
struct ValueDescriptor
{
    ValueKind kind = ValueKind::Text;
    bool multiple = false; ///< selections: a set of keys instead of one
    QString label{};
    QString description{};
    QString unit{};                  ///< unit of the stored number
    QString defaultText{};           ///< in stored form (ValueBase::GetStoredText)
    std::optional<double> minimum{}; ///< in stored units; of each number for lists
    std::optional<double> maximum{};
    double step = 1.0;
    int precision = 0; ///< decimals of a double
    std::vector<SelectionItem> items{};

    /// The descriptor of values that nobody describes: no range, no items, an empty default.
    static const ValueDescriptor& Plain(ValueKind kind);
    /// Whether `number` (stored units) lies in the range; the reason otherwise goes to `reason` when given.
    bool Accepts(double number, QString* reason = nullptr) const
    {
        const bool inRange =
            std::isfinite(number) && !(minimum && number < *minimum) && !(maximum && number > *maximum);
        return inRange || Refuse(number, reason);
    }

private:
    bool Refuse(double number, QString* reason) const;
};

} // namespace TKE
