#include "parameterset.h"

#include "nodecopy.h"
#include "valuetexts.h"
#include "valuewidgets/fieldholder.h"
#include "valuewidgets/valuelink.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QWidget>
#include <unordered_set>

namespace JOBEDIT
{

namespace
{

constexpr const char* mimeType = "application/x-jobedit-parameters";
constexpr const char* formatName = "jobedit-parameters";
constexpr int formatVersion = 1;

/// Context of the texts below.
class ParameterSetText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ParameterSet)
};

/// `path` as seen from the node at `base`; empty for what lies beside the root, which is the same for all nodes.
QString RelativePath(const QString& path, QString base)
{
    QString up;
    while (!path.startsWith(base) && !base.isEmpty())
    {
        base = ParentPath(base);
        up += QLatin1String("../");
    }
    return base.isEmpty() ? QString() : up + path.mid(base.size());
}

QString Resolve(QString base, QString path)
{
    while (path.startsWith(QLatin1String("../")))
    {
        base = ParentPath(base);
        path.remove(0, 3);
    }
    return base + path;
}

ParameterSet::Parameter Describe(const TKE::ValueBase& value, const QString& path)
{
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    return {path, value.GetStoredText(), descriptor.label, ValueTexts::OfContent(value)};
}

void Collect(const TKE::Node& node, const QString& base, const std::unordered_set<QString>& others, ParameterSet& set)
{
    for (const auto& value : node.GetValues())
        set.parameters.push_back(Describe(*value, value->GetPathName().mid(base.size())));
    for (const auto& below : node.GetNodes())
        if (!others.contains(below->GetBasePath()))
            Collect(*below, base, others, set);
}

std::vector<const TKE::ValueBase*> BoundValues(QWidget* widget)
{
    std::vector<const TKE::ValueBase*> values;
    if (const auto* link = dynamic_cast<const TKE::ValueLink*>(widget); link && link->GetBoundValue())
        values.push_back(link->GetBoundValue());
    if (const auto* holder = dynamic_cast<const TKE::FieldHolder*>(widget))
        for (const TKE::FieldHolder::Field& field : holder->GetFields())
            values.push_back(field.value);
    return values;
}

} // namespace

ParameterSet ParameterSet::OfNode(const JobNode& node, const std::vector<JobNode>& jobNodes)
{
    ParameterSet set{node.path, node.type, {}};
    std::unordered_set<QString> others;
    for (const JobNode& other : jobNodes)
        others.insert(other.path);
    if (const TKE::Node* found = TKE::Tree::Instance()->FindNode(node.path))
        Collect(*found, node.path, others, set);
    return set;
}

ParameterSet ParameterSet::OfTab(const JobNode& node, const QWidget& tab, const QString& title)
{
    ParameterSet set{ParameterSetText::tr("%1, tab %2").arg(node.path, title), node.type, {}};
    std::unordered_set<const TKE::ValueBase*> known;
    for (QWidget* widget : tab.findChildren<QWidget*>())
        for (const TKE::ValueBase* value : BoundValues(widget))
        {
            const QString path = RelativePath(value->GetPathName(), node.path);
            if (!path.isEmpty() && known.insert(value).second)
                set.parameters.push_back(Describe(*value, path));
        }
    return set;
}

QJsonObject ParameterSet::ToJson() const
{
    QJsonArray values;
    for (const Parameter& parameter : parameters)
        values.append(QJsonObject{{"path", parameter.path},
                                  {"value", parameter.stored},
                                  {"label", parameter.label},
                                  {"text", parameter.text}});
    return {{"format", formatName}, {"version", formatVersion}, {"source", source}, {"type", type}, {"values", values}};
}

std::optional<ParameterSet> ParameterSet::FromJson(const QByteArray& json, QString& reason)
{
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
    if (error.error != QJsonParseError::NoError)
    {
        reason = ParameterSetText::tr("Byte %1: %2").arg(error.offset).arg(error.errorString());
        return {};
    }
    if (object["format"] != QLatin1String(formatName) || !object["values"].isArray())
    {
        reason = ParameterSetText::tr("These are no parameters of a chain.");
        return {};
    }
    if (object["version"].toInt() != formatVersion)
    {
        reason = ParameterSetText::tr("Version %1 of the format is not known.").arg(object["version"].toInt());
        return {};
    }
    ParameterSet set{object["source"].toString(), object["type"].toString(), {}};
    const QJsonArray values = object["values"].toArray();
    for (qsizetype number = 0; number < values.size(); ++number)
    {
        const QJsonObject value = values[number].toObject();
        if (value["path"].toString().isEmpty() || !value["value"].isString())
        {
            reason = ParameterSetText::tr("Value %1 has no path or no content.").arg(number + 1);
            return {};
        }
        set.parameters.push_back(
            {value["path"].toString(), value["value"].toString(), value["label"].toString(), value["text"].toString()});
    }
    return set;
}

QString ParameterSet::ToText() const
{
    QString text;
    for (const Parameter& parameter : parameters)
        text += parameter.path + u'\t' + parameter.text + u'\n';
    return text;
}

std::unique_ptr<QMimeData> ParameterSet::ToMimeData() const
{
    auto data = std::make_unique<QMimeData>();
    data->setData(mimeType, QJsonDocument(ToJson()).toJson(QJsonDocument::Compact));
    data->setText(ToText());
    return data;
}

bool ParameterSet::IsIn(const QMimeData* data)
{
    return data && data->hasFormat(mimeType);
}

std::optional<ParameterSet> ParameterSet::FromMimeData(const QMimeData* data, QString& reason)
{
    if (IsIn(data))
        return FromJson(data->data(mimeType), reason);
    reason = ParameterSetText::tr("The clipboard holds no parameters.");
    return {};
}

std::vector<ValueChange> ParameterSet::ChangesFor(const QString& nodePath) const
{
    const TKE::Tree& tree = *TKE::Tree::Instance();
    const QLatin1String data("Data/");
    std::vector<ValueChange> changes;
    for (const Parameter& parameter : parameters)
    {
        QString path = Resolve(nodePath, parameter.path);
        // The data form of a decoder has its values one level below the plain form.
        const QString dataForm = parameter.path.startsWith(data) ? nodePath + parameter.path.mid(data.size())
                                                                 : nodePath + data + parameter.path;
        if (!tree.FindValue(path) && tree.FindValue(dataForm))
            path = dataForm;
        changes.push_back({path, parameter.stored, false});
    }
    return changes;
}

} // namespace JOBEDIT
