#pragma once

#include <QAction>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QKeyEvent;
class QWidget;

namespace JOBEDIT
{

class EditHistory;

/// Tells the history where one act of the user ends and the next begins, by looking at all events of the application.
///
/// A mouse button is one act from press to release, a key with its repetitions is one, and so are turns of the wheel
/// over one field that follow each other soon. In the fields of the dialogs, the keys of undo and redo are for the job
/// and not for the text that is typed.
class UserActs : public QObject
{
    Q_OBJECT

public:
    explicit UserActs(EditHistory& history, QObject* parent = nullptr);

    /// An action whose shortcut goes before what a field of a dialog makes of that key.
    void AddJobAction(QAction* action) { m_actions.append(action); }

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool IsForJob(const QWidget& receiver, const QKeyEvent& event) const;
    void OnKeyPress(QWidget& receiver, const QKeyEvent& event);
    void OnWheel(QWidget& receiver);

    EditHistory& m_history;
    QList<QPointer<QAction>> m_actions; // which go with their menus, somewhat earlier
    QString m_field; // path of the value whose field had the key or the wheel
    int m_key = 0;   // 0: it was the wheel
    QElapsedTimer m_sinceWheel;
};

} // namespace JOBEDIT
