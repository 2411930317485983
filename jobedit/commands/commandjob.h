#pragma once

#include "command.h"
#include "jobmodel/jobfile.h"

namespace JOBEDIT
{

/// A job that a command works on, in a tree of its own.
///
/// Paths are those of the tree, or relative to a top node of the job. In patterns, "*" stands for any characters ("/"
/// too) and "?" for one.
class CommandJob
{
public:
    CommandJob();

    /// False when the file cannot be read; the call's error stream says why.
    bool Load(const QString& fileName, Call& call);
    /// A new job like the sample.
    bool LoadSample(Call& call);
    bool SaveAs(const QString& fileName, Call& call);

    TKE::Tree& GetTree() { return m_tree; }
    TKE::JobFile& GetFile() { return m_file; }

    TKE::ValueBase* FindValue(const QString& path) const;
    TKE::Node* FindNode(const QString& path) const;
    /// The value of that path, or all that the pattern matches, in the order of the tree.
    std::vector<TKE::ValueBase*> FindValues(const QString& pattern) const;
    /// The job's own nodes that the pattern matches, each before those below it; empty: all.
    std::vector<const TKE::Node*> FindNodes(const QString& pattern) const;

    static bool IsPattern(const QString& text) { return text.contains(u'*') || text.contains(u'?'); }
    static bool Matches(QStringView pattern, QStringView text);
    /// All values at the node and below it.
    static void Collect(const TKE::Node& node, std::vector<TKE::ValueBase*>& values);

private:
    bool Told(bool good, const TKE::FileError& error, Call& call);
    void Loaded();
    void CollectNodes(const TKE::Node& node, bool below, std::vector<const TKE::Node*>& nodes) const;
    bool IsMatch(const QString& pattern, const QString& path) const;

    TKE::Tree m_tree;
    TKE::JobFile m_file{m_tree};
    QStringList m_tops; ///< paths of the top nodes, "/" at the end
};

} // namespace JOBEDIT
