#pragma once

#include "fieldindex.h"

#include <QFrame>
#include <QPointer>
#include <QTimer>

class QLabel;
class QLineEdit;
class QTreeView;

namespace JOBEDIT
{

class FindModel;
class MainWindow;

/// Finds fields of the job while one types, above the window's content: Up and Down choose, Return goes to the field,
/// Escape gives the keyboard back to where it was.
class FindBar : public QFrame
{
    Q_OBJECT

public:
    /// Puts itself into the window and its menu.
    explicit FindBar(MainWindow& window);

    void Open();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Search();
    void Summarize();
    void Go();
    void Leave();
    void Place();
    void Slot_OnFocusChanged(QWidget* before, QWidget* now);

    MainWindow& m_window;
    FieldIndex m_index;
    QTimer m_prepare; ///< makes the index while nothing else is to do
    FindModel* m_model;
    QLineEdit* m_text;
    QTreeView* m_hits;
    QLabel* m_summary;
    QPointer<QWidget> m_before;
    qsizetype m_limit = 0;
};

} // namespace JOBEDIT
