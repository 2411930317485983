#pragma once

#include "jobmodel/jobmodel.h"
#include "jobmodel/nodespec.h"

#include <absl/container/flat_hash_set.h>
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
        size_t size = 0; ///< how many values of the template sit in it
    };
    struct Entry
    {
        std::string fileName;    ///< the path below the node, as files name it
        std::string defaultText; ///< in stored form
        const ValueDescriptor* descriptor;
        const QString* name; ///< the last segment of its path in the tree, which keeps it
        quint32 home;        ///< index of its Home
        quint32 slot;        ///< how many values of the template its home has before
        bool startsDisabled;
        bool isPlain; ///< the file name stands in files as it is, without escapes
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
    NodeTemplate(const NodeTemplate&) = delete;
    NodeTemplate& operator=(const NodeTemplate&) = delete;

    const std::vector<Home>& GetHomes() const { return m_homes; }
    const std::vector<Entry>& GetEntries() const { return m_entries; }
    const std::vector<Rule>& GetRules() const { return m_rules; }
    const QStringList& GetUnknownGroups() const { return m_unknownGroups; }
    /// The index of the entry with that file name, or -1. Entries usually follow one another: `hint` is tried first.
    qsizetype FindEntry(std::string_view fileName, size_t hint = 0) const;

private:
    using Parameter = JOBXMLGENERATOR::Parameter;

    // The index of an entry stands for its file name.
    static std::string_view NameOf(const std::vector<Entry>& entries, quint32 i) { return entries[i].fileName; }
    static std::string_view NameOf(const std::vector<Entry>&, std::string_view name) { return name; }
    struct NameHash
    {
        using is_transparent = void;
        const std::vector<Entry>* entries;
        template <class Key> size_t operator()(const Key& key) const
        {
            return std::hash<std::string_view>()(NameOf(*entries, key));
        }
    };
    struct NameEqual
    {
        using is_transparent = void;
        const std::vector<Entry>* entries;
        template <class Left, class Right> bool operator()(const Left& left, const Right& right) const
        {
            return NameOf(*entries, left) == NameOf(*entries, right);
        }
    };

    void AddGroup(const ParameterGroup& group, const NodeSpec& spec);
    void AddParameter(const Parameter& parameter, int channel, const NodeSpec& spec);
    void AddRule(const ParameterRule& rule, const ParameterGroup& group, int channel, bool dataForm);
    quint32 HomeOf(QStringView path, bool absolute);

    std::vector<Home> m_homes;
    std::vector<Entry> m_entries;
    absl::flat_hash_set<quint32, NameHash, NameEqual> m_byFileName{0, NameHash{&m_entries}, NameEqual{&m_entries}};
    std::vector<Rule> m_rules;
    QStringList m_unknownGroups;
};

} // namespace TKE
