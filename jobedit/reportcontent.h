#pragma once

#include "jobnode.h"
#include "reportlabels.h"

#include <QCoreApplication>
#include <QStringList>
#include <functional>
#include <vector>

namespace TKE
{
class Node;
}

namespace JOBEDIT
{

class JobDocument;

/// Called between sections with the rows done and all; false cancels.
using ReportProgress = std::function<bool(qint64 done, qint64 all)>;

struct ReportOptions
{
    bool onlyChanges = false; ///< only values that differ from their default
};

/// What a printed job says, independent of the form: a title with facts, and sections of rows. Rows are made section by
/// section, so that a large job needs little room.
class ReportContent
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ReportContent)

public:
    struct Fact
    {
        QString name;
        QString text;
    };
    /// A node with values.
    struct Section
    {
        QString path{};
        QString name{};  ///< with those of nodes above it that have no section
        QString type{};  ///< type text
        QString title{}; ///< of the chain's dialog; empty where there is none
        int depth = 0;   ///< sections above it
        qint64 values = 0;
        qint64 changed = 0;
    };
    struct Row
    {
        QString label;
        QString value;
        QString unit;
        QString key;
        QString defaultText; ///< as shown; empty unless changed
        bool isChanged;
    };

    /// Looks through the job, and tells that nothing is done yet now and then; cancelled, it has seen a part only.
    ReportContent(const JobDocument& document, const ReportOptions& options, const ReportProgress& progress);
    bool WasCancelled() const { return m_isCancelled; }

    const ReportOptions& GetOptions() const { return m_options; }
    const QString& GetTitle() const { return m_title; }
    const std::vector<Fact>& GetFacts() const { return m_facts; }
    /// Those that have a row.
    const std::vector<Section>& GetSections() const { return m_sections; }
    /// Rows of all sections together.
    qint64 RowCount() const { return m_rowCount; }
    /// Empty when the node has gone meanwhile.
    std::vector<Row> RowsOf(const Section& section);

private:
    using Visit = std::function<void(const TKE::ValueBase& value, const QString& below)>;
    /// Where a new section would stand: its depth, and the names of the nodes without a section that it hangs from.
    struct Place
    {
        int depth = 0;
        bool isBelowOwn = false;
        QString prefix{};
    };
    void Collect(const TKE::Node& node, Place place);
    /// Calls for all values at the node and at nodes below it that are no nodes of the job.
    void ForValues(const TKE::Node& node, const QString& below, const Visit& visit) const;
    void CollectFacts(const JobDocument& document);

    ReportOptions m_options;
    ReportLabels m_labels;
    QString m_title;
    QHash<QString, int> m_byPath; // index of the job's nodes
    std::vector<JobNode> m_nodes;
    std::vector<Fact> m_facts;
    std::vector<Section> m_sections;
    const ReportProgress& m_progress;
    bool m_isCancelled = false;
    qint64 m_rowCount = 0;
    qint64 m_values = 0;
    qint64 m_changed = 0;
};

} // namespace JOBEDIT
