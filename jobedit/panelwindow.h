#pragma once

#include "chains.h"

#include <QDialog>

namespace JOBEDIT
{

/// A window of its own for one direct panel of a node. Deletes itself when it is closed.
class PanelWindow : public QDialog
{
    Q_OBJECT

public:
    PanelWindow(const JobNode& node, const DirectPanel& panel, QWidget* parent);

    /// Of the node.
    const QString& GetPath() const { return m_path; }

private:
    QString m_path;
};

} // namespace JOBEDIT
