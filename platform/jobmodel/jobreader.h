#pragma once

#include "jobmodel/joblayout.h"
#include "jobmodel/xmlreader.h"

#include <QMultiHash>
#include <functional>
#include <limits>

namespace TKE
{

/// Reads a job file: fills an empty tree with its nodes and values, and a layout with what is needed to write the file
/// again.
class JobReader final : public XmlReader
{
    Q_DECLARE_TR_FUNCTIONS(TKE::JobReader)

public:
    enum class Purpose
    {
        Load,  ///< the first error ends it
        Check, ///< goes on as long as the file is well-formed
    };

    /// `tree` and `layout` are empty. The rules of the nodes are made for `finalTree`, which gets the content of `tree`
    /// afterwards.
    JobReader(Tree& tree, Tree& finalTree, JobLayout& layout, const JobModel& model, const QString& shownName,
              Purpose purpose);

    void SetMostValues(size_t values) { m_mostValues = values; }
    using NodeVisitor = std::function<void(const QString& path, const NodeSpec& spec, const QString& parentPath)>;
    /// Told of each node that was begun.
    void SetVisitor(NodeVisitor visitor) { m_visitor = std::move(visitor); }
    /// What somebody else found wrong with values, by item path; reported where the file has them.
    void SetFindings(QMultiHash<QString, FileError> findings) { m_findings = std::move(findings); }

private:
    // A node whose end tag is yet to come.
    struct OpenNode
    {
        JobNode* node;
        std::vector<ValueBase*> values; // per entry of its template
        size_t next = 0;                // the entry that probably comes next
    };

    void OnStart(std::string_view name, Attributes attributes) override;
    void OnEnd(std::string_view name) override;
    void OnText(std::string_view utf8) override;
    void OnOther() override;
    void OnFinish() override;

    void StartRoot(std::string_view name, Attributes attributes);
    void StartNode(Attributes attributes);
    bool ReadSpec(Attributes attributes, NodeSpec& spec);
    void MakeRoom();
    void EndNode();
    void StartValue(Attributes attributes);
    void EndValue();
    bool IsAsWritten(std::string_view element, const NodeTemplate::Entry& entry, const ValueBase& value);
    void AddValuePiece(JobNode& node, ValueBase& value);
    void StartUnknown(std::string_view name);

    std::string_view TakeGap(qint64 end);
    QString PathOf(const QString& name = {}) const;

    Tree& m_tree;
    Tree& m_finalTree;
    JobLayout& m_layout;
    const JobModel& m_model;
    std::vector<OpenNode> m_open; // the root first
    qint64 m_taken = 0;           // the file is in the layout up to here
    size_t m_room = 0;            // values that the tree has room for
    size_t m_mostValues = std::numeric_limits<size_t>::max();
    int m_unknownDepth = 0;       // how deep in an unknown element
    NodeVisitor m_visitor;
    QMultiHash<QString, FileError> m_findings;

    // The value being read.
    bool m_inValue = false;
    size_t m_entry = 0;
    qint64 m_valueBegin = 0;
    qint64 m_tagEnd = 0;
    qint64 m_additionBegin = 0;
    std::string m_text;
    std::string m_additions;
    std::string m_element; // as the writer would put it, or its content
};

} // namespace TKE
