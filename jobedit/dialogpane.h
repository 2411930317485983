#pragma once

#include "chains.h"

#include <QPointer>
#include <QWidget>
#include <optional>

class QLabel;
class QRadioButton;
class QScrollArea;
class QStackedWidget;
class QTabWidget;

namespace JOBEDIT
{

/// Shows the dialog of one node, in the form that is switched to; without a dialog, a line that says why.
class DialogPane : public QWidget
{
    Q_OBJECT

public:
    explicit DialogPane(QWidget* parent = nullptr);

    /// Null shows no node. The dialog so far goes; an edit under way in it is committed.
    void ShowNode(const JobNode* node);
    /// Null when there is none.
    QTabWidget* GetDialog() const { return m_dialog; }

    Form GetForm() const { return m_form; }
    void SetForm(Form form);

    /// Gives the keyboard to the switch, or to the dialog.
    void FocusSwitch();
    void FocusDialog();

signals:
    void FormChanged();
    /// Another dialog is shown.
    void DialogChanged();

private:
    void Rebuild();
    void RebuildOnTab();
    void ShowHint(const QString& text);

    std::optional<JobNode> m_node;
    Form m_form = Form::Job;
    QLabel* m_title;
    QLabel* m_path;
    QRadioButton* m_job;
    QRadioButton* m_standAlone;
    QStackedWidget* m_pages;
    QLabel* m_hint;
    QScrollArea* m_area;
    QPointer<QTabWidget> m_dialog;
};

/// Lets the editor that has the keyboard commit what has been typed, and gives the keyboard back to it.
void CommitPendingEdit();

} // namespace JOBEDIT
