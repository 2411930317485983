#include "reportcontent.h"

#include "chains.h"
#include "chaintitles.h"
#include "jobdocument.h"

#include <QFileInfo>
#include <algorithm>

namespace JOBEDIT
{

ReportContent::ReportContent(const JobDocument& document, const ReportOptions& options, const ReportProgress& progress)
    : m_options(options), m_nodes(document.GetNodes()), m_progress(progress)
{
    const QString job = QFileInfo(document.GetFileName()).fileName();
    m_title = job.isEmpty() ? tr("New job") : tr("Job %1").arg(job);
    for (int index = 0; index < int(m_nodes.size()); ++index)
        m_byPath.insert(m_nodes[size_t(index)].path, index);
    m_isCancelled = !m_progress(0, 1);
    for (const TKE::Node* top : TKE::Tree::Instance()->GetTopNodes())
        Collect(*top, {});
    CollectFacts(document);
    for (const Section& section : m_sections)
        m_rowCount += m_options.onlyChanges ? section.changed : section.values;
}

void ReportContent::Collect(const TKE::Node& node, Place place)
{
    if (m_isCancelled)
        return;
    const auto found = m_byPath.constFind(node.GetBasePath());
    const bool isOwn = found != m_byPath.constEnd();
    // Values above the nodes that the job names have a section, too; those below belong to the node above them.
    if (isOwn || (!place.isBelowOwn && !node.GetValues().empty()))
    {
        Section section{.path = node.GetBasePath(),
                        .name = place.prefix + (isOwn ? m_nodes[size_t(*found)].name : node.GetPathName()),
                        .type = node.GetTypeText(),
                        .depth = place.depth};
        if (isOwn)
            section.title = ChainTitle(m_nodes[size_t(*found)]);
        ForValues(node, {},
                  [&](const TKE::ValueBase& value, const QString&)
                  {
                      ++section.values;
                      section.changed += m_labels.IsChanged(value);
                  });
        m_values += section.values;
        m_changed += section.changed;
        place.isBelowOwn = true;
        if ((m_options.onlyChanges ? section.changed : section.values) > 0)
        {
            m_sections.push_back(std::move(section));
            place.prefix.clear();
            ++place.depth;
        }
        else
            place.prefix = section.name + '/';
    }
    m_isCancelled = m_isCancelled || !m_progress(0, 1);
    for (const auto& child : node.GetNodes())
        Collect(*child, place);
}

void ReportContent::ForValues(const TKE::Node& node, const QString& below, const Visit& visit) const
{
    for (const auto& value : node.GetValues())
        if (value->GetState() != TKE::stReleased)
            visit(*value, below);
    for (const auto& child : node.GetNodes())
        if (!m_byPath.contains(child->GetBasePath()))
            ForValues(*child, below + child->GetName().toString() + '/', visit);
}

std::vector<ReportContent::Row> ReportContent::RowsOf(const Section& section)
{
    std::vector<Row> rows;
    const TKE::Node* node = TKE::Tree::Instance()->FindNode(section.path);
    if (!node)
        return rows;
    rows.reserve(size_t(m_options.onlyChanges ? section.changed : section.values));
    ForValues(*node, {},
              [&](const TKE::ValueBase& value, const QString& below)
              {
                  const bool isChanged = m_labels.IsChanged(value);
                  if (m_options.onlyChanges && !isChanged)
                      return;
                  const QString label = m_labels.LabelOf(value.GetDescriptor());
                  ReportLabels::Shown shown = m_labels.Of(value);
                  rows.push_back({below.isEmpty()   ? label
                                  : label.isEmpty() ? below.chopped(1)
                                                    : tr("%1, %2").arg(below.chopped(1), label),
                                  std::move(shown.text), std::move(shown.unit), below + value.GetName(),
                                  isChanged ? m_labels.DefaultOf(value.GetDescriptor()) : QString(), isChanged});
              });
    return rows;
}

void ReportContent::CollectFacts(const JobDocument& document)
{
    m_facts.push_back({tr("File"), document.GetFileName().isEmpty() ? tr("not saved yet") : document.GetFileName()});
    const auto job =
        std::ranges::find_if(m_nodes, [](const JobNode& node) { return node.type == QLatin1StringView("JOB"); });
    if (job != m_nodes.end())
    {
        m_facts.push_back({tr("Job"), job->path.chopped(1)});
        const std::pair<const char*, QString> keys[] = {{"JOB_DESCRIPTION", tr("Description")},
                                                        {"JOB_AUTHOR", tr("Author")},
                                                        {"JOB_CREATIONDATETIME", tr("Created")},
                                                        {"JOB_LASTEDITDATETIME", tr("Last modified")},
                                                        {"JOB_STATE", tr("State")}};
        for (const auto& [key, name] : keys)
            if (const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(job->path + QLatin1StringView(key)))
                m_facts.push_back({name, m_labels.Of(*value).text});
    }
    const auto chains = std::ranges::count_if(m_nodes, [](const JobNode& node) { return HasDialog(node); });
    const QLocale locale;
    m_facts.push_back({tr("Nodes"), locale.toString(qint64(m_nodes.size()))});
    m_facts.push_back({tr("Chains and panels"), locale.toString(qint64(chains))});
    m_facts.push_back({tr("Values"), locale.toString(m_values)});
    m_facts.push_back({tr("Values that differ from their default"), locale.toString(m_changed)});
    if (m_options.onlyChanges)
        m_facts.push_back({tr("Shown"), tr("only values that differ from their default")});
    m_facts.push_back({tr("Printed"), locale.toString(QDateTime::currentDateTime(), QLocale::ShortFormat)});
}

} // namespace JOBEDIT
