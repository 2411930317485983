#include "jobedit/chains.h"
#include "jobedit/dialogpane.h"
#include "jobedit/mainwindow.h"
#include "jobedit/messagelist.h"
#include "jobedit/nodepane.h"
#include "jobedit/panelwindow.h"
#include "jobedit/recentfiles.h"
#include "keys/keys.h"

#include <QLockFile>
#include <QTest>
#include <QtWidgets>
#include <set>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

const QString tunerPath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/");
const QString frequencyPath = tunerPath + Keys::TUNER_HF_NB_FREQUENCY;

QByteArray ReadAll(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void WriteAll(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// Presses this button of the next message box, and keeps what the box said.
class Answer : public QObject
{
public:
    explicit Answer(const QString& button) : m_button(button)
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
        if (!box)
            return;
        m_timer.stop();
        m_text = box->text();
        for (QAbstractButton* button : box->buttons())
            if (button->text().remove('&') == m_button)
                return button->click();
        box->reject();
        qWarning("There is no button %s.", qPrintable(m_button));
    }

    QString m_button;
    QString m_text;
    QTimer m_timer;
};

} // namespace

class TestJobEdit : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MainWindow> m_window;

    QString File(const QString& name) const { return m_directory->filePath(name); }

    QLineEdit* FrequencyField()
    {
        m_window->Nodes().SelectNode(tunerPath);
        QWidget* frequency = m_window->Dialog().GetDialog()->findChild<QWidget*>(Keys::TUNER_HF_NB_FREQUENCY);
        return frequency ? frequency->findChild<QLineEdit*>() : nullptr;
    }
    /// Types into the field and does not leave it.
    void TypeFrequency(const QString& text)
    {
        QLineEdit* field = FrequencyField();
        QVERIFY(field);
        field->setFocus();
        QVERIFY(field->hasFocus());
        field->selectAll();
        QTest::keyClicks(field, text);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
        QStandardPaths::setTestModeEnabled(true);
    }

    void init()
    {
        QLocale::setDefault(QLocale::C);
        m_directory = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
        QSettings().clear();
        m_window = std::make_unique<MainWindow>(JobModel::Load());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(m_window->NewFromSample());
    }

    void cleanup()
    {
        m_window.reset();
        Tree::Instance()->Clear();
    }

    void everyEntryPointServesATaskOfTheSample()
    {
        std::set<const Chain*> served;
        for (const JobNode& node : m_window->Nodes().GetNodes())
            if (const Chain* chain = FindChain(node))
                served.insert(chain);
            else
                QVERIFY2(!node.type.startsWith("IPC_") || HasDialog(node), qPrintable(node.path + ' ' + node.type));
        QCOMPARE(served.size(), Chains().size());
    }

    void tasksOfOneTypeOpenByTheirBand()
    {
        QStringList calls;
        for (const JobNode& node : m_window->Nodes().GetNodes())
            if (node.type == "IPC_HEADER_VOICE_AGMC")
                calls << QString::number(int(FindChain(node)->band)) + node.path;
        QCOMPARE(calls, (QStringList{QString::number(int(Band::Hf)) + "/Jobs/Demo/TDS_HFWB/HEADER_VOICE/",
                                     QString::number(int(Band::Vuhf)) + "/Jobs/Demo/TDS_VUHFWB/HEADER_VOICE/"}));
    }

    void theFormOfADialogCanBeSwitchedAndKeepsTheTab()
    {
        m_window->Nodes().SelectNode(tunerPath);
        QTabWidget* job = m_window->Dialog().GetDialog();
        QVERIFY(job && job->count() > 0);
        QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(m_window->Dialog().GetForm(), Form::StandAlone);
        QTabWidget* standAlone = m_window->Dialog().GetDialog();
        QVERIFY(standAlone);
        QCOMPARE(standAlone->tabText(standAlone->currentIndex()), QStringLiteral("Tuner"));
        QVERIFY(m_window->Dialog().findChild<QRadioButton*>("standAloneForm")->isChecked());
    }

    void panelsOfANodeOpenInWindowsOfTheirOwnUntilAnotherJobComes()
    {
        int opened = 0;
        for (const JobNode& node : m_window->Nodes().GetNodes())
            for (const DirectPanel* panel : FindDirectPanels(node))
            {
                auto* window = new PanelWindow(node, *panel, m_window.get());
                window->show();
                ++opened;
                const auto values = Tree::Instance()->FindNode(node.path)->GetValues().size();
                QVERIFY2(values == 0 || window->findChildren<QWidget*>().size() > 5, panel->name);
            }
        QVERIFY(opened > 0);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->NewFromSample());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(m_window->findChildren<PanelWindow*>().isEmpty());
    }

    void aNodeWithoutADialogSaysSo()
    {
        QVERIFY(m_window->Nodes().SelectNode("/Jobs/Demo/TDS_HF1/CS_TUNER"));
        QVERIFY(!m_window->Dialog().GetDialog());
        QVERIFY(m_window->Dialog().findChild<QLabel*>("hint")->text().contains("CS_TUNER"));
        QVERIFY(!m_window->Nodes().SelectNode("/Jobs/Demo/NOWHERE"));
    }

    void theFilterKeepsWhatMatchesWithItsSurroundings()
    {
        QLineEdit* filter = m_window->Nodes().Filter();
        QTest::keyClicks(filter, "ipc_tuner_vuhf");
        int shown = 0;
        QAbstractItemModel* model = m_window->Nodes().View()->model();
        for (QModelIndexList left = {QModelIndex()}; !left.isEmpty();)
        {
            const QModelIndex parent = left.takeFirst();
            for (int row = 0; row < model->rowCount(parent); ++row, ++shown)
                left << model->index(row, 0, parent);
        }
        QCOMPARE(shown, 4); // job, section, channel set and the task
        QVERIFY(m_window->Nodes().SelectNode(tunerPath));
        QVERIFY(filter->text().isEmpty());
    }

    void anEditByKeyboardIsThereAfterSavingAndReopening()
    {
        TypeFrequency("7040 k\t");
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->windowTitle().startsWith("a.job.xml[*]"));

        QVERIFY(m_window->NewFromSample());
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->GetStoredText() != "7040000");
        QVERIFY(m_window->OpenFile(File("a.job.xml")));
        QCOMPARE(Tree::Instance()->FindValue(frequencyPath)->GetStoredText(), QStringLiteral("7040000"));
        QVERIFY(FrequencyField()->text().remove(' ').contains("7.04") || FrequencyField()->text().contains("7040"));
    }

    void anEditUnderWayIsSavedToo()
    {
        TypeFrequency("7050 k");
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(ReadAll(File("a.job.xml")).contains("7050000"));
        TypeFrequency("7060 k");
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(ReadAll(File("a.job.xml")).contains("7060000"));
        QVERIFY(FrequencyField()->hasFocus());
    }

    void anEntryThatWasRefusedIsNamedWhenSaving()
    {
        TypeFrequency("much");
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(m_window->Messages().GetText().contains("much"));
        QVERIFY(!m_window->isWindowModified());
    }

    void aFileThatCannotBeReadLeavesWhatWasOpen_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("place");
        QTest::newRow("missing") << QByteArray() << "";
        QTest::newRow("not well-formed") << QByteArray(
                                                "<Job version=\"1\">\n  <Node name=\"A\" type=\"JOB\">\n</Job>\n")
                                         << ":3:";
        QTest::newRow("a value refused")
            << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Job version=\"1\">\n"
                          "  <Node name=\"/T\" type=\"IPC_TUNER_HF\" groups=\"G_TUNER_HF\">\n"
                          "    <Value name=\"TUNER_HF_NB_FREQUENCY\">much</Value>\n  </Node>\n</Job>\n")
            << ":4:";
    }
    void aFileThatCannotBeReadLeavesWhatWasOpen()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, place);
        if (!content.isEmpty())
            WriteAll(File("bad.job.xml"), content);
        m_window->Nodes().SelectNode(tunerPath);
        const QTabWidget* dialog = m_window->Dialog().GetDialog();
        const QString title = m_window->windowTitle();

        Answer answer("OK");
        QVERIFY(!m_window->OpenFile(File("bad.job.xml")));
        QVERIFY(answer.GetText().contains("bad.job.xml" + place));
        QVERIFY(m_window->Messages().GetText().contains(File("bad.job.xml") + place));
        if (content.contains("FREQUENCY"))
            QVERIFY(m_window->Messages().GetText().contains("/T/TUNER_HF_NB_FREQUENCY"));
        QCOMPARE(m_window->windowTitle(), title);
        QCOMPARE(m_window->Nodes().GetCurrentNode()->path, tunerPath);
        QCOMPARE(m_window->Dialog().GetDialog(), dialog);
        QVERIFY(Tree::Instance()->FindValue(frequencyPath));
    }

    void onlyContentMarksTheJobAsModified()
    {
        ValueBase* value = Tree::Instance()->FindValue(frequencyPath);
        value->SetState(stDisabled);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(value->SetStoredText("7100000"));
        QVERIFY(m_window->isWindowModified());
    }

    void unsavedChangesAreAskedFor_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("goes");
        QTest::newRow("cancel") << "Cancel" << false;
        QTest::newRow("discard") << "Discard" << true;
        QTest::newRow("save") << "Save" << true;
    }
    void unsavedChangesAreAskedFor()
    {
        QFETCH(QString, button);
        QFETCH(bool, goes);
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        TypeFrequency("7070 k");
        {
            // Typed only, but a change all the same.
            Answer answer(button);
            QCOMPARE(m_window->NewFromSample(), goes);
            QVERIFY(answer.WasAsked());
        }
        QCOMPARE(m_window->windowTitle().startsWith("a.job.xml"), !goes);
        QCOMPARE(ReadAll(File("a.job.xml")).contains("7070000"), button == "Save");
        QCOMPARE(m_window->isWindowModified(), !goes);
        if (!goes)
        {
            Answer answer("Cancel");
            QVERIFY(!m_window->close());
            QVERIFY(m_window->isVisible());
        }
    }

    void whatSomebodyElseWroteIsOverwrittenOnlyWhenWanted()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->SetStoredText("7100000"));
        WriteAll(File("a.job.xml"), "<Job/>");
        {
            Answer answer("Cancel");
            QVERIFY(!m_window->Save());
            QVERIFY(answer.WasAsked());
        }
        QCOMPARE(ReadAll(File("a.job.xml")), QByteArray("<Job/>"));
        QVERIFY(m_window->isWindowModified());
        Answer answer("Overwrite");
        QVERIFY(m_window->Save());
        QVERIFY(ReadAll(File("a.job.xml")).contains("7100000"));
    }

    void aFileOpenElsewhereIsOpenedReadOnlyOrNotAtAll()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(m_window->NewFromSample());
        QLockFile other(File("a.job.xml") + ".lock");
        QVERIFY(other.lock());
        {
            Answer answer("Cancel");
            QVERIFY(!m_window->OpenFile(File("a.job.xml")));
            QVERIFY(answer.WasAsked());
        }
        QVERIFY(m_window->Document().GetFileName().isEmpty());
        {
            Answer answer("Open Read-Only");
            QVERIFY(m_window->OpenFile(File("a.job.xml")));
        }
        QVERIFY(m_window->Document().IsReadOnly());
        QVERIFY(m_window->windowTitle().contains("read-only"));
        {
            Answer answer("OK");
            QVERIFY(!m_window->SaveTo(File("a.job.xml")));
            QVERIFY(answer.WasAsked());
        }
        QVERIFY(m_window->SaveTo(File("b.job.xml")));
        QVERIFY(!m_window->Document().IsReadOnly());
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
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(m_window->NewFromSample());
        WriteAll(File("a.job.xml.lock"), lock);
        const QDateTime since(QDate(2024, 2, 29), QTime(23, 5));
        QFile file(File("a.job.xml.lock"));
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
            return m_window->OpenFile(File("a.job.xml"));
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
        QVERIFY(!m_window->Document().IsReadOnly());
        QVERIFY(ReadAll(file.fileName()).startsWith(QByteArray::number(QCoreApplication::applicationPid())));
        QVERIFY(m_window->NewFromSample());
        QVERIFY(!QFile::exists(file.fileName()));

        WriteAll(file.fileName(), lock);
        QVERIFY(press("Open Read-Only"));
        QVERIFY(m_window->Document().IsReadOnly());
        QCOMPARE(ReadAll(file.fileName()), lock);
        // Who was there first and is gone by now may have left the place to somebody else.
        const auto before = JobLock::Of(File("a.job.xml"));
        QVERIFY(before && before->IsOutOfSight());
        WriteAll(file.fileName(), "4712\njobedit\nfar-too\n");
        QString reason;
        QVERIFY(!before->Remove(File("a.job.xml"), reason));
        QVERIFY2(reason.contains("far-too"), qPrintable(reason));
        QVERIFY(QFile::exists(file.fileName()));
        // What was edited read-only can get there, too.
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->SetStoredText("7100000"));
        Answer answer("Take Over");
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        QVERIFY(!m_window->Document().IsReadOnly());
        QVERIFY(ReadAll(File("a.job.xml")).contains("7100000"));
    }

    void aFailedSaveIsShownAndLeavesTheJobModified()
    {
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->SetStoredText("7100000"));
        Answer answer("OK");
        QVERIFY(!m_window->SaveTo(File("nowhere/a.job.xml")));
        QVERIFY(answer.WasAsked());
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->Messages().GetText().contains("nowhere/a.job.xml"));
        QVERIFY(m_window->Document().GetFileName().isEmpty());
    }

    void recentFilesComeLatestFirstAndMissingOnesGoOnUse()
    {
        for (const char* name : {"a.job.xml", "b.job.xml", "a.job.xml"})
            QVERIFY(m_window->SaveTo(File(name)));
        QCOMPARE(RecentFiles::GetFiles(), (QStringList{File("a.job.xml"), File("b.job.xml")}));
        QVERIFY(QFile::remove(File("b.job.xml")));

        auto* menu = m_window->findChild<RecentFiles*>();
        emit menu->aboutToShow();
        Answer answer("OK");
        menu->actions().at(1)->trigger();
        QVERIFY(answer.WasAsked());
        QCOMPARE(RecentFiles::GetFiles(), QStringList{File("a.job.xml")});

        for (int number = 0; number < RecentFiles::MaximumCount + 5; ++number)
            RecentFiles::Add(File(QString::number(number)));
        QCOMPARE(RecentFiles::GetFiles().size(), qsizetype(RecentFiles::MaximumCount));
    }

    void reportsOfThePartsOfTheProgramStandAmongTheMessages()
    {
        ErrorHandler::Interface().Report(Severity::Error, "first", "why");
        ErrorHandler::Interface().Report(Severity::Info, "second");
        m_window->Messages().setFocus();
        m_window->Messages().setCurrentRow(0);
        QTest::keyClick(&m_window->Messages(), Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().endsWith("first: why"));
    }

    void allPanesAreReachedByKeyboard()
    {
        m_window->Nodes().SelectNode(tunerPath);
        m_window->Nodes().View()->setFocus();
        QList<QWidget*> reached;
        for (int step = 0; step < 4; ++step)
        {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
            reached << QApplication::focusWidget();
        }
        QCOMPARE(reached.at(0), m_window->Dialog().findChild<QRadioButton*>("jobForm"));
        QVERIFY(m_window->Dialog().GetDialog()->isAncestorOf(reached.at(1)));
        QCOMPARE(reached.at(2), &m_window->Messages());
        QCOMPARE(reached.at(3), m_window->Nodes().View());
    }
};

QTEST_MAIN(TestJobEdit)
#include "test_jobedit.moc"
