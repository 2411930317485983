#pragma once

#include "common.h"
#include "jobedit/dialogpane.h"
#include "jobedit/edithistory.h"
#include "jobedit/mainwindow.h"
#include "jobedit/messagelist.h"
#include "jobedit/nodepane.h"
#include "keys/keys.h"

#include <QtWidgets>

/// A main window with the sample job, driven by keys and mouse.
namespace EditorTest
{

using namespace JOBEDIT;
using namespace TKE;

inline const QString tunerPath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/");
inline const QString voicePath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/");
inline const QString frequencyPath = tunerPath + Keys::TUNER_HF_NB_FREQUENCY;

/// Does this with the next modal dialog.
class Next : public QObject
{
public:
    explicit Next(std::function<void(QDialog&)> act) : m_act(std::move(act))
    {
        m_timer.callOnTimeout(this, [this] { Look(); });
        m_timer.start(10);
    }
    bool HasActed() const { return !m_timer.isActive(); }

private:
    void Look()
    {
        const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_act(*dialog);
        if (dialog && QTest::currentTestFailed())
            dialog->reject(); // the test goes on
    }

    std::function<void(QDialog&)> m_act;
    QTimer m_timer;
};

/// Presses these buttons of the next message boxes, one of each, and keeps what the boxes said.
class Answer : public QObject
{
public:
    explicit Answer(const QStringList& buttons) : m_buttons(buttons)
    {
        m_timer.callOnTimeout(this, [this] { Look(); });
        m_timer.start(10);
    }
    bool WasAsked() const { return !m_text.isEmpty(); }
    const QString& GetText() const { return m_text; }

private:
    void Look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || m_buttons.isEmpty())
            return;
        m_text += box->text() + '\n' + box->informativeText() + '\n' + box->detailedText() + '\n';
        const QString wanted = m_buttons.takeFirst();
        for (QAbstractButton* button : box->buttons())
            if (button->text().remove('&') == wanted)
                return button->click();
        box->reject();
        qWarning("There is no button %s.", qPrintable(wanted));
    }

    QStringList m_buttons;
    QString m_text;
    QTimer m_timer;
};

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
        QTabWidget* dialog = window.Dialog().GetDialog();
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

    /// The first widget on the tab of any dialog that can be seen and used and is as wanted.
    template <class Widget> Widget* FirstWhere(const std::function<bool(Widget&)>& isWanted)
    {
        const auto nodes = window.Nodes().GetNodes();
        for (const JobNode& node : nodes)
        {
            window.Nodes().SelectNode(node.path);
            QTabWidget* dialog = window.Dialog().GetDialog();
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
    Surroundings()
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale::C);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
    }
    ~Surroundings() { Tree::Instance()->Clear(); }
    QString File(const QString& name) const { return m_directory.filePath(name); }

private:
    QTemporaryDir m_directory;
};

/// An editor with the sample job.
class Desk : public Surroundings, public Editor
{
public:
    Desk()
    {
        if (!window.NewFromSample())
            qFatal("The sample cannot be loaded.");
    }
};

} // namespace EditorTest
