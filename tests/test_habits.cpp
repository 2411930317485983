#include "editorfixture.h"
#include "jobedit/guidewindow.h"
#include "jobedit/hintbar.h"
#include "jobedit/languages.h"
#include "jobedit/recentfiles.h"

// The catalogues stand in a static library.
static void InitResources()
{
    Q_INIT_RESOURCE(ipcparam_translations);
}

using namespace EditorTest;

namespace
{

QChar MnemonicOf(QString text)
{
    text.remove("&&");
    const qsizetype mark = text.indexOf('&');
    return mark < 0 || mark + 1 == text.size() ? QChar() : text.at(mark + 1).toLower();
}

} // namespace

class TestHabits : public QObject
{
    Q_OBJECT

    std::optional<Surroundings> m_place;
    std::optional<Editor> m_editor;

    MainWindow& Window() { return m_editor->window; }
    QString File(const QString& name) const { return m_place->File(name); }
    QString PathOf(const char* type)
    {
        return std::ranges::find(Window().Nodes().GetNodes(), QString(type), &JobNode::type)->path;
    }

private Q_SLOTS:
    void initTestCase() { InitResources(); }
    void init()
    {
        m_place.emplace();
        Languages::Apply("en");
        m_editor.emplace();
        QVERIFY(Window().NewFromSample());
    }
    void cleanup()
    {
        m_editor.reset();
        m_place.reset();
        Languages::Apply("en");
    }

    void aFileThatIsDroppedAnywhereIsOpened()
    {
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QVERIFY(Window().NewFromSample());
        Window().Nodes().SelectNode(PathOf("IPC_TUNER_HF"));
        auto* field = Window().Dialog().GetDialog()->findChild<QLineEdit*>();
        const QString before = field->text();
        const QPointer<QLineEdit> watched = field;
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(File("a.job.xml"))});
        files.setText(File("a.job.xml"));
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &drop);
        QCOMPARE(watched->text(), before);
        QTRY_COMPARE(Window().Document().GetFileName(), File("a.job.xml"));

        files.setUrls({QUrl::fromLocalFile("/a"), QUrl::fromLocalFile("/b")});
        QDragEnterEvent two({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Window(), &two);
        QVERIFY(!two.isAccepted());
    }

    void aFileOpensWhereItWasLeft()
    {
        const QString path = PathOf("IPC_FULL");
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QVERIFY(Window().Nodes().SelectNode(path));
        Window().Dialog().SetForm(Form::StandAlone);
        Window().Dialog().GetDialog()->setCurrentIndex(4);
        QVERIFY(Window().close());

        m_editor.emplace();
        QVERIFY(Window().NewFromSample());
        QVERIFY(Window().Nodes().GetCurrentNode()->path != path);
        QVERIFY(Window().OpenFile(File("a.job.xml")));
        QCOMPARE(Window().Nodes().GetCurrentNode()->path, path);
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        QCOMPARE(Window().Dialog().GetDialog()->currentIndex(), 4);
        QVERIFY(!Window().isWindowModified());
    }

    void theWindowComesBackAsItWas()
    {
        Window().resize(1000, 700);
        Window().MessageDock()->hide();
        QVERIFY(Window().close());
        m_editor.emplace();
        QCOMPARE(Window().size(), QSize(1000, 700));
        QVERIFY(!Window().MessageDock()->isVisible());
    }

    void aRecentFileThatIsGoneIsMarked()
    {
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        RecentFiles::Add(File("gone.job.xml"));
        auto* menu = Window().findChild<RecentFiles*>();
        emit menu->aboutToShow();
        QVERIFY(menu->actions().at(0)->text().endsWith("gone.job.xml (not there)"));
        QVERIFY(menu->actions().at(1)->text().endsWith("a.job.xml"));
    }

    void theHintIsOfferedUntilItIsNotWanted()
    {
        auto* hint = Window().findChild<HintBar*>();
        QVERIFY(!hint->isVisible());
        Window().OfferHint();
        QVERIFY(hint->isVisible());
        QTest::mouseClick(hint->findChild<QPushButton*>("neverAgain"), Qt::LeftButton);
        QVERIFY(!hint->isVisible());
        m_editor.emplace();
        Window().OfferHint();
        QVERIFY(!Window().findChild<HintBar*>()->isVisible());
    }

    void f1OpensTheGuideOnce()
    {
        QTest::keyClick(&Window(), Qt::Key_F1);
        QTest::keyClick(&Window(), Qt::Key_F1);
        const auto guides = Window().findChildren<GuideWindow*>();
        QCOMPARE(guides.size(), 1);
        auto* browser = guides.first()->findChild<QTextBrowser*>();
        QVERIFY(browser->toPlainText().contains("guide for operators"));
        QVERIFY(browser->document()->resource(QTextDocument::ImageResource, QUrl("pictures/en/plan.png")).isValid());
        QTest::keyClick(guides.first(), Qt::Key_Escape);
        QVERIFY(!guides.first()->isVisible());
    }

    void everyActionIsReachedByKeyboardAndNoMnemonicTwice_data() { EachText("language", {"en", "de"}); }
    void everyActionIsReachedByKeyboardAndNoMnemonicTwice()
    {
        QFETCH(QString, language);
        Languages::Apply(language);
        m_editor.emplace();
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QSet<const QAction*> inMenus;
        QHash<QKeySequence, QString> shortcuts;
        QList<std::pair<QString, QList<QAction*>>> menus{{"menu bar", Window().menuBar()->actions()}};
        for (QMenu* menu : Window().findChildren<QMenu*>())
        {
            emit menu->aboutToShow();
            menus << std::pair(menu->title(), menu->actions());
        }
        for (const auto& [title, actions] : menus)
        {
            QHash<QChar, QString> mnemonics;
            for (const QAction* action : actions)
            {
                inMenus << action;
                const QChar key = MnemonicOf(action->text());
                if (key.isNull())
                    continue;
                const QString other = std::exchange(mnemonics[key], action->text());
                QVERIFY2(other.isEmpty(), qPrintable(title + ": " + other + " and " + action->text()));
            }
            QVERIFY2(title != "menu bar" || mnemonics.size() == actions.size(), "A menu without a mnemonic.");
        }
        for (const QAction* action : Window().findChildren<QAction*>())
        {
            if (action->isSeparator() || action->text().isEmpty())
                continue;
            // Of a context menu, which opens by keyboard too; docks have theirs in that of the window.
            const auto* owner = qobject_cast<const QWidget*>(action->parent());
            const bool inContext = owner && (owner->contextMenuPolicy() == Qt::ActionsContextMenu ||
                                             qobject_cast<const QDockWidget*>(owner));
            QVERIFY2(inMenus.contains(action) || inContext || !action->shortcut().isEmpty(),
                     qPrintable(action->text()));
            if (action->shortcut().isEmpty() || action->shortcutContext() != Qt::WindowShortcut)
                continue;
            const QString other = std::exchange(shortcuts[action->shortcut()], action->text());
            QVERIFY2(other.isEmpty(), qPrintable(other + " and " + action->text()));
        }
        for (const auto key : {QKeySequence::New, QKeySequence::Open, QKeySequence::Save, QKeySequence::Find})
            QVERIFY(shortcuts.contains(QKeySequence(key)));
    }
};

QTEST_MAIN(TestHabits)
#include "test_habits.moc"
