#pragma once

#include <QObject>

class QWidget;

namespace JOBEDIT
{

class MainWindow;

/// The menu "View": the dialog's form, the panes and the way between them, colours and language.
class ViewActions : public QObject
{
    Q_OBJECT

public:
    explicit ViewActions(MainWindow& window);

    /// The panes in the order of F6: nodes, form switch, dialog, then all docks.
    int CurrentPane() const;
    void FocusPane(int pane);

private:
    void AddForms();
    void MovePane(int step);
    QList<QWidget*> Panes() const;

    MainWindow& m_window;
};

} // namespace JOBEDIT
