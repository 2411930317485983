#pragma once

#include <QObject>

class QAction;

namespace JOBEDIT
{

class MainWindow;

/// Node > Add, Duplicate, Rename and Remove, with Ins, F2 and Del in the tree of the nodes.
class NodeActions : public QObject
{
    Q_OBJECT

public:
    explicit NodeActions(MainWindow& window);

    void Add();
    void Duplicate();
    void Rename();
    void Remove();

private:
    QAction* AddAction(const QString& text, const QKeySequence& key, void (NodeActions::*operation)());
    void EnableActions();
    void Fail(const QString& text, const QString& reason);

    MainWindow& m_window;
    QAction* m_duplicate;
    QAction* m_rename;
    QAction* m_remove;
};

} // namespace JOBEDIT
