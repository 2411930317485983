#include "editorfixture.h"
#include "jobedit/chains.h"
#include "jobedit/panelwindow.h"
#include "jobedit/recentfiles.h"
#include "common.h"

#include <QLockFile>
#include <set>

using namespace EditorTest;

class TestJobEdit : public QObject
{
    Q_OBJECT

    std::optional<Desk> m_desk;

    MainWindow& Window() { return m_desk->window; }

private Q_SLOTS:
    void init() { m_desk.emplace(); }
    void cleanup() { m_desk.reset(); }

    void everyEntryPointServesATaskOfTheSample()
    {
        std::set<const Chain*> served;
        for (const JobNode& node : Window().Nodes().GetNodes())
            if (const Chain* chain = FindChain(node))
                served.insert(chain);
            else
                QVERIFY2(!node.type.startsWith("IPC_") || HasDialog(node), qPrintable(node.path + ' ' + node.type));
        QCOMPARE(served.size(), Chains().size());
    }

    void tasksOfOneTypeOpenByTheirBand()
    {
        QStringList calls;
        for (const JobNode& node : Window().Nodes().GetNodes())
            if (node.type == "IPC_HEADER_VOICE_AGMC")
                calls << QString::number(int(FindChain(node)->band)) + node.path;
        QCOMPARE(calls, (QStringList{QString::number(int(Band::Hf)) + "/Jobs/Demo/TDS_HFWB/HEADER_VOICE/",
                                     QString::number(int(Band::Vuhf)) + "/Jobs/Demo/TDS_VUHFWB/HEADER_VOICE/"}));
    }

