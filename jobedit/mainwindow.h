#pragma once

#include "application/errorhandler.h"
#include "chains.h"
#include "jobdocument.h"
#include "place.h"

#include <QMainWindow>

class QDockWidget;
class QMenu;
class QSplitter;

namespace JOBEDIT
{

class CompareActions;
class DialogPane;
class HintBar;
class MessageList;
class NodePane;
class RecoveryOffer;
class ViewActions;

/// The editor: the job's nodes at the left, the dialog of the selected node beside them, messages below.
///
/// An operation that would lose changes asks first; what fails is reported, and what was open stays.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(std::shared_ptr<const TKE::JobModel> model, QWidget* parent = nullptr);
    /// A window on a document that is in use already.
    explicit MainWindow(std::unique_ptr<JobDocument> document, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// For the window that comes after this one: the document outlives this window then.
    std::unique_ptr<JobDocument> TakeDocument();
    /// Shows what `other`, whose document this window has taken over, shows: place, messages, panes, the comparison.
    void TakeView(MainWindow& other);

    // All return whether it was done: not when the user cancelled, nor when it failed, which the user has been told
    // then.
    bool NewFromSample();
    bool OpenFile(const QString& fileName);
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& fileName);
    /// Tells a new user where to begin, unless that is not wanted any more.
    void OfferHint();

    JobDocument& Document() { return *m_document; }
    /// The menus, for the actions that stand in files of their own.
    QMenu* FileMenu() const { return m_fileMenu; }
    QMenu* EditMenu() const { return m_editMenu; }
    QMenu* NodeMenu() const { return m_nodeMenu; }
    QMenu* ViewMenu() const { return m_viewMenu; }
    QMenu* ToolsMenu() const { return m_toolsMenu; }
    NodePane& Nodes() { return *m_nodes; }
    DialogPane& Dialog() { return *m_dialog; }
    MessageList& Messages() { return *m_messages; }
    /// Brings the messages into view.
    void ShowMessages();
    /// Runs an operation of the document that may take long, with its progress shown. What `failed` makes of a failure
    /// counts; a cancelled operation is told in the status bar.
    bool Run(const QString& title, const std::function<bool(TKE::FileError&)>& operation,
             const std::function<bool(const TKE::FileError&)>& failed);
    /// Tells of a failure. False, for the caller to return.
    bool Fail(const QString& text, const TKE::FileError& error);
    RecoveryOffer& Recovery() { return *m_recovery; }
    CompareActions& Comparing() { return *m_compare; }
    QDockWidget* MessageDock() const { return m_messageDock; }
    Place GetPlace() const;
    /// What of the place the job has.
    void GoTo(const Place& place);

signals:
    /// "de", for example; empty: that of the system.
    void LanguageChosen(const QString& language);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void MakePanes();
    void FillFileMenu();
    void FillNodeMenu();

    void Slot_OnOpen();
    void Slot_OnReplaced();
    void Slot_OnNodesChanged();
    void Slot_OnNodeMoved(const QString& from, const QString& to);
    void Slot_OnFileNameChanged();
    void Slot_OnAbout();
    void FillPanelMenu();
    /// For the next time that this file is opened.
    void KeepPlace() const;

    void RestoreLayout();

    JobDocument* m_document;
    NodePane* m_nodes;
    DialogPane* m_dialog;
    MessageList* m_messages;
    HintBar* m_hint;
    QSplitter* m_splitter;
    QDockWidget* m_messageDock;
    QMenu* m_fileMenu;
    QMenu* m_editMenu;
    QMenu* m_nodeMenu;
    QMenu* m_viewMenu;
    QMenu* m_toolsMenu;
    QMenu* m_helpMenu;
    QMenu* m_panelMenu = nullptr;
    CompareActions* m_compare = nullptr;
    RecoveryOffer* m_recovery = nullptr;
    QString m_movedPath; // of the current node, from its renaming until the nodes are shown anew
    ViewActions* m_viewActions = nullptr;
    TKE::ErrorHandler::Subscription m_reports;
};

} // namespace JOBEDIT
