#pragma once

#include <QObject>

class QAction;
class QTabWidget;

namespace JOBEDIT
{

class MainWindow;

/// Marks the changed fields of every dialog and panel window of the editor while the entry of the View menu is checked;
/// tool tips then say what the marks show.
class FieldMarks : public QObject
{
    Q_OBJECT

public:
    explicit FieldMarks(MainWindow& window);

    QAction* GetAction() const { return m_action; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Mark(QTabWidget* dialog);
    void Slot_OnToggled(bool on);
    bool ShowToolTip(QWidget& widget, const QPoint& position) const;

    MainWindow& m_window;
    QAction* m_action;
};

} // namespace JOBEDIT