    void theFormOfADialogCanBeSwitchedAndKeepsTheTab()
    {
        Window().Nodes().SelectNode(tunerPath);
        QTabWidget* job = Window().Dialog().GetDialog();
        QVERIFY(job && job->count() > 0);
        QTest::keyClick(&Window(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        QTabWidget* standAlone = Window().Dialog().GetDialog();
        QVERIFY(standAlone);
        QCOMPARE(standAlone->tabText(standAlone->currentIndex()), QStringLiteral("Tuner"));
        QVERIFY(Window().Dialog().findChild<QRadioButton*>("standAloneForm")->isChecked());
    }

    void panelsOfANodeOpenInWindowsOfTheirOwnUntilAnotherJobComes()
    {
        int opened = 0;
        for (const JobNode& node : Window().Nodes().GetNodes())
            for (const DirectPanel* panel : FindDirectPanels(node))
            {
                auto* window = new PanelWindow(node, *panel, &Window());
                window->show();
                ++opened;
                const auto values = Tree::Instance()->FindNode(node.path)->GetValues().size();
                QVERIFY2(values == 0 || window->findChildren<QWidget*>().size() > 5, panel->name);
            }
        QVERIFY(opened > 0);
        QVERIFY(!Window().isWindowModified());
        QVERIFY(Window().NewFromSample());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(Window().findChildren<PanelWindow*>().isEmpty());
    }

    void aNodeWithoutADialogSaysSo()
    {
        QVERIFY(Window().Nodes().SelectNode("/Jobs/Demo/TDS_HF1/CS_TUNER"));
        QVERIFY(!Window().Dialog().GetDialog());
        QVERIFY(Window().Dialog().findChild<QLabel*>("hint")->text().contains("CS_TUNER"));
        QVERIFY(!Window().Nodes().SelectNode("/Jobs/Demo/NOWHERE"));
    }

    void theFilterKeepsWhatMatchesWithItsSurroundings()
    {
        QLineEdit* filter = Window().Nodes().Filter();
        QTest::keyClicks(filter, "ipc_tuner_vuhf");
        int shown = 0;
        QAbstractItemModel* model = Window().Nodes().View()->model();
        for (QModelIndexList left = {QModelIndex()}; !left.isEmpty();)
        {
            const QModelIndex parent = left.takeFirst();
            for (int row = 0; row < model->rowCount(parent); ++row, ++shown)
                left << model->index(row, 0, parent);
        }
        QCOMPARE(shown, 4); // job, section, channel set and the task
        QVERIFY(Window().Nodes().SelectNode(tunerPath));
        QVERIFY(filter->text().isEmpty());
    }

    void anEditByKeyboardIsThereAfterSavingAndReopening()
    {
        m_desk->TypeFrequency("7040 k\t");
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(!Window().isWindowModified());
        QVERIFY(Window().windowTitle().startsWith("a.job.xml[*]"));

        QVERIFY(Window().NewFromSample());
        QVERIFY(Editor::Value(frequencyPath)->GetStoredText() != "7040000");
        QVERIFY(Window().OpenFile(m_desk->File("a.job.xml")));
        QCOMPARE(Editor::Value(frequencyPath)->GetStoredText(), QStringLiteral("7040000"));
        QVERIFY(m_desk->FrequencyField()->text().remove(' ').contains("7.04") ||
                m_desk->FrequencyField()->text().contains("7040"));
    }

    void anEditUnderWayIsSavedToo()
    {
        m_desk->TypeFrequency("7050 k");
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains("7050000"));
        m_desk->TypeFrequency("7060 k");
        QTest::keyClick(&Window(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains("7060000"));
        QVERIFY(m_desk->FrequencyField()->hasFocus());
    }

    void anEntryThatWasRefusedIsNamedWhenSaving()
    {
        m_desk->TypeFrequency("much");
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
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
            WriteAll(m_desk->File("bad.job.xml"), content);
        Window().Nodes().SelectNode(tunerPath);
        const QTabWidget* dialog = Window().Dialog().GetDialog();
        const QString title = Window().windowTitle();

        Answer answer({"OK"});
        QVERIFY(!Window().OpenFile(m_desk->File("bad.job.xml")));
        QVERIFY(answer.GetText().contains("bad.job.xml" + place));
        QVERIFY(Window().Messages().GetText().contains(m_desk->File("bad.job.xml") + place));
        if (content.contains("FREQUENCY"))
            QVERIFY(Window().Messages().GetText().contains("/T/TUNER_HF_NB_FREQUENCY"));
        QCOMPARE(Window().windowTitle(), title);
        QCOMPARE(Window().Nodes().GetCurrentNode()->path, tunerPath);
        QCOMPARE(Window().Dialog().GetDialog(), dialog);
        QVERIFY(Editor::Value(frequencyPath));
    }

    void onlyContentMarksTheJobAsModified()
    {
        ValueBase* value = Editor::Value(frequencyPath);
        value->SetState(stDisabled);
        QVERIFY(!Window().isWindowModified());
        QVERIFY(value->SetStoredText("7100000"));
        QVERIFY(Window().isWindowModified());
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
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        m_desk->TypeFrequency("7070 k");
        {
            // Typed only, but a change all the same.
            Answer answer({button});
            QCOMPARE(Window().NewFromSample(), goes);
            QVERIFY(answer.WasAsked());
        }
        QCOMPARE(Window().windowTitle().startsWith("a.job.xml"), !goes);
        QCOMPARE(ReadAll(m_desk->File("a.job.xml")).contains("7070000"), button == "Save");
        QCOMPARE(Window().isWindowModified(), !goes);
        if (!goes)
        {
            Answer answer({"Cancel"});
            QVERIFY(!Window().close());
            QVERIFY(Window().isVisible());
        }
    }

    void whatSomebodyElseWroteIsOverwrittenOnlyWhenWanted()
    {
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(Editor::Value(frequencyPath)->SetStoredText("7100000"));
        WriteAll(m_desk->File("a.job.xml"), "<Job/>");
        {
            Answer answer({"Cancel"});
            QVERIFY(!Window().Save());
            QVERIFY(answer.WasAsked());
        }
        QCOMPARE(ReadAll(m_desk->File("a.job.xml")), QByteArray("<Job/>"));
        QVERIFY(Window().isWindowModified());
        Answer answer({"Overwrite"});
        QVERIFY(Window().Save());
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains("7100000"));
    }

    void aFileOpenElsewhereIsOpenedReadOnlyOrNotAtAll()
    {
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(Window().NewFromSample());
        QLockFile other(m_desk->File("a.job.xml") + ".lock");
        QVERIFY(other.lock());
        {
            Answer answer({"Cancel"});
            QVERIFY(!Window().OpenFile(m_desk->File("a.job.xml")));
            QVERIFY(answer.WasAsked());
        }
        QVERIFY(Window().Document().GetFileName().isEmpty());
        {
            Answer answer({"Open Read-Only"});
            QVERIFY(Window().OpenFile(m_desk->File("a.job.xml")));
        }
        QVERIFY(Window().Document().IsReadOnly());
        QVERIFY(Window().windowTitle().contains("read-only"));
        {
            Answer answer({"OK"});
            QVERIFY(!Window().SaveTo(m_desk->File("a.job.xml")));
            QVERIFY(answer.WasAsked());
        }
        QVERIFY(Window().SaveTo(m_desk->File("b.job.xml")));
        QVERIFY(!Window().Document().IsReadOnly());
    }

    void aLockOfAnotherComputerIsTakenOverOnlyWhenWanted_data()
    {
        QTest::addColumn<QByteArray>("lock");
        QTest::addColumn<QString>("named");
        QTest::addColumn<bool>("offered");
        // The second line is the program, the third the computer.
        QTest::newRow("another computer") << QByteArray("4711\njobedit\nfar-away\n") << "far-away" << true;
        QTest::newRow("cannot be read") << QByteArray() << "another editor" << true;
        QTest::newRow("this computer") << QByteArray::number(QCoreApplication::applicationPid()) + "\n" +
                                              QFileInfo(QCoreApplication::applicationFilePath()).fileName().toUtf8() +
                                              "\n" + QSysInfo::machineHostName().toUtf8() + "\n"
                                       << QSysInfo::machineHostName() << false;
    }
    void aLockOfAnotherComputerIsTakenOverOnlyWhenWanted()
    {
        QFETCH(QByteArray, lock);
        QFETCH(bool, offered);
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(Window().NewFromSample());
        WriteAll(m_desk->File("a.job.xml.lock"), lock);
        const QDateTime since(QDate(2024, 2, 29), QTime(23, 5));
        QFile file(m_desk->File("a.job.xml.lock"));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(since, QFileDevice::FileModificationTime));
        file.close();
        QString text;
        const auto press = [&](const QString& button)
        {
            QTimer::singleShot(50, this,
                               [&text, button]
                               {
                                   auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                                   QVERIFY(box);
                                   text = box->text();
                                   // The default does no harm.
                                   QCOMPARE(box->defaultButton()->text().remove('&'), "Open Read-Only");
                                   for (QAbstractButton* each : box->buttons())
                                       if (each->text().remove('&') == button)
                                           return each->click();
                                   box->reject();
                               });
            return Window().OpenFile(m_desk->File("a.job.xml"));
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
        const auto before = JobLock::Of(m_desk->File("a.job.xml"));
        QVERIFY(before && before->IsOutOfSight());
        WriteAll(file.fileName(), "4712\njobedit\nfar-too\n");
        QString reason;
        QVERIFY(!before->Remove(m_desk->File("a.job.xml"), reason));
        QVERIFY2(reason.contains("far-too"), qPrintable(reason));
        QVERIFY(QFile::exists(file.fileName()));
        // What was edited read-only can get there, too.
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->SetStoredText("7100000"));
        Answer answer({"Take Over"});
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        QVERIFY(!Window().Document().IsReadOnly());
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains("7100000"));
    }

    void aFailedSaveIsShownAndLeavesTheJobModified()
    {
        QVERIFY(Editor::Value(frequencyPath)->SetStoredText("7100000"));
        Answer answer({"OK"});
        QVERIFY(!Window().SaveTo(m_desk->File("nowhere/a.job.xml")));
        QVERIFY(answer.WasAsked());
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().Messages().GetText().contains("nowhere/a.job.xml"));
        QVERIFY(Window().Document().GetFileName().isEmpty());
    }

    void recentFilesComeLatestFirstAndMissingOnesGoOnUse()
    {
        for (const char* name : {"a.job.xml", "b.job.xml", "a.job.xml"})
            QVERIFY(Window().SaveTo(m_desk->File(name)));
        QCOMPARE(RecentFiles::GetFiles(), (QStringList{m_desk->File("a.job.xml"), m_desk->File("b.job.xml")}));
        QVERIFY(QFile::remove(m_desk->File("b.job.xml")));

        auto* menu = Window().findChild<RecentFiles*>();
        emit menu->aboutToShow();
        Answer answer({"OK"});
        menu->actions().at(1)->trigger();
        QVERIFY(answer.WasAsked());
        QCOMPARE(RecentFiles::GetFiles(), QStringList{m_desk->File("a.job.xml")});

        for (int number = 0; number < RecentFiles::MaximumCount + 5; ++number)
            RecentFiles::Add(m_desk->File(QString::number(number)));
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
        QVERIFY(Window().Dialog().GetDialog()->isAncestorOf(reached.at(1)));
        QCOMPARE(reached.at(2), &Window().Messages());
        QCOMPARE(reached.at(3), Window().Nodes().View());
    }
};

QTEST_MAIN(TestJobEdit)
#include "test_jobedit.moc"
