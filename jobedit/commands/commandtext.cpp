#include "commandtext.h"

#include "value/valueselection.h"
#include "valuewidgets/showntext.h"

#include <QJsonArray>

namespace JOBEDIT
{

QString CommandText::Of(const TKE::ValueBase& value, bool stored)
{
    return stored ? value.GetStoredText() : TKE::ShownText::Of(value, QLocale());
}

QString CommandText::Escaped(QString text)
{
    return text.replace(u'\\', QLatin1String("\\\\"))
        .replace(u'\t', QLatin1String("\\t"))
        .replace(u'\n', QLatin1String("\\n"))
        .replace(u'\r', QLatin1String("\\r"));
}

QJsonObject CommandText::JsonOf(const TKE::ValueBase& value)
{
    static constexpr const char* kinds[] = {"",     "bool",     "integer", "number",   "frequency",
                                            "text", "datetime", "list",    "selection"};
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    const auto limit = [](const std::optional<double>& number) { return number ? QJsonValue(*number) : QJsonValue(); };
    QJsonObject object{{"path", value.GetPathName()},
                       {"value", Of(value, false)},
                       {"stored", value.GetStoredText()},
                       {"default", descriptor.defaultText},
                       {"changed", value.GetStoredText() != descriptor.defaultText},
                       {"enabled", value.GetState() == TKE::stEnabled},
                       {"kind", descriptor.multiple ? "multiselection" : kinds[value.GetTypeCode()]},
                       {"label", descriptor.label},
                       {"unit", descriptor.unit},
                       {"minimum", limit(descriptor.minimum)},
                       {"maximum", limit(descriptor.maximum)}};
    if (value.GetKind() == TKE::ValueKind::Selection)
    {
        QJsonArray items;
        for (const TKE::SelectionItem& item : static_cast<const TKE::ValueSelection&>(value).GetItems())
            items.append(QJsonObject{{"key", item.GetKey()}, {"name", item.GetName()}});
        object.insert("items", items);
    }
    return object;
}

} // namespace JOBEDIT
