#include "editorfixture.h"
#include "jobedit/guidewindow.h"
#include "jobedit/hintbar.h"
#include "jobedit/languages.h"
#include "jobedit/panelwindow.h"
#include "jobedit/recentfiles.h"

#include <QLockFile>

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

class TestJobEdit : public DeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { InitCatalogues(); }
    void init()
    {
        Languages::Apply("en");
        Begin();
    }
    void cleanup()
    {
        End();
        Languages::Apply("en");
    }

    void theFormOfADialogCanBeSwitchedAndKeepsTheTab()
    {
        Window().Nodes().SelectNode(tunerPath);
        QTest::keyClick(&Window(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        QCOMPARE(Dialog()->tabText(Dialog()->currentIndex()), "Tuner");
        QVERIFY(Window().Dialog().findChild<QRadioButton*>("standAloneForm")->isChecked());
    }

    void panelsOfANodeOpenInWindowsOfTheirOwnUntilAnotherJobComes()
    {
        for (const JobNode& node : Window().Nodes().GetNodes())
            for (const DirectPanel* panel : FindDirectPanels(node))
            {
                auto* window = new PanelWindow(node, *panel, &Window());
                window->show();
                const auto values = Tree::Instance()->FindNode(node.path)->GetValues().size();
                QVERIFY2(values == 0 || window->findChildren<QWidget*>().size() > 5, panel->name);
            }
        QVERIFY(Window().findChildren<PanelWindow*>().size() > 10);
        QVERIFY(!Window().isWindowModified());
        QVERIFY(Window().NewFromSample());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(Window().findChildren<PanelWindow*>().isEmpty());
    }

    void aNodeWithoutADialogSaysSo()
    {
        QVERIFY(Window().Nodes().SelectNode("/Jobs/Demo/TDS_HF1/CS_TUNER"));
        QVERIFY(!Dialog());
        QVERIFY(Window().Dialog().findChild<QLabel*>("hint")->text().contains("CS_TUNER"));
        QVERIFY(!Window().Nodes().SelectNode("/Jobs/Demo/NOWHERE"));
    }

    void theFilterKeepsWhatMatchesWithItsSurroundings()
    {
        m_desk->Press(Qt::Key_L);
        const QLineEdit* filter = Window().Nodes().Filter();
        QVERIFY(filter->hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), "ipc_tuner_vuhf");
        QCOMPARE(AllRows(*Window().Nodes().View()->model()).size(), 4); // job, section, channel set and the task
        QVERIFY(Window().Nodes().SelectNode(tunerPath));
        QVERIFY(filter->text().isEmpty());
    }

    void anEditByKeyboardIsThereAfterSavingAndReopening()
    {
        Value(frequencyPath)->SetState(stDisabled);
        QVERIFY(!Window().isWindowModified()); // that is no content
        Value(frequencyPath)->SetState(stEnabled);
        m_desk->TypeFrequency("7040 k\t");
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(!Window().isWindowModified());
        QVERIFY(Window().windowTitle().startsWith("a.job.xml[*]"));
        QVERIFY(Window().NewFromSample());
        QCOMPARE(Stored(frequencyPath), "10000000");
        QVERIFY(Window().OpenFile(File()));
        QCOMPARE(Stored(frequencyPath), "7040000");
        QVERIFY(m_desk->FrequencyField()->text().remove(' ').contains("7040"));
    }

    void anEditUnderWayIsSavedTooAndARefusedEntryIsNamed()
    {
        m_desk->TypeFrequency("7050 k");
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(ReadAll(File()).contains("7050000"));
        m_desk->TypeFrequency("7060 k");
        QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(ReadAll(File()).contains("7060000"));
        QVERIFY(m_desk->FrequencyField()->hasFocus());
        m_desk->TypeFrequency("much");
        QVERIFY(Window().Save());
        QVERIFY(Window().Messages().GetText().contains("much"));
        QVERIFY(!Window().isWindowModified());
    }

    void aFileThatCannotBeReadLeavesWhatWasOpen_data()
    {
        const Table<QByteArray, QString> row("content", "place");
        row("missing", {}, "");
        row("not well-formed", QByteArray("<Job version=\"1\">\n  <Node name=\"A\" type=\"JOB\">\n</Job>\n"), ":3:");
        row("a value refused",
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Job version=\"1\">\n"
            "  <Node name=\"/T\" type=\"IPC_TUNER_HF\" groups=\"G_TUNER_HF\">\n"
            "    <Value name=\"TUNER_HF_NB_FREQUENCY\">much</Value>\n  </Node>\n</Job>\n",
            ":4:");
    }
    void aFileThatCannotBeReadLeavesWhatWasOpen()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, place);
        if (!content.isEmpty())
            WriteAll(File("bad.job.xml"), content);
        Window().Nodes().SelectNode(tunerPath);
        const QTabWidget* dialog = Dialog();
        const QString title = Window().windowTitle();
        const Answer answer({"OK"});
        QVERIFY(!Window().OpenFile(File("bad.job.xml")));
        QVERIFY(answer.GetText().contains("bad.job.xml" + place));
        QVERIFY(Window().Messages().GetText().contains(File("bad.job.xml") + place));
        if (content.contains("FREQUENCY"))
            QVERIFY(Window().Messages().GetText().contains("/T/TUNER_HF_NB_FREQUENCY"));
        QCOMPARE(Window().windowTitle(), title);
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
        QCOMPARE(Dialog(), dialog);
        QVERIFY(Value(frequencyPath));
    }

    void unsavedChangesAreAskedFor_data()
    {
        const Table<QString, bool> row("button", "goes");
        row("cancel", "Cancel", false);
        row("discard", "Discard", true);
        row("save", "Save", true);
    }
    void unsavedChangesAreAskedFor()
    {
        QFETCH(QString, button);
        QFETCH(bool, goes);
        QVERIFY(Window().SaveTo(File()));
        m_desk->TypeFrequency("7070 k"); // typed only, but a change all the same
        QVERIFY(Asks({button}, [&] { return Window().NewFromSample() == goes; }));
        QCOMPARE(Window().windowTitle().startsWith("a.job.xml"), !goes);
        QCOMPARE(ReadAll(File()).contains("7070000"), button == "Save");
        QCOMPARE(Window().isWindowModified(), !goes);
        QVERIFY(goes || Asks({button}, [&] { return !Window().close() && Window().isVisible(); }));
    }

    void aFileOpenElsewhereIsOpenedReadOnlyOrNotAtAll()
    {
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(Window().NewFromSample());
        QLockFile other(File() + ".lock");
        QVERIFY(other.lock());
        QVERIFY(Asks({"Cancel"}, [&] { return !Window().OpenFile(File()); }));
        QVERIFY(Window().Document().GetFileName().isEmpty());
        QVERIFY(Asks({"Open Read-Only"}, [&] { return Window().OpenFile(File()); }));
        QVERIFY(Window().Document().IsReadOnly());
        QVERIFY(Window().windowTitle().contains("read-only"));
        QVERIFY(Asks({"OK"}, [&] { return !Window().SaveTo(File()); }));
        QVERIFY(Window().SaveTo(File("b.job.xml")));
        QVERIFY(!Window().Document().IsReadOnly());
    }

    void aLockOfAnotherComputerIsTakenOverOnlyWhenWanted_data()
    {
        const Table<QByteArray, QString, bool> row("lock", "named", "offered");
        // The second line is the program, the third the computer.
        row("another computer", "4711\njobedit\nfar-away\n", "far-away", true);
        row("cannot be read", {}, "another editor", true);
        const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
        const QStringList own{
            QString::number(QCoreApplication::applicationPid()), program, QSysInfo::machineHostName(), {}};
        row("this computer", own.join('\n').toUtf8(), QSysInfo::machineHostName(), false);
    }
    void aLockOfAnotherComputerIsTakenOverOnlyWhenWanted()
    {
        QFETCH(QByteArray, lock);
        QFETCH(bool, offered);
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(Window().NewFromSample());
        QFile file(File() + ".lock");
        WriteAll(file.fileName(), lock);
        const QDateTime since(QDate(2024, 2, 29), QTime(23, 5));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(since, QFileDevice::FileModificationTime));
        file.close();
        QString text;
        const auto press = [&](const QString& button)
        {
            const Next question(
                [&](QDialog& dialog)
                {
                    auto& box = static_cast<QMessageBox&>(dialog);
                    text = box.text();
                    QCOMPARE(box.defaultButton()->text().remove('&'), "Open Read-Only"); // does no harm
                    for (QAbstractButton* each : box.buttons())
                        if (each->text().remove('&') == button)
                            return each->click();
                    box.reject();
                });
            return Window().OpenFile(File());
        };
        QCOMPARE(press("Take Over"), offered);
        QFETCH(QString, named);
        QVERIFY2(text.contains(named), qPrintable(text));
        QVERIFY2(text.contains(QLocale().toString(since, QLocale::ShortFormat)), qPrintable(text));
        QVERIFY2(named == "another editor" || text.contains(QFileInfo(file).owner()), qPrintable(text));
        if (!offered)
        {
            QCOMPARE(ReadAll(file.fileName()), lock);
            return;
        }
        // It is this editor's own now, as for any file.
        QVERIFY(!Window().Document().IsReadOnly());
        QVERIFY(ReadAll(file.fileName()).startsWith(QByteArray::number(QCoreApplication::applicationPid())));
        QVERIFY(Window().NewFromSample());
        QVERIFY(!QFile::exists(file.fileName()));

        WriteAll(file.fileName(), lock);
        QVERIFY(press("Open Read-Only"));
        QVERIFY(Window().Document().IsReadOnly());
        QCOMPARE(ReadAll(file.fileName()), lock);
        // Who was there first and is gone by now may have left the place to somebody else.
        const auto before = JobLock::Of(File());
        QVERIFY(before && before->IsOutOfSight());
        WriteAll(file.fileName(), "4712\njobedit\nfar-too\n");
        QString reason;
        QVERIFY(!before->Remove(File(), reason));
        QVERIFY2(reason.contains("far-too"), qPrintable(reason));
        QVERIFY(QFile::exists(file.fileName()));
        // What was edited read-only can get there, too.
        Set(frequencyPath, "7100000");
        QVERIFY(Asks({"Take Over"}, [&] { return Window().SaveTo(File()); }));
        QVERIFY(!Window().Document().IsReadOnly());
        QVERIFY(ReadAll(File()).contains("7100000"));
    }

    void recentFilesComeLatestFirstAndMissingOnesGoOnUse()
    {
        for (const char* name : {"a.job.xml", "b.job.xml", "a.job.xml"})
            QVERIFY(Window().SaveTo(File(name)));
        QCOMPARE(RecentFiles::GetFiles(), (QStringList{File(), File("b.job.xml")}));
        QVERIFY(QFile::remove(File("b.job.xml")));
        auto* menu = Window().findChild<RecentFiles*>();
        emit menu->aboutToShow();
        QVERIFY(menu->actions().at(0)->text().endsWith("a.job.xml"));
        QVERIFY(menu->actions().at(1)->text().endsWith("b.job.xml (not there)"));
        {
            const Answer answer({"OK"});
            menu->actions().at(1)->trigger();
            QVERIFY(answer.WasAsked());
        }
        QCOMPARE(RecentFiles::GetFiles(), QStringList{File()});
        for (int number = 0; number < RecentFiles::MaximumCount + 5; ++number)
            RecentFiles::Add(File(QString::number(number)));
        QCOMPARE(RecentFiles::GetFiles().size(), qsizetype(RecentFiles::MaximumCount));
    }

    void reportsOfThePartsOfTheProgramStandAmongTheMessages()
    {
        ErrorHandler::Interface().Report(Severity::Error, "first", "why");
        ErrorHandler::Interface().Report(Severity::Info, "second");
        Window().Messages().setFocus();
        Window().Messages().setCurrentRow(0);
        QTest::keyClick(&Window().Messages(), Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().endsWith("first: why"));
    }

    void allPanesAreReachedByKeyboard()
    {
        Window().Nodes().SelectNode(tunerPath);
        Window().Nodes().View()->setFocus();
        QList<QWidget*> reached;
        for (int step = 0; step < 4; ++step)
        {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
            reached << QApplication::focusWidget();
        }
        QCOMPARE(reached.at(0), Window().Dialog().findChild<QRadioButton*>("jobForm"));
        QVERIFY(Dialog()->isAncestorOf(reached.at(1)));
        QCOMPARE(reached.at(2), &Window().Messages());
        QCOMPARE(reached.at(3), Window().Nodes().View());
    }

    void aFileThatIsDroppedAnywhereIsOpened()
    {
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(Window().NewFromSample());
        Window().Nodes().SelectNode(tunerPath);
        auto* field = Dialog()->findChild<QLineEdit*>();
        const QString before = field->text();
        const QPointer<QLineEdit> watched = field;
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(File())});
        files.setText(File());
        QDragEnterEvent enter({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(field, &drop);
        QCOMPARE(watched->text(), before);
        QTRY_COMPARE(Window().Document().GetFileName(), File());

        files.setUrls({QUrl::fromLocalFile("/a"), QUrl::fromLocalFile("/b")});
        QDragEnterEvent two({2, 2}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&Window(), &two);
        QVERIFY(!two.isAccepted());
    }

    void theWindowComesBackAsItWasAndAFileOpensWhereItWasLeft()
    {
        const QString path = std::ranges::find(Window().Nodes().GetNodes(), "IPC_FULL", &JobNode::type)->path;
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(Window().Nodes().SelectNode(path));
        Window().Dialog().SetForm(Form::StandAlone);
        Dialog()->setCurrentIndex(4);
        Window().resize(1000, 700);
        Window().MessageDock()->hide();
        QVERIFY(Window().close());

        m_desk.emplace();
        QCOMPARE(Window().size(), QSize(1000, 700));
        QVERIFY(!Window().MessageDock()->isVisible());
        QVERIFY(Window().NewFromSample());
        QVERIFY(m_desk->CurrentPath() != path);
        QVERIFY(Window().OpenFile(File()));
        QCOMPARE(m_desk->CurrentPath(), path);
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        QCOMPARE(Dialog()->currentIndex(), 4);
        QVERIFY(!Window().isWindowModified());
    }

    void theHintIsOfferedUntilItIsNotWanted()
    {
        auto* hint = Window().findChild<HintBar*>();
        QVERIFY(!hint->isVisible());
        Window().OfferHint();
        QVERIFY(hint->isVisible());
        QTest::mouseClick(hint->findChild<QPushButton*>("neverAgain"), Qt::LeftButton);
        QVERIFY(!hint->isVisible());
        m_desk.emplace();
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
        m_desk.emplace();
        QVERIFY(Window().SaveTo(File()));
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

QTEST_MAIN(TestJobEdit)
#include "test_jobedit.moc"
