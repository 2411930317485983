#pragma once

#include "common.h"
#include "jobedit/chains.h"
#include "jobedit/dialogpane.h"
#include "jobedit/edithistory.h"
#include "jobedit/mainwindow.h"
#include "jobedit/messagelist.h"
#include "jobedit/nodepane.h"
#include "keys/keys.h"

#include <QtWidgets>
#include <set>

/// The catalogues stand in a static library.
inline void InitCatalogues()
{
    Q_INIT_RESOURCE(ipcparam_translations);
}

/// A main window with the sample job, driven by keys and mouse.
namespace EditorTest
{

using namespace JOBEDIT;
using namespace TKE;

inline const QString tunerPath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/");
inline const QString voicePath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/");
inline const QString frequencyPath = tunerPath + Keys::TUNER_HF_NB_FREQUENCY;

/// Turns the wheel at this place of the widget.
inline void TurnWheel(QWidget& widget, QPoint place, int steps, Qt::KeyboardModifiers modifiers = {})
{
    QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, 120 * steps}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

/// Does this again and again while a modal dialog of this class is up.
class Lookout : public QTimer
{
public:
    explicit Lookout(const std::function<void(QDialog&)>& act, const char* className = "QDialog")
    {
        callOnTimeout(
            [act, className]
            {
                auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                if (dialog && dialog->inherits(className))
                    act(*dialog);
            });
        start(10);
    }
};

/// Does this with the next one.
class Next : public Lookout
{
public:
    explicit Next(const std::function<void(QDialog&)>& act, const char* className = "QDialog")
        : Lookout(
              [this, act](QDialog& dialog)
              {
                  stop();
                  const QPointer guard(&dialog);
                  act(dialog);
                  if (guard && QTest::currentTestFailed())
                      guard->reject(); // the test goes on
              },
              className)
    {
    }
    bool HasActed() const { return !isActive(); }
};

/// Presses these buttons of the next message boxes, one of each, and keeps what the boxes said.
class Answer : public Lookout
{
public:
    explicit Answer(const QStringList& buttons)
        : Lookout([this](QDialog& dialog) { Press(static_cast<QMessageBox&>(dialog)); }, "QMessageBox")
        , m_buttons(buttons)
    {
    }
    bool WasAsked() const { return !m_text.isEmpty(); }
    const QString& GetText() const { return m_text; }

private:
    void Press(QMessageBox& box)
    {
        if (m_buttons.isEmpty())
            return;
        m_text += box.text() + '\n' + box.informativeText() + '\n' + box.detailedText() + '\n';
        const QString wanted = m_buttons.takeFirst();
        for (QAbstractButton* button : box.buttons())
            if (button->text().remove('&') == wanted)
                return button->click();
        box.reject();
        qWarning("There is no button %s.", qPrintable(wanted));
    }

    QStringList m_buttons;
    QString m_text;
};

/// Whether this comes out true and has asked meanwhile, which these buttons answer.
inline bool Asks(const QStringList& buttons, const std::function<bool()>& act)
{
    const Answer answer(buttons);
    return act() && answer.WasAsked();
}

/// Every row of the model, from top to bottom, those of a branch right below it.
inline QModelIndexList AllRows(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QModelIndexList all;
    for (int row = 0; row < model.rowCount(parent); ++row)
        all << model.index(row, 0, parent) << AllRows(model, model.index(row, 0, parent));
    return all;
}

class Editor
{
public:
    Editor()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("The window does not come up.");
    }

    MainWindow window{JobModel::Load()};

    QTabWidget* Dialog() { return window.Dialog().GetDialog(); }
    const QString& CurrentPath() { return window.Nodes().GetCurrentNode()->path; }
    EditHistory& History() { return window.Document().History(); }
    QByteArray Bytes() { return window.Document().File().ToUtf8(); }
    static ValueBase* Value(const QString& path) { return Tree::Instance()->FindValue(path); }
    static QString Stored(const QString& path)
    {
        const ValueBase* value = Value(path);
        return value ? value->GetStoredText() : QStringLiteral("gone");
    }

    /// The widget of the dialog of this node that goes by this object name, on the tab that is shown for it.
    template <class Widget = QWidget> Widget* Find(const QString& node, const QString& name)
    {
        if (!window.Nodes().GetCurrentNode() || window.Nodes().GetCurrentNode()->path != node)
            window.Nodes().SelectNode(node);
        QTabWidget* dialog = Dialog();
        for (int tab = 0; dialog && tab < dialog->count(); ++tab)
            if (auto* found = dialog->widget(tab)->findChild<Widget*>(name))
            {
                dialog->setCurrentIndex(tab);
                found->setFocus();
                return found;
            }
        qWarning("There is no %s at %s.", qPrintable(name), qPrintable(node));
        return nullptr;
    }

