#pragma once

#include "jobmodel/noderules.h"
#include "jobmodel/nodespec.h"
#include "jobmodel/nodetemplate.h"

#include <QHash>
#include <memory>
#include <string>
#include <vector>

namespace TKE
{

/// The element of a value that stands in its file otherwise than the writer would put it.
struct KeptValue
{
    quint32 entry;         ///< of the node's template
    quint32 tagEnd;        ///< offset in `source` of the end of the start tag
    quint32 contentEnd;    ///< ... of the begin of the end tag
    std::string lead;      ///< blanks before the element
    std::string source;    ///< the element
    std::string loaded;    ///< the content that it stands for, in stored form
    std::string additions; ///< comments and unknown elements within, which stay when the content changes
};

/// One node element of a job file: what its source was, so that what nobody edits stays as it is.
struct JobNode
{
    /// A piece of the node's content, in the order of the file.
    struct Piece
    {
        enum Kind : quint32
        {
            Value, ///< index of an entry of the template; written in the writer's form, with valueLead before
            Kept,  ///< index into `kept`
            Text,  ///< index into `texts`
            Node,  ///< index into `nodes`
        };
        static constexpr quint32 maxIndex = (1U << 30) - 1; // of elements of at least four bytes: out of a file's reach
        Piece(Kind itsKind, size_t itsIndex) : kind(itsKind), index(itsIndex & maxIndex) {}

        Kind kind : 2;
        quint32 index : 30;
    };

    NodeSpec spec;
    QString path; ///< with a "/" at the end; empty for the root
    std::shared_ptr<const NodeTemplate> values;
    JobNode* parent = nullptr;

    std::string lead; ///< blanks before the element
    std::string startTag;
    std::string fileTag; ///< of a renamed node: the start tag under the name before, `fileName`
    QString fileName;
    std::string valueLead;  ///< blanks before the elements of values, as before the first one
    bool hasValues = false; ///< whether the content names any
    std::string endLead;    ///< blanks before the end tag
    std::string endTag;     ///< empty when the start tag closes the element
    std::vector<Piece> content;
    std::vector<KeptValue> kept;
    std::vector<std::string> texts;
    std::vector<std::unique_ptr<JobNode>> nodes; ///< null: removed
    std::vector<quint32> borrowed;               ///< entries whose values other nodes brought, which write them

    std::unique_ptr<NodeRules> rules;

    /// Makes the node and its values in `tree`, with defaults and start states. `found` gets the value of each entry.
    TKE::Node* Create(Tree& tree, std::vector<ValueBase*>& found);
    /// The value of each entry, as far as `tree` still has it; false when the node is gone.
    bool FindValues(const Tree& tree, std::vector<ValueBase*>& found) const;
    /// The blanks before a new element in this node, and those before an end tag that the node had no need of so far.
    std::string NewLead() const;
    std::string OwnLead() const;
    /// From now on the states of the values, here and below, follow nothing.
    void EndRules();
    void Add(Piece::Kind kind, size_t index) { content.emplace_back(kind, index); }
};

/// A job as its file holds it.
struct JobLayout
{
    JobLayout() { root.startTag = emptyJob; }

    JobNode root;            ///< its start tag holds all that comes before, too
    std::string tail = "\n"; ///< what follows the root element
    QHash<QString, JobNode*> byPath;
    bool isReplaced = false; ///< by that of another file: no more of this one is in the tree

    /// The template of nodes like `spec`; made once.
    std::shared_ptr<const NodeTemplate> TemplateFor(const JobModel& model, const NodeSpec& spec);
    /// Ends all rules of `layout` now and deletes the rest of it a little at a time.
    static void DisposeLater(std::shared_ptr<JobLayout> layout);
    /// Takes `node` and all below it out of byPath.
    void Forget(const JobNode& node);

private:
    static constexpr std::string_view emptyJob = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Job version=\"1\"/>";

    QHash<QString, std::shared_ptr<const NodeTemplate>> m_templates;
};

} // namespace TKE
