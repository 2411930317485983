#pragma once

#include "jobmodel/joblayout.h"
#include "value/tree.h"

#include <QCoreApplication>

namespace TKE
{

/// A node that was taken out of a job, with all below it: what puts it back as it was.
struct TakenNode
{
    struct Content
    {
        quint32 entry; ///< of the node's template
        bool isExplicit;
        std::string stored;
    };
    struct Heir
    {
        QString path; ///< of the node that writes a value in the taken node's place
        quint32 entry;
    };

    std::unique_ptr<JobNode> node;
    QString parentPath;
    size_t slot = 0;                            ///< place among the nodes of the parent
    std::vector<std::vector<Content>> contents; ///< of each node, those above before those below
    std::vector<Heir> heirs;
};

/// The operations that add, take, rename and copy nodes of a job, in its layout and in the tree. The journal hears
/// nothing of the values that come and go. Where an operation fails, `reason` says why, and nothing has changed.
///
/// Who hears of values that go, or of the states that the rules of new nodes give to values of other nodes, may change
/// the job, down to another one in its place. So an operation tells when all is done; a node that did not live to see
/// that counts as a failure. Renaming tells half-way: what was renamed comes back only where the job still has a place
/// for it.
class JobStructure
{
    Q_DECLARE_TR_FUNCTIONS(TKE::JobStructure)

public:
    JobStructure(Tree& tree, std::shared_ptr<JobLayout> layout)
        : m_tree(tree), m_held(std::move(layout)), m_layout(*m_held)
    {
    }

    Node* Add(QStringView parentPath, const NodeSpec& spec, const JobModel& model, QString* reason);
    std::shared_ptr<TakenNode> Take(QStringView path, QString* reason);
    bool PutBack(TakenNode& taken, QString* reason);
    /// Bytes and contents stay; the name that the file gave comes back with its bytes.
    bool Rename(QStringView path, const QString& name, QString* reason);
    /// Puts a copy with this name behind the node.
    Node* Duplicate(QStringView path, const QString& name, QString* reason);

    JobNode* Find(QStringView path) const;
    /// Of the node at `path`, of all below it and of those that are no part of it but lie below it: each before the
    /// one that it lies below.
    QStringList PathsBelow(QStringView path) const;

private:
    using Contents = std::vector<std::vector<TakenNode::Content>>;

    /// The path of `node` under another name; empty with the reason when it cannot have it.
    QString PathFor(const JobNode& node, const QString& name, NodeSpec& spec, QString* reason) const;
    bool HasStranger(const JobNode& node) const;
    void Read(const JobNode& node, Contents& contents) const;
    void Make(JobNode& node, const Contents& contents, size_t& next);
    Node* Begin(JobNode& node, QString* reason);
    void Bequeath(const JobNode& node, std::vector<TakenNode::Heir>& heirs);
    void Adopt(JobNode& node);

    Tree& m_tree;
    std::shared_ptr<JobLayout> m_held;
    JobLayout& m_layout;
};

} // namespace TKE
