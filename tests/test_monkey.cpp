// A monkey at the editor: random keys, clicks, wheel, nodes, tabs, undo and all the rest, of a seed. Replayed and made
// longer by hand:
//   MONKEY_SEED=7 MONKEY_STEPS=20000 build/asan/tests/test_monkey

#include "editorfixture.h"
#include "ipcparam/excitergeneraldlg.h"
#include "jobedit/editor.h"
#include "jobedit/nodecopy.h"
#include "monkeylog.h"

#include <random>

using namespace JOBEDIT;

namespace
{

constexpr int stepsInTest = 150;
constexpr int stepsBetweenChecks = 75; // fewer than the history keeps

/// Answers whatever is modal or popped up, at random, since who opened it waits.
class Answerer : public QObject
{
public:
    explicit Answerer(unsigned seed) : m_random(seed) { Answer(); }
    void Answer()
    {
        QTimer::singleShot(5, this, &Answerer::Answer); // another each time: an answer may open the next question
        if (QWidget* popup = QApplication::activePopupWidget())
        {
            QWidget* focus = popup->focusWidget();
            constexpr std::array keys{Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Return, Qt::Key_Escape};
            QTest::keyClick(focus ? focus : popup, keys[m_random() % keys.size()]);
            return;
        }
        QPointer<QWidget> modal = QApplication::activeModalWidget();
        auto* dialog = qobject_cast<QDialog*>(modal.data());
        if (!dialog)
            return;
        if (qobject_cast<QFileDialog*>(dialog))
            return dialog->reject();
        const auto buttons = dialog->findChildren<QAbstractButton*>();
        if (qobject_cast<QMessageBox*>(dialog) && !buttons.isEmpty())
            return buttons[qsizetype(m_random() % size_t(buttons.size()))]->click();
        if (QWidget* focus = dialog->focusWidget())
            QTest::keyClick(focus, m_random() % 2 ? Qt::Key_A : Qt::Key_Tab);
        if (!modal || m_random() % 3 == 0)
            return;
        // By key: what its button does not allow cannot be accepted.
        QTest::keyClick(dialog, m_random() % 2 ? Qt::Key_Return : Qt::Key_Escape);
    }

private:
    std::mt19937 m_random;
};

class Monkey
{
public:
    Monkey(unsigned seed, Editor& editor, const QString& fileName)
        : m_random(seed), m_editor(editor), m_fileName(fileName)
    {
        QObject::connect(&Document(), &JobDocument::Replaced, &m_context, [this] { m_loaded = Bytes(); });
        m_loaded = Bytes();
    }

    void Step(int number)
    {
        struct Act
        {
            const char* name;
            size_t weight;
            void (Monkey::*run)();
        };
        static constexpr std::array acts{Act{"edit", 40, &Monkey::Edit},     Act{"structure", 10, &Monkey::Structure},
                                         Act{"values", 20, &Monkey::Values}, Act{"key", 40, &Monkey::Key},
                                         Act{"click", 25, &Monkey::Click},   Act{"wheel", 10, &Monkey::Wheel},
                                         Act{"node", 10, &Monkey::Node},     Act{"tab", 8, &Monkey::Tab},
                                         Act{"undo", 8, &Monkey::UndoSome},  Act{"redo", 5, &Monkey::Redo},
                                         Act{"dock", 3, &Monkey::Dock},      Act{"form", 3, &Monkey::SwitchForm},
                                         Act{"action", 8, &Monkey::Action},  Act{"save", 2, &Monkey::Save},
                                         Act{"reload", 1, &Monkey::Reload},  Act{"language", 1, &Monkey::Language}};
        std::vector<size_t> weights;
        std::ranges::transform(acts, std::back_inserter(weights), &Act::weight);
        const Act& act = acts[std::discrete_distribution<size_t>(weights.begin(), weights.end())(m_random)];
        m_number = number;
        MonkeyLog::Add(number, act.name);
        (this->*act.run)();
        QCoreApplication::processEvents();
        if (!Window().isVisible())
            Window().show();
    }

