#include "jobmodel/nodetag.h"

#include "jobmodel/xmltext.h"

namespace TKE::NodeTag
{

namespace
{

void AppendAttribute(std::string& out, const char* name, const QString& text)
{
    out += ' ';
    out += name;
    out += "=\"";
    XmlText::AppendAttribute(out, text.toStdString());
    out += '"';
}

} // namespace

std::string Of(const NodeSpec& spec)
{
    std::string tag = "<Node";
    AppendAttribute(tag, "name", spec.name);
    AppendAttribute(tag, "type", spec.type);
    if (!spec.groups.isEmpty())
        AppendAttribute(tag, "groups", spec.groups.join(QLatin1Char(' ')));
    if (spec.count > 0)
        AppendAttribute(tag, "count", QString::number(spec.count));
    if (spec.dataForm)
        AppendAttribute(tag, "form", QStringLiteral("data"));
    if (spec.band == Band::Vuhf)
        AppendAttribute(tag, "band", QStringLiteral("VUHF"));
    return tag + "/>";
}

std::string Renamed(const std::string& tag, const QString& name)
{
    size_t at = tag.find_first_of(" \t\r\n");
    while (at < tag.size())
    {
        const size_t begin = tag.find_first_not_of(" \t\r\n", at);
        const size_t quote = tag.find_first_of("\"'", begin);
        if (quote == std::string::npos)
            break;
        const size_t end = tag.find(tag[quote], quote + 1);
        const std::string_view attribute = std::string_view(tag).substr(begin, tag.find('=', begin) - begin);
        if (XmlText::Trimmed(attribute) == "name")
        {
            std::string escaped;
            XmlText::AppendAttribute(escaped, name.toStdString());
            return tag.substr(0, quote) + '"' + escaped + '"' + tag.substr(end + 1);
        }
        at = end + 1;
    }
    return tag;
}

} // namespace TKE::NodeTag