    template <class Widget> Widget* FirstNamed(const QString& name)
    {
        return FirstWhere<Widget>([&](Widget& each) { return each.objectName() == name; });
    }
    /// The first widget on the tab of any dialog that can be seen and used and is as wanted.
    template <class Widget> Widget* FirstWhere(const std::function<bool(Widget&)>& isWanted)
    {
        const auto nodes = window.Nodes().GetNodes();
        for (const JobNode& node : nodes)
        {
            window.Nodes().SelectNode(node.path);
            QTabWidget* dialog = Dialog();
            for (int tab = 0; dialog && tab < dialog->count(); ++tab)
            {
                dialog->setCurrentIndex(tab);
                QCoreApplication::processEvents();
                for (auto* widget : dialog->currentWidget()->findChildren<Widget*>())
                    if (widget->isEnabled() && !widget->visibleRegion().isEmpty() && isWanted(*widget))
                        return widget;
            }
        }
        return nullptr;
    }

    QLineEdit* FrequencyField()
    {
        QWidget* frequency = Find(tunerPath, Keys::TUNER_HF_NB_FREQUENCY);
        return frequency ? frequency->findChild<QLineEdit*>() : nullptr;
    }
    /// Types into the field and does not leave it.
    void TypeFrequency(const QString& text)
    {
        QLineEdit* field = FrequencyField();
        QVERIFY(field);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }
    /// The action of a menu or of a context menu that has this text, mnemonic aside.
    QAction* Action(const QString& text)
    {
        for (QMenu* menu : window.findChildren<QMenu*>())
            emit menu->aboutToShow();
        for (QAction* action : window.findChildren<QAction*>())
            if (action->text().remove('&') == text)
                return action;
        qWarning("There is no action %s.", qPrintable(text));
        return nullptr;
    }
    /// As keys reach the window, by way of its shortcuts.
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &window, key, modifiers);
    }
};

/// Settings and files of a test, away from those of the user. It leaves an empty tree.
class Surroundings
{
public:
    explicit Surroundings(const QString& application = "jobedit")
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName(application);
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale::C);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
    }
    ~Surroundings() { Tree::Instance()->Clear(); }
    QString File(const QString& name) const { return m_directory.filePath(name); }

private:
    QTemporaryDir m_directory;
};

/// A test whose cases have surroundings and an editor with the sample job of their own.
class DeskTest : public QObject
{
protected:
    void Begin(const QString& application = "jobedit")
    {
        m_place.emplace(application);
        m_desk.emplace();
        QTest::keyRelease(&Window(), Qt::Key_Control); // the case before may have left it held
        QVERIFY(Window().NewFromSample());
    }
    void End()
    {
        m_desk.reset();
        m_place.reset();
        m_faults.clear();
    }
    MainWindow& Window() { return m_desk->window; }
    QTabWidget* Dialog() { return m_desk->Dialog(); }
    EditHistory& History() { return m_desk->History(); }
    QString File(const QString& name = "a.job.xml") const { return m_place->File(name); }
    static ValueBase* Value(const QString& path) { return Editor::Value(path); }
    static QString Stored(const QString& path) { return Editor::Stored(path); }
    static void Set(const QString& path, const QString& stored)
    {
        QVERIFY2(Value(path) && Value(path)->SetStoredText(stored), qPrintable(path + ": " + stored));
    }

    /// Fails when there are faults, and prints all.
    void Verdict()
    {
        m_faults.removeDuplicates();
        for (const QString& fault : m_faults)
            qWarning("%s", qPrintable(fault));
        QVERIFY(m_faults.isEmpty());
    }

    std::optional<Surroundings> m_place;
    std::optional<Editor> m_desk;
    QStringList m_faults;
};

/// Its class and the names above it.
inline QString Describe(const QWidget& widget)
{
    QStringList names{QString(widget.metaObject()->className()).section(':', -1)};
    for (const QWidget* part = &widget; part; part = part->parentWidget())
        if (!part->objectName().isEmpty() && !part->objectName().startsWith("qt_"))
            names.insert(1, part->objectName());
    return names.join('/');
}

enum class Opened
{
    JobForm,
    StandAloneForm,
    Panels,
};

/// Each dialog of each kind of node once, tab by tab.
inline void ForEachTab(const std::vector<JobNode>& nodes, Opened opened,
                       const std::function<void(const QString& where, QWidget& page)>& visit)
{
    std::set<QString> seen;
    for (const JobNode& node : nodes)
    {
        if (!seen.insert(node.type + QString::number(int(node.band))).second)
            continue;
        const Form form = opened == Opened::JobForm ? Form::Job : Form::StandAlone;
        const std::unique_ptr<QTabWidget> dialog = opened == Opened::Panels
                                                       ? MakePanels(node, FindDirectPanels(node), nullptr)
                                                       : MakeDialog(node, form, nullptr);
        if (!dialog || dialog->count() == 0)
            continue;
        dialog->resize(dialog->sizeHint());
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        for (int tab = 0; tab < dialog->count(); ++tab)
        {
            dialog->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            visit(node.type + '/' + dialog->tabText(tab), *dialog->currentWidget());
        }
    }
}

} // namespace EditorTest

Q_DECLARE_METATYPE(EditorTest::Opened)
