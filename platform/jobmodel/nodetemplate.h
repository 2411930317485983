#pragma once

#include "jobmodel/jobmodel.h"
#include "jobmodel/nodespec.h"

#include <absl/container/flat_hash_map.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace TKE
{

/// The values that a node has by its groups: shared by all nodes with the same groups, count, form and band. The paths
/// are those that the key manager gave when the template was made.
class NodeTemplate
{
public:
    /// A node that values sit in.
    struct Home
    {
        QString path; ///< from the node down, with a "/" at the end; empty: the node itself. Of an absolute one the
                      ///< whole path.
        bool absolute;
    };
    struct Entry
    {
        std::string fileName;    ///< the path below the node, as files name it
        std::string startTag;    ///< the start tag of its element
        std::string defaultText; ///< in stored form
        const ValueDescriptor* descriptor;
        QString name; ///< the last segment of its path in the tree
        quint32 home; ///< index of its Home
        quint32 slot; ///< how many values of the template its home has before
        bool startsDisabled;
    };
    /// Target and source are indices of entries.
    struct Rule
    {
        quint32 target;
        quint32 source;
        std::vector<int> keys;
    };

    /// `model` outlives the template.
    NodeTemplate(const JobModel& model, const NodeSpec& spec);

    const std::vector<Home>& GetHomes() const { return m_homes; }
    const std::vector<Entry>& GetEntries() const { return m_entries; }
    const std::vector<Rule>& GetRules() const { return m_rules; }
    const QStringList& GetUnknownGroups() const { return m_unknownGroups; }
    /// The index of the entry with that file name, or -1. Entries usually follow one another: `hint` is tried first.
    qsizetype FindEntry(std::string_view fileName, size_t hint = 0) const;

private:
    using Parameter = JOBXMLGENERATOR::Parameter;

    void AddGroup(const ParameterGroup& group, const NodeSpec& spec);
    void AddParameter(const Parameter& parameter, int channel, const NodeSpec& spec);
    void AddRule(const ParameterRule& rule, const ParameterGroup& group, int channel);
    quint32 HomeOf(QStringView path, bool absolute);

    std::vector<Home> m_homes;
    std::vector<quint32> m_homeSizes;
    std::vector<Entry> m_entries;
    absl::flat_hash_map<std::string, quint32> m_byFileName;
    std::vector<Rule> m_rules;
    QStringList m_unknownGroups;
};

} // namespace TKE
