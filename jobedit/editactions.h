#pragma once

#include <QObject>

class QAction;

namespace JOBEDIT
{

class MainWindow;

/// Undo and redo in the Edit menu, named after the step that they concern, for the main window and the windows of
/// panels.
class EditActions : public QObject
{
    Q_OBJECT

public:
    explicit EditActions(MainWindow& window);

private:
    void Follow();

    MainWindow& m_window;
    QAction* m_undo;
    QAction* m_redo;
};

} // namespace JOBEDIT
