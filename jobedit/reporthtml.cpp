#include "reporthtml.h"

#include "jobmodel/xmltext.h"

#include <QIODevice>

namespace JOBEDIT
{

namespace
{

// System colours follow the reader's light or dark setting; print is black on white. What differs is told by a mark and
// bold type, the colour only helps.
constexpr char style[] = R"(
:root { color-scheme: light dark; }
body { font-family: sans-serif; font-size: 10pt; line-height: 1.35; max-width: 62em; margin: 1.5em auto; padding: 0 1em; }
h1 { font-size: 1.7em; margin-bottom: 0.4em; }
h2 { font-size: 1.15em; margin: 1.8em 0 0.1em 0; }
p.node { margin: 0 0 0.5em 0; opacity: 0.75; overflow-wrap: anywhere; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: 0.15em 0.5em; border-bottom: 1px solid rgba(128, 128, 128, 0.35); }
thead th { border-bottom: 2px solid rgba(128, 128, 128, 0.7); }
table.facts { width: auto; }
table.facts th { font-weight: normal; opacity: 0.75; }
td { overflow-wrap: anywhere; }
td.m { width: 1em; padding-right: 0; }
td.l { width: 34%; }
td.u { width: 4em; }
td.k { width: 30%; font-family: monospace; font-size: 0.8em; opacity: 0.75; }
tr.c { background: rgba(230, 150, 0, 0.13); }
tr.c td.l, tr.c td.v { font-weight: bold; }
.d { display: block; font-weight: normal; font-size: 0.85em; opacity: 0.8; }
nav ol { list-style: none; padding: 0; }
nav .t { opacity: 0.75; }
@media print {
  :root { color-scheme: light; }
  body { max-width: none; margin: 0; padding: 0; font-size: 8.5pt; }
  nav { break-after: page; }
  thead { display: table-header-group; }
  tr, h2, p.node { break-inside: avoid; }
  h2, p.node { break-after: avoid; }
  a { color: inherit; text-decoration: none; }
}
@page { margin: 15mm; }
)";

} // namespace

bool ReportHtml::Write(QIODevice& device)
{
    constexpr size_t portion = 1 << 18;
    const auto flush = [&]
    {
        const bool written = device.write(m_out.data(), qint64(m_out.size())) == qint64(m_out.size());
        m_out.clear();
        return written;
    };
    AddHead();
    AddContents();
    qint64 done = 0;
    for (size_t index = 0; index < m_content.GetSections().size(); ++index)
    {
        AddSection(index);
        const ReportContent::Section& section = m_content.GetSections()[index];
        done += m_content.GetOptions().onlyChanges ? section.changed : section.values;
        if ((m_out.size() >= portion && !flush()) || !m_progress(done, m_content.RowCount()))
            return false;
    }
    m_out += "</body>\n</html>\n";
    return flush() && m_progress(m_content.RowCount(), m_content.RowCount());
}

void ReportHtml::AddText(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    // Good in attributes as well.
    TKE::XmlText::AppendAttribute(m_out, {utf8.constData(), size_t(utf8.size())});
}

void ReportHtml::AddElement(const char* start, const QString& text, const char* end)
{
    m_out += start;
    AddText(text);
    m_out += end;
}

void ReportHtml::AddHead()
{
    const QString& title = m_content.GetTitle();
    m_out += "<!DOCTYPE html>\n";
    AddElement("<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"", QLocale().bcp47Name(), "\">\n<head>\n");
    m_out += "<meta charset=\"utf-8\"/>\n<meta name=\"viewport\" content=\"width=device-width\"/>\n";
    AddElement("<title>", title, "</title>\n<style>");
    m_out += style;
    AddElement("</style>\n</head>\n<body>\n<h1>", title, "</h1>\n<table class=\"facts\">\n<tbody>\n");
    for (const ReportContent::Fact& fact : m_content.GetFacts())
    {
        AddElement("<tr><th scope=\"row\">", fact.name, "</th>");
        AddElement("<td>", fact.text, "</td></tr>\n");
    }
    AddElement("</tbody>\n</table>\n<p>", tr("\u25cf marks values that differ from their default."), "</p>\n");
}

void ReportHtml::AddContents()
{
    AddElement("<nav>\n<h2>", tr("Contents"), "</h2>\n<ol>\n");
    const auto& sections = m_content.GetSections();
    for (size_t index = 0; index < sections.size(); ++index)
    {
        m_progress(0, m_content.RowCount()); // cancelled, it ends with the first section
        const ReportContent::Section& section = sections[index];
        m_out += "<li style=\"margin-left: " + std::to_string(section.depth * 1.5).substr(0, 4) + "em\"><a href=\"#n" +
                 std::to_string(index + 1) + "\">";
        AddElement("", section.name, "</a>");
        AddElement(" <span class=\"t\">", section.title.isEmpty() ? section.type : section.title, "</span>");
        if (section.changed > 0)
            AddElement(" <span class=\"t\">", tr("\u25cf %1").arg(section.changed), "</span>");
        m_out += "</li>\n";
    }
    m_out += "</ol>\n</nav>\n";
    if (sections.empty())
        AddElement("<p>", tr("No value differs from its default."), "</p>\n");
}

void ReportHtml::AddSection(size_t index)
{
    const ReportContent::Section& section = m_content.GetSections()[index];
    m_out += "<section>\n<h2 id=\"n" + std::to_string(index + 1) + "\">";
    AddText(section.title.isEmpty() ? section.name : tr("%1: %2").arg(section.name, section.title));
    AddElement("</h2>\n<p class=\"node\">", section.path, "");
    if (!section.type.isEmpty())
        AddElement(" \u00b7 ", section.type, "");
    AddElement("</p>\n<table>\n<thead><tr><th></th><th scope=\"col\">", tr("Parameter"), "</th>");
    AddElement("<th scope=\"col\">", tr("Value"), "</th>");
    AddElement("<th scope=\"col\">", tr("Unit"), "</th>");
    AddElement("<th scope=\"col\">", tr("Key"), "</th></tr></thead>\n<tbody>\n");
    for (const ReportContent::Row& row : m_content.RowsOf(section))
    {
        m_out += row.isChanged ? "<tr class=\"c\"><td class=\"m\">\u25cf</td>" : "<tr><td class=\"m\"></td>";
        AddElement("<td class=\"l\">", row.label.isEmpty() ? row.key : row.label, "</td>");
        AddElement("<td class=\"v\">", row.value, "");
        if (row.isChanged)
            AddElement("<span class=\"d\">",
                       row.defaultText.isEmpty() ? tr("default: empty") : tr("default: %1").arg(row.defaultText),
                       "</span>");
        AddElement("</td><td class=\"u\">", row.unit, "</td>");
        AddElement("<td class=\"k\">", row.key, "</td></tr>\n");
    }
    m_out += "</tbody>\n</table>\n</section>\n";
}

} // namespace JOBEDIT