    /// What was done is taken back, made again and taken back, step by step to the byte.
    void CheckHistory()
    {
        MonkeyLog::Add(m_number, "everything undone and redone");
        Settle();
        EditHistory& history = Document().History();
        m_hasEdited |= Bytes() != m_loaded;
        QByteArrayList states;
        for (; history.CanUndo(); history.Undo())
            states << Bytes();
        QCOMPARE(Bytes(), m_loaded);
        while (history.CanRedo())
        {
            history.Redo();
            if (!states.isEmpty()) // what had been undone before is done now, too
                QCOMPARE(Bytes(), states.takeLast());
        }
        Undo(2000);
        QCOMPARE(Bytes(), m_loaded);
    }
    bool HasEdited() const { return m_hasEdited; }

private:
    MainWindow& Window() { return m_editor.Window(); }
    JobDocument& Document() { return Window().Document(); }
    QByteArray Bytes() { return Document().File().ToUtf8(); }
    size_t Below(size_t end) { return end ? m_random() % end : 0; }
    template <class List> auto Any(const List& list) { return list[decltype(list.size())(Below(size_t(list.size())))]; }
    void Note(const QString& text) { MonkeyLog::Add(m_number, "  " + text.toUtf8()); }

    // No popup, no dialog, nothing half typed.
    void Settle()
    {
        const auto isFree = [] { return !QApplication::activePopupWidget() && !QApplication::activeModalWidget(); };
        QVERIFY(QTest::qWaitFor(isFree, 20000));
        CommitPendingEdit();
        QCoreApplication::processEvents();
    }
    // Looking never writes, but for the one thing that is known to.
    template <class Look> void View(Look look)
    {
        Settle();
        const QByteArray before = Bytes();
        QStringList written;
        QObject listener;
        QObject::connect(&Document(), &JobDocument::ContentChanged, &listener,
                         [&](const TKE::ValueBase& value) { written << value.GetPathName(); });
        look();
        QCoreApplication::processEvents();
        if (Bytes() != before && !AreSwitchesOfExciter(written))
            qFatal("Looking has written: %s", qPrintable(written.join(", ")));
    }
    /// The general panel of an exciter, when it comes up, sets these above its node as the mode asks, whatever the user
    /// had made of them.
    bool AreSwitchesOfExciter(const QStringList& paths)
    {
        const JobNode* node = Window().Nodes().GetCurrentNode();
        const QTabWidget* dialog = Window().Dialog().GetDialog();
        if (!node || !dialog || !dialog->findChild<TKE::ExciterGeneralDlg*>())
            return false;
        using namespace TKE::Keys;
        QStringList switches;
        for (const auto& key :
             {ExciterAutostart, ExciterCheck, SingleChannelDetectorCheck, RasterDetectorCheck, SimulationCheck})
            switches << ParentPath(node->path) + key;
        return std::ranges::all_of(paths, [&](const QString& path) { return switches.contains(path); });
    }
    QWidget* AnyWidget()
    {
        QList<QWidget*> widgets;
        for (QWidget* widget : Window().findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && !widget->size().isEmpty())
                widgets << widget;
        QWidget* widget = widgets.isEmpty() ? &Window() : Any(widgets);
        Note(QString("%1 %2").arg(widget->metaObject()->className(), widget->objectName()));
        return widget;
    }
    QPoint AnyPointIn(const QWidget& widget)
    {
        return {int(Below(size_t(widget.width()))), int(Below(size_t(widget.height())))};
    }

