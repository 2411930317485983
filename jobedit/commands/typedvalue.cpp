#include "typedvalue.h"

#include "value/value.h"
#include "value/valueselection.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/numericvalue.h"
#include "valuewidgets/showntext.h"

#include <algorithm>

namespace JOBEDIT
{

using TKE::ValueKind;

bool TypedValue::Set(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason)
{
    switch (value.GetKind())
    {
    case ValueKind::Bool:
        return SetBool(value, text, reason);
    case ValueKind::Int:
    case ValueKind::Double:
    case ValueKind::Frequency:
        return SetNumber(value, text, locale, reason);
    case ValueKind::DateTime:
        if (const auto stored = TKE::ShownText::DateTimeToStored(text))
            return value.SetStoredText(*stored, nullptr, &reason);
        return value.SetStoredText(text.trimmed(), nullptr, &reason);
    case ValueKind::DoubleList:
        return SetList(value, text, locale, reason);
    case ValueKind::Selection:
        return SetSelection(value, text, reason);
    case ValueKind::Text:
        break;
    }
    return value.SetFromText(text, nullptr, &reason);
}

bool TypedValue::SetNumber(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason)
{
    QString number = text.trimmed();
    const QString& unit = value.GetDescriptor().unit;
    // A frequency's unit counts; any other value has one unit only.
    if (value.GetKind() != ValueKind::Frequency && !unit.isEmpty() && number.endsWith(unit))
        number.chop(unit.size());
    double stored = 0;
    return TKE::NumericValue::Read(value, number, 1.0, locale, stored, reason) &&
           TKE::NumericValue::Set(value, stored, nullptr, reason);
}

bool TypedValue::SetBool(TKE::ValueBase& value, const QString& text, QString& reason)
{
    const QString word = text.trimmed().toLower();
    const bool on = QStringList{"true", "on", "yes", "1"}.contains(word);
    if (on || QStringList{"false", "off", "no", "0"}.contains(word))
        return value.SetBool(on);
    reason = tr("\"%1\" is neither on nor off").arg(text);
    return false;
}

bool TypedValue::SetSelection(TKE::ValueBase& value, const QString& text, QString& reason)
{
    auto& selection = static_cast<TKE::ValueSelection&>(value);
    // A name that reads like a number goes before the key. Letters may be small or large where that is clear.
    const auto keyOf = [&](const QString& wanted) -> std::optional<int>
    {
        const auto& items = selection.GetItems();
        for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
        {
            const auto isNamed = [&](const TKE::SelectionItem& item)
            { return item.GetName().compare(wanted, sensitivity) == 0; };
            const auto found = std::find_if(items.begin(), items.end(), isNamed);
            if (found != items.end() &&
                (sensitivity == Qt::CaseSensitive || std::count_if(items.begin(), items.end(), isNamed) == 1))
                return found->GetKey();
        }
        bool isNumber = false;
        const int key = wanted.toInt(&isNumber);
        return isNumber && selection.FindItem(key) ? std::optional(key) : std::nullopt;
    };
    std::vector<int> keys;
    for (const QString& part : selection.IsMultiple() ? text.split(u';', Qt::SkipEmptyParts) : QStringList{text})
    {
        const auto key = keyOf(part.trimmed());
        if (!key)
        {
            QStringList names;
            for (const TKE::SelectionItem& item : selection.GetItems())
                names << item.GetName();
            reason = tr("There is no item \"%1\". There are: %2").arg(part.trimmed(), names.join(QLatin1String(", ")));
            return false;
        }
        keys.push_back(*key);
    }
    return selection.IsMultiple() ? selection.SetKeys(keys, nullptr, &reason)
                                  : selection.SelectKey(keys.front(), nullptr, &reason);
}

bool TypedValue::SetList(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason)
{
    QList<double> numbers;
    for (const QString& part : text.trimmed().isEmpty() ? QStringList() : text.split(u';'))
    {
        const auto number = TKE::Decimal::Read(part.trimmed(), locale, reason);
        if (!number)
            return false;
        const auto exact = number->ToDouble();
        if (!exact)
        {
            reason = tr("\"%1\" is too large").arg(part.trimmed());
            return false;
        }
        numbers.append(*exact);
    }
    return static_cast<TKE::DoubleListValue&>(value).SetValue(numbers, nullptr, &reason);
}

} // namespace JOBEDIT
