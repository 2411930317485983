#pragma once

#include "nodetreemodel.h"

#include <QWidget>

class QLineEdit;
class QTreeView;

namespace JOBEDIT
{

/// The job's nodes with a filter above them. A filter keeps the nodes whose name or type holds its text, with all above
/// and below them; the current node stays the current one even where the filter hides it, and its dialog stays open.
class NodePane : public QWidget
{
    Q_OBJECT

public:
    explicit NodePane(QWidget* parent = nullptr);

    /// Shows these nodes and selects the first that has a dialog.
    void SetNodes(std::vector<JobNode> nodes);
    /// Shows these nodes in place of those so far, and selects the one at `path` or the nearest that is still there.
    /// What was collapsed stays so. CurrentChanged follows in any case, since values may have been made anew.
    void UpdateNodes(std::vector<JobNode> nodes, const QString& path);
    const std::vector<JobNode>& GetNodes() const { return m_model->GetNodes(); }
    /// Null when none is selected.
    const JobNode* GetCurrentNode() const;
    /// In the order of the tree; the current one when no other is selected with it.
    std::vector<JobNode> GetSelectedNodes() const;
    /// False when the job has no such node. A filter that hides the node is dropped.
    bool SelectNode(const QString& path);

    QTreeView* View() const { return m_view; }
    QLineEdit* Filter() const { return m_filter; }

signals:
    void CurrentChanged();
    /// The node is to be edited: Return was pressed or it was double-clicked.
    void Activated();
    void MenuRequested(const QPoint& globalPosition);

private:
    void Expand();
    bool IsExpandedByItself(const JobNode& node) const { return m_isAllExpanded || node.parent < 0; }
    void ApplyFilter(const QString& text);
    void Slot_OnCurrentRowChanged(const QModelIndex& current);
    void Fill(std::vector<JobNode> nodes);
    /// The first that is left of those from `path` on, or the last one before it.
    void SelectNearest(const std::vector<JobNode>& before, const QString& path);

    NodeTreeModel* m_model;
    QLineEdit* m_filter;
    QTreeView* m_view;
    int m_current = -1; // number of the current node
    bool m_isAllExpanded = false;
};

} // namespace JOBEDIT