    void Key()
    {
        constexpr std::array plain{Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                   Qt::Key_Right,  Qt::Key_PageUp,    Qt::Key_Home,  Qt::Key_End,    Qt::Key_Return,
                                   Qt::Key_Escape, Qt::Key_PageDown,  Qt::Key_Space, Qt::Key_Delete, Qt::Key_Insert,
                                   Qt::Key_Minus,  Qt::Key_Backspace, Qt::Key_Comma, Qt::Key_Period, Qt::Key_K,
                                   Qt::Key_M,      Qt::Key_E,         Qt::Key_Z,     Qt::Key_F2,     Qt::Key_F3,
                                   Qt::Key_F6,     Qt::Key_F7,        Qt::Key_Menu,  Qt::Key_0,      Qt::Key_1,
                                   Qt::Key_4,      Qt::Key_7,         Qt::Key_9};
        constexpr std::array withCtrl{Qt::Key_A,   Qt::Key_C,        Qt::Key_V, Qt::Key_X, Qt::Key_Z,
                                      Qt::Key_Y,   Qt::Key_F,        Qt::Key_S, Qt::Key_D, Qt::Key_L,
                                      Qt::Key_Tab, Qt::Key_PageDown, Qt::Key_1, Qt::Key_2};
        const bool ctrl = Below(4) == 0;
        const Qt::Key key = ctrl ? Any(withCtrl) : Any(plain);
        QWidget* focus = QApplication::activePopupWidget();
        focus = focus ? focus : QApplication::focusWidget();
        focus = focus ? focus : &Window();
        Note((ctrl ? "Ctrl " : "") + QKeySequence(key).toString() + " to " + focus->objectName());
        QTest::keyClick(focus, key, ctrl ? Qt::ControlModifier : Qt::NoModifier);
    }
    // A field of the dialog, as somebody who means it.
    void Edit()
    {
        QList<QWidget*> fields;
        const QTabWidget* dialog = Window().Dialog().GetDialog();
        for (QWidget* widget : dialog ? dialog->findChildren<QWidget*>() : QList<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
                fields << widget;
        if (fields.isEmpty())
            return;
        QPointer<QWidget> field = Any(fields);
        Note(QString("%1 %2").arg(field->metaObject()->className(), field->objectName()));
        field->setFocus();
        if (Below(3) == 0)
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        constexpr std::array keys{Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Space,  Qt::Key_1,     Qt::Key_7,
                                  Qt::Key_0,   Qt::Key_K,      Qt::Key_Period, Qt::Key_Minus, Qt::Key_Home,
                                  Qt::Key_Tab, Qt::Key_Return, Qt::Key_PageUp};
        for (size_t count = 1 + Below(4); field && count-- > 0;)
            QTest::keyClick(field, Any(keys));
    }
    // Some values of a node at once, seen or not, as a paste or a take-over does.
    void Values()
    {
        Settle();
        if (!Window().Nodes().GetNodes().empty())
            Write(Any(Window().Nodes().GetNodes()).path);
    }
    void Write(const QString& path)
    {
        Note(path);
        for (const auto& value : TKE::Tree::Instance()->FindNode(path)->GetValues())
            if (Below(4) == 0)
                value->SetStoredText(value->GetKind() == TKE::ValueKind::Bool ? (Below(2) ? "true" : "false")
                                                                              : QString::number(Below(3)));
    }
    void Structure()
    {
        Settle();
        if (Window().Nodes().GetNodes().empty())
            return;
        const JobNode node = Any(Window().Nodes().GetNodes());
        const QString name = "MONKEY " + QString::number(Below(30));
        const size_t what = Below(5);
        Note(QString::number(what) + ' ' + node.path);
        const QString path = node.path.chopped(1);
        QString reason;
        if (Below(2))
            Write(node.path);
        if (what == 0)
            Document().RemoveNode(path, &reason);
        else if (what == 1)
            Document().RenameNode(path, name, &reason);
        else if (what == 2)
            Document().AddNode(path, {.name = name, .type = "CS", .groups = {"G_TUNER_HF", "G_JOB"}}, &reason);
        else
            Document().DuplicateNode(path, name, &reason);
    }
    void Click()
    {
        QWidget* widget = AnyWidget();
        const QPoint point = AnyPointIn(*widget);
        const QPointer<QWidget> alive = widget;
        QTest::mouseClick(widget, Below(8) ? Qt::LeftButton : Qt::RightButton, {}, point);
        if (alive && Below(8) == 0)
            QTest::mouseDClick(widget, Qt::LeftButton, {}, point);
    }
    void Wheel()
    {
        QWidget* widget = AnyWidget();
        if (Below(2))
            widget->setFocus(); // it is deaf to the wheel otherwise
        EditorTest::TurnWheel(*widget, AnyPointIn(*widget), Below(2) ? 1 : -1);
    }
    void Node()
    {
        if (Window().Nodes().GetNodes().empty())
            return;
        const QString path = Any(Window().Nodes().GetNodes()).path;
        Note(path);
        View([&] { Window().Nodes().SelectNode(path); });
    }
    void Tab()
    {
        View(
            [this]
            {
                QTabWidget* dialog = Window().Dialog().GetDialog();
                if (dialog && dialog->count() > 0)
                    dialog->setCurrentIndex(int(Below(size_t(dialog->count()))));
            });
    }
    void SwitchForm()
    {
        View([this] { Window().Dialog().SetForm(Below(2) ? Form::Job : Form::StandAlone); });
    }
    void Dock()
    {
        View(
            [this]
            {
                QDockWidget* dock = Any(Window().findChildren<QDockWidget*>());
                Note(dock->objectName());
                dock->setVisible(!dock->isVisible());
                dock->setFloating(Below(8) == 0);
            });
    }
    void Language()
    {
        View([this] { m_editor.SetLanguage(Any(QStringList{"de", "en"})); });
    }
    void Undo(size_t most)
    {
        for (; most > 0 && Document().History().CanUndo(); --most)
            Document().History().Undo();
    }
    void UndoSome() { Undo(Below(4)); }
    void Redo()
    {
        for (size_t count = Below(4); count-- > 0 && Document().History().CanRedo();)
            Document().History().Redo();
    }
    void Action()
    {
        QList<QAction*> actions;
        for (QMenu* menu : {Window().EditMenu(), Window().NodeMenu(), Window().ViewMenu(), Window().ToolsMenu()})
        {
            emit menu->aboutToShow();
            for (QAction* action : menu->actions())
                if (action->isEnabled() && !action->isSeparator() && !action->menu())
                    actions << action;
        }
        if (actions.isEmpty())
            return;
        QAction* action = Any(actions);
        Note(action->text());
        action->trigger();
    }
    void Save()
    {
        if ((Document().GetFileName().isEmpty() ? Window().SaveTo(m_fileName) : Window().Save()) &&
            ReadAll(Document().GetFileName()) != Bytes())
            qFatal("The file is not what was saved.");
    }
    void Reload()
    {
        if (QFile::exists(m_fileName))
            Window().OpenFile(m_fileName);
    }

    std::mt19937 m_random;
    Editor& m_editor;
    QString m_fileName;
    QObject m_context;
    QByteArray m_loaded;
    int m_number = 0;
    bool m_hasEdited = false;
};

} // namespace

class TestMonkey : public QObject
{
    Q_OBJECT

private slots:
    void nothingThatIsDoneAtRandomBreaksTheEditorOrItsHistory_data()
    {
        QTest::addColumn<unsigned>("seed");
        const QByteArray given = qgetenv("MONKEY_SEED");
        for (const QByteArray& seed : given.isEmpty() ? QByteArrayList{"1", "2", "3"} : given.split(','))
            QTest::newRow(seed.constData()) << seed.toUInt();
    }
    void nothingThatIsDoneAtRandomBreaksTheEditorOrItsHistory()
    {
        QFETCH(unsigned, seed);
        const int steps =
            qEnvironmentVariableIsSet("MONKEY_STEPS") ? qEnvironmentVariableIntValue("MONKEY_STEPS") : stepsInTest;
        const EditorTest::Surroundings place("test_monkey");
        QVERIFY(QDir::setCurrent(QFileInfo(place.File("x")).path()));
        MonkeyLog::Begin("MONKEY_SEED", seed);
        {
            Editor editor(TKE::JobModel::Load());
            editor.Window().show();
            QVERIFY(editor.Window().NewFromSample());
            Answerer answerer(seed);
            Monkey monkey(seed, editor, place.File("monkey.job.xml"));
            for (int step = 1; step <= steps && !QTest::currentTestFailed(); ++step)
            {
                monkey.Step(step);
                if (step % stepsBetweenChecks == 0 || step == steps)
                    monkey.CheckHistory();
            }
            QVERIFY(monkey.HasEdited() || steps < stepsInTest); // or the way back is none
        }
        MonkeyLog::End();
        if (QTest::currentTestFailed())
            MonkeyLog::Print();
        QDir::setCurrent("/");
    }
};

QTEST_MAIN(TestMonkey)
#include "test_monkey.moc"
