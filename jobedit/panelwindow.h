#pragma once

#include "chains.h"
#include "value/valueobservingptr.h"

#include <QDialog>

namespace JOBEDIT
{

/// A window of its own for one direct panel of a node. Deletes itself when it is closed.
class PanelWindow : public QDialog
{
    Q_OBJECT

public:
    PanelWindow(const JobNode& node, const DirectPanel& panel, QWidget* parent);

    /// Whether the values that it was opened for are still there.
    bool IsAlive() const;
    /// Shows the same panel at the same place in the language of now.
    void MakeAgain(QWidget* parent) const;

private:
    const JobNode m_node;
    const DirectPanel& m_panel;
    TKE::ValueObservingPtr<TKE::ValueBase> m_value; // the first of the node; null: it had none
    bool m_hasValues = false;
};

} // namespace JOBEDIT
