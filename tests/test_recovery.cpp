#include "diskwatch.h"
#include "editorfixture.h"
#include "jobedit/recoveryfile.h"
#include "jobedit/recoveryjournal.h"
#include "jobedit/recoveryoffer.h"
#include "ordinaryuser.h"

#include <QProcess>
#include <csignal>
#include <random>
#include <sys/resource.h>

using namespace EditorTest;

namespace
{

constexpr const char* jobVariable = "RECOVERY_TEST_JOB";
constexpr const char* resultVariable = "RECOVERY_TEST_RESULT";
const QString volumePath = tunerPath + Keys::TUNER_HF_NB_AUDIOVOLUME;

/// An editor that edits, writes what saving would have written to a file beside, and dies.
int EditAndDie()
{
    const QString job = qEnvironmentVariable(jobVariable);
    Editor editor;
    if (!(job == "new" ? editor.window.NewFromSample() : editor.window.OpenFile(job)))
        return 1;
    editor.TypeFrequency("7040 k\t");
    editor.TypeFrequency("7050 k\t");
    editor.Press(Qt::Key_Z);
    QTest::keyClick(editor.Find(tunerPath, Keys::TUNER_HF_NB_AUDIOVOLUME), Qt::Key_Down);
    QString reason;
    JobDocument& document = editor.window.Document();
    const bool good = document.RenameNode("/Jobs/Demo/TDS_VUHF1", "BAND <2>", &reason) &&
                      document.DuplicateNode("/Jobs/Demo/BAND <2>", "COPY", &reason) &&
                      document.RemoveNode("/Jobs/Demo/BAND <2>", &reason) &&
                      document.AddNode("/Jobs/Demo", {.name = "NEW", .type = "CS", .groups = {"G_TUNER_HF"}}, &reason);
    if (!good)
        return 2;
    editor.TypeFrequency("7060 k\t");
    QTest::qWait(1000); // as long as an edit may be at risk
    WriteAll(qEnvironmentVariable(resultVariable), editor.Bytes());
    std::raise(SIGKILL);
    return 3;
}

/// Types this name into the next dialog for files.
class Chooser : public QTimer
{
public:
    explicit Chooser(const QString& fileName)
    {
        callOnTimeout(
            [this, fileName]
            {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (!dialog)
                    return;
                stop();
                auto* name = dialog->findChild<QLineEdit*>();
                name->setText(fileName);
                QTest::keyClick(name, Qt::Key_Return);
            });
        start(10);
    }
};

} // namespace

class TestRecovery : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<Editor> m_editor;

    QString File(const QString& name) const { return m_directory->filePath(name); }
    MainWindow& Window() { return m_editor->window; }
    RecoveryOffer& Recovery() { return m_editor->window.Recovery(); }

    /// Lets an editor die over this job, and returns what it would have saved.
    QByteArray Die(const QString& job)
    {
        QProcess editor;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(jobVariable, job);
        environment.insert(resultVariable, File("result"));
        editor.setProcessEnvironment(environment);
        editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        editor.start(QCoreApplication::applicationFilePath(), QStringList());
        editor.waitForFinished(60000);
        return editor.exitStatus() == QProcess::CrashExit ? ReadAll(File("result")) : QByteArray();
    }
    QString MakeJob(const QString& name = "a.job.xml")
    {
        if (!Window().NewFromSample() || !Window().SaveTo(File(name)) || !Window().NewFromSample())
            return {};
        return File(name);
    }
    /// Leaves these edits behind as a dead editor would.
    static QString Leave(const RecoveryBase& base, const QList<RecoveryChange>& changes)
    {
        QByteArray bytes = RecoveryFile::LineOf(base);
        for (const RecoveryChange& change : changes)
            bytes += RecoveryFile::LineOf(change);
        QDir().mkpath(RecoveryJournal::Directory());
        const QString name = RecoveryJournal::Directory() + "/left.edits";
        WriteAll(name, bytes);
        return name;
    }

private slots:
    void initTestCase() { QDir(RecoveryJournal::Directory()).removeRecursively(); }
    void init()
    {
        QLocale::setDefault(QLocale::C);
        m_directory = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
        m_editor = std::make_unique<Editor>();
        QVERIFY(Window().NewFromSample());
    }
    void cleanup()
    {
        m_editor.reset();
        Tree::Instance()->Clear();
        QDir(RecoveryJournal::Directory()).removeRecursively();
    }

    void theEditsOfAKilledEditorComeBackAsOneStep_data()
    {
        QTest::addColumn<bool>("isNew");
        QTest::newRow("of a file") << false;
        QTest::newRow("of a new job") << true;
    }
    void theEditsOfAKilledEditorComeBackAsOneStep()
    {
        QFETCH(bool, isNew);
        const QString job = isNew ? QString("new") : MakeJob();
        const QByteArray before = m_editor->Bytes();
        const QByteArray edited = Die(job);
        QVERIFY(edited.contains("7060000") && edited.contains("COPY"));
        if (!isNew)
            QCOMPARE(ReadAll(job), before);

        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QVERIFY(isNew || answer.GetText().contains("a.job.xml"));
        QVERIFY(!answer.GetText().contains("lost"));
        QCOMPARE(m_editor->Bytes(), edited);
        QVERIFY(Window().isWindowModified());
        QVERIFY(!Window().Document().IsReadOnly()); // the dead editor's lock holds nobody up
        QCOMPARE(Window().Document().GetFileName(), isNew ? QString() : job);
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty());
        // They are kept again: this editor may die as well.
        QCOMPARE(QDir(RecoveryJournal::Directory()).entryList({"*.edits"}).size(), 1);

        m_editor->History().Undo();
        QCOMPARE(m_editor->Bytes(), before);
        QVERIFY(!m_editor->History().CanUndo());
        QVERIFY(!Window().isWindowModified());
    }

    void whatIsKeptReachesTheDiskAndNobodyWaitsForIt()
    {
        constexpr int slow = 1500; // ms
        DiskWatch::s_before = [](int handle)
        {
            if (QFile::symLinkTarget("/proc/self/fd/" + QString::number(handle)).endsWith(".edits"))
                QThread::msleep(slow);
            return 0;
        };
        DiskWatch::Take();
        QElapsedTimer all, sinceTick;
        qint64 longest = 0;
        QTimer tick;
        tick.callOnTimeout([&] { longest = std::max(longest, sinceTick.restart()); });
        tick.start(5);
        all.start();
        sinceTick.start();
        for (int edit = 0; all.elapsed() < 2 * slow; ++edit)
        {
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText(QString::number(7'000'000 + edit)));
            QTest::qWait(10);
        }
        QVERIFY2(longest < slow / 2, qPrintable(QString::number(longest)));

        const QDir directory(RecoveryJournal::Directory());
        const QByteArray kept = directory.filePath(directory.entryList({"*.edits"}, QDir::Files).value(0)).toUtf8();
        std::vector<DiskWatch::Call> calls;
        const auto isOnDisk = [&]
        {
            for (const DiskWatch::Call& call : DiskWatch::Take())
                calls.push_back(call);
            const struct stat now = DiskWatch::Of(kept);
            return std::ranges::any_of(calls, [&](const auto& call)
                                       { return call.file == now.st_ino && call.size == now.st_size; });
        };
        QTest::qWait(600); // until the last edit is written
        QTRY_VERIFY(isOnDisk());
        DiskWatch::s_before = {};
        const auto isKept = [&](const auto& call) { return call.file == DiskWatch::Of(kept).st_ino; };
        const auto isDirectory = [&](const auto& call)
        { return call.isDirectory && call.file == DiskWatch::Of(directory.path().toUtf8()).st_ino; };
        QVERIFY(std::ranges::count_if(calls, isKept) <= all.elapsed() / 500 + 1);
        QCOMPARE(std::ranges::count_if(calls, isDirectory), 1);
    }

    void theUserMayDiscardOrComeBackLater()
    {
        const QString job = MakeJob();
        QVERIFY(!Die(job).isEmpty());
        {
            Answer answer({"Later"});
            QVERIFY(!Recovery().OfferAll());
            QVERIFY(answer.WasAsked());
        }
        {
            Answer answer({"Later"});
            QVERIFY(Window().OpenFile(job)); // is not asked again and again
            QVERIFY(!answer.WasAsked());
        }
        QCOMPARE(RecoveryJournal::FindAbandoned().size(), 1);
        m_editor.reset();
        m_editor = std::make_unique<Editor>();
        Answer answer({"Discard"});
        QVERIFY(Window().OpenFile(job));
        QVERIFY(answer.WasAsked());
        QVERIFY(!Window().isWindowModified());
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty());
        QVERIFY(!Recovery().OfferAll());
    }

    void aJobThatChangedOrVanishedMeanwhileIsNamed()
    {
        const QString job = MakeJob();
        QVERIFY(!Die(job).isEmpty());
        QByteArray changed = ReadAll(job);
        changed.replace("<Node name=\"TUNER\"", "<Node name=\"TUNEX\"");
        WriteAll(job, changed);
        {
            Answer answer({"Restore", "OK"});
            QVERIFY(Recovery().OfferAll());
            QVERIFY2(answer.GetText().contains("was changed since"), qPrintable(answer.GetText()));
            QVERIFY2(answer.GetText().contains("could not be brought back"), qPrintable(answer.GetText()));
        }
        QVERIFY(Window().Messages().GetText().contains(frequencyPath + ": "));
        QVERIFY(Window().Messages().GetText().contains("7060000"));
        QVERIFY(Tree::Instance()->FindNode(u"/Jobs/Demo/COPY"));
    }

    void withoutItsFileTheEditsStay()
    {
        const QString job = MakeJob();
        QVERIFY(!Die(job).isEmpty());
        QVERIFY(QFile::remove(job));
        Answer answer({"Restore", "OK"});
        QVERIFY(!Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains("vanished"), qPrintable(answer.GetText()));
        QCOMPARE(RecoveryJournal::FindAbandoned().size(), 1);
    }

    void savingAndClosingLeaveNothingBehind()
    {
        const QDir directory(RecoveryJournal::Directory());
        const auto kept = [&] { return directory.entryList({"*.edits"}, QDir::Files).size(); };
        m_editor->TypeFrequency("7040 k\t");
        QTRY_COMPARE(kept(), 1);
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty()); // its editor lives
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QCOMPARE(kept(), 0);
        m_editor->History().Undo();
        emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive); // at once when the editor loses the focus
        QCOMPARE(kept(), 1);
        const RecoveryFile undone = RecoveryFile::Read(directory.filePath(directory.entryList({"*.edits"}).first()));
        QCOMPARE(undone.changes.size(), size_t(1)); // a change of what is saved
        QCOMPARE(undone.changes.front().text, Editor::Stored(frequencyPath));
        QCOMPARE(undone.base->file, File("a.job.xml"));
        Answer answer({"Discard"});
        QVERIFY(Window().close());
        m_editor.reset();
        QVERIFY(directory.isEmpty());
        m_editor = std::make_unique<Editor>();
    }

    void takingBackTheRemovalOfASavedNodeIsKeptToo()
    {
        m_editor->TypeFrequency("7040 k\t");
        QString reason;
        QVERIFY(Window().Document().RemoveNode("/Jobs/Demo/TDS_HF1/CS_TUNER", &reason));
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        m_editor->History().Undo();
        m_editor->History().Undo();
        m_editor->History().Redo();
        const QByteArray end = m_editor->Bytes();
        const QDir directory(RecoveryJournal::Directory());
        QTRY_COMPARE(directory.entryList({"*.edits"}, QDir::Files).size(), 1);
        QVERIFY(QFile::copy(directory.filePath(directory.entryList({"*.edits"}).first()), File("kept")));
        QVERIFY(Window().Save());
        QVERIFY(Window().Document().RemoveNode("/Jobs/Demo/TDS_HF1/CS_TUNER", &reason));
        QVERIFY(Window().Save());
        QVERIFY(QFile::copy(File("kept"), directory.filePath("left.edits")));
        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QCOMPARE(Editor::Stored(frequencyPath), "7040000");
    }

    void contentsGoWithTheirNodeWhenAnotherTakesItsPlace()
    {
        using Kind = RecoveryChange::Kind;
        Leave({}, {{Kind::Duplicate, 1, "/Jobs/Demo/TDS_HF1", "COPY"},
                   {Kind::Value, 2, frequencyPath, "7040000"},
                   {Kind::Rename, 3, "/Jobs/Demo/TDS_HF1", "OLD"},
                   {Kind::Rename, 4, "/Jobs/Demo/COPY", "TDS_HF1"}});
        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QCOMPARE(Editor::Stored(frequencyPath), "10000000");
        QCOMPARE(Editor::Stored(QString(frequencyPath).replace("TDS_HF1", "OLD")), "7040000");
    }

    void damagedFilesGiveWhatCanBeRead()
    {
        RecoveryBase base;
        QList<RecoveryChange> changes;
        for (int step = 1; step <= 20; ++step)
            changes << RecoveryChange{RecoveryChange::Kind::Value, step, volumePath, QString::number(step)};
        const QString name = Leave(base, changes);
        const QByteArray whole = ReadAll(name);
        QCOMPARE(RecoveryFile::Read(name).changes.size(), size_t(20));
        for (qsizetype size = 0; size < whole.size(); size += 7)
        {
            WriteAll(name, whole.left(size));
            const RecoveryFile read = RecoveryFile::Read(name);
            QCOMPARE(qsizetype(read.changes.size()), std::max<qsizetype>(whole.left(size).count('\n') - 1, 0));
            QCOMPARE(read.damaged > 0, !whole.left(size).endsWith('\n') && size > 0);
        }
        std::mt19937 random(1);
        for (int round = 0; round < 300; ++round)
        {
            QByteArray damaged = whole;
            damaged[int(random() % quint32(damaged.size()))] = char(random());
            if (damaged == whole)
                continue;
            WriteAll(name, damaged);
            const RecoveryFile read = RecoveryFile::Read(name);
            QVERIFY(read.damaged >= 1);
            QVERIFY(read.changes.size() >= 18);
        }
        QByteArray damaged = whole;
        damaged[damaged.lastIndexOf("\"text\"") + 2] = '#';
        WriteAll(name, damaged);
        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains("lost: 1"), qPrintable(answer.GetText()));
        QCOMPARE(Editor::Stored(volumePath), "19");
    }

    void aFileWithoutABeginningIsNotThrownAway()
    {
        const QString name = Leave({}, {{RecoveryChange::Kind::Value, 1, volumePath, "1"}});
        WriteAll(name, ReadAll(name).mid(9));
        Answer answer({"Later"});
        QVERIFY(!Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains(name), qPrintable(answer.GetText()));
        QVERIFY(QFile::exists(name));
    }

    void aSaveThatFailsLosesNothingAndOffersAnotherPlace_data()
    {
        QTest::addColumn<QString>("fault");
        for (const char* fault : {"directory vanished", "disk full", "directory in the place", "no directory"})
            QTest::newRow(fault) << fault;
    }
    void aSaveThatFailsLosesNothingAndOffersAnotherPlace()
    {
        QFETCH(QString, fault);
        QVERIFY(QDir(m_directory->path()).mkdir("jobs"));
        const QString job = File("jobs/a.job.xml");
        QVERIFY(Window().SaveTo(job));
        const QByteArray before = ReadAll(job);
        m_editor->TypeFrequency("7040 k\t");
        if (fault == "directory vanished")
            QVERIFY(QDir(File("jobs")).removeRecursively());
        else if (fault == "directory in the place")
            QVERIFY(QFile::remove(job) && QDir().mkpath(job + "/below"));
        else if (fault == "no directory")
        {
            QVERIFY(QDir(File("jobs")).removeRecursively());
            WriteAll(File("jobs"), "a file");
        }
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        if (fault == "disk full")
        {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit small{4096, limit.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
        }
        {
            Answer answer(fault == "directory in the place" ? QStringList{"Overwrite", "OK"} : QStringList{"OK"});
            const bool saved = Window().Save();
            setrlimit(RLIMIT_FSIZE, &limit);
            QVERIFY(!saved);
            QVERIFY2(answer.GetText().contains(job), qPrintable(answer.GetText()));
        }
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().Messages().GetText().contains(job));
        if (fault == "disk full")
        {
            QCOMPARE(ReadAll(job), before);
            QCOMPARE(QDir(File("jobs")).entryList({"a.job*"}, QDir::Files),
                     (QStringList{"a.job.xml", "a.job.xml.lock"}));
            return;
        }
        // The message itself leads to another place.
        Chooser chooser(File("elsewhere.job.xml"));
        Answer answer(fault == "directory in the place" ? QStringList{"Overwrite", "Save As..."}
                                                        : QStringList{"Save As..."});
        QVERIFY(Window().Save());
        QVERIFY(ReadAll(File("elsewhere.job.xml")).contains("7040000"));
        QVERIFY(!Window().isWindowModified());
    }

    void aDirectoryThatTheUserMayNotWriteToIsNamedAndLosesNothing()
    {
        QVERIFY(QDir(m_directory->path()).mkdir("jobs"));
        const QString job = File("jobs/a.job.xml");
        QVERIFY(Window().SaveTo(job));
        QVERIFY(Window().NewFromSample()); // which takes the lock away
        const QByteArray before = ReadAll(job);
        // The group, too: it is that of root still.
        const auto anyone =
            QFileDevice::ReadOther | QFileDevice::ExeOther | QFileDevice::ReadGroup | QFileDevice::ExeGroup;
        const auto owner = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
        const auto writers = QFileDevice::WriteOwner | QFileDevice::WriteOther | QFileDevice::WriteGroup;
        QVERIFY(QFile::setPermissions(job, owner | anyone | writers));
        QVERIFY(QFile::setPermissions(File("jobs"), owner | anyone));
        QVERIFY(QFile::setPermissions(m_directory->path(), owner | anyone | writers));
        const auto cleanUp = qScopeGuard([&] { QFile::setPermissions(File("jobs"), owner | QFileDevice::WriteOwner); });
        {
            const OrdinaryUser user;
            if (!user.IsOrdinary())
                QSKIP("root is not bound by permissions, and may be nobody else here");
            Answer answer({"OK"});
            QVERIFY2(Window().OpenFile(job), qPrintable(answer.GetText()));
        }
        QVERIFY2(Window().Messages().GetText().contains(job + " could not be locked"),
                 qPrintable(Window().Messages().GetText()));
        QVERIFY(!Window().Document().IsReadOnly());
        m_editor->TypeFrequency("7040 k\t");
        const QDir kept(RecoveryJournal::Directory());
        QTRY_COMPARE(kept.entryList({"*.edits"}, QDir::Files).size(), 1);
        const QByteArray edited = m_editor->Bytes();
        {
            const OrdinaryUser user;
            Answer answer({"OK"});
            QVERIFY(!Window().Save());
            QVERIFY2(answer.GetText().contains(job) && answer.GetText().contains(qt_error_string(EACCES)),
                     qPrintable(answer.GetText()));
        }
        QVERIFY(Window().isWindowModified());
        QCOMPARE(m_editor->Bytes(), edited);
        QCOMPARE(ReadAll(job), before);
        QCOMPARE(QDir(File("jobs")).entryList(QDir::Files), QStringList("a.job.xml"));
        {
            const OrdinaryUser user;
            Chooser chooser(File("elsewhere.job.xml"));
            Answer answer({"Save As..."});
            QVERIFY(Window().Save());
        }
        QCOMPARE(ReadAll(File("elsewhere.job.xml")), edited);
        QVERIFY(!Window().isWindowModified());
        QVERIFY(QFile::exists(File("elsewhere.job.xml.lock")));
    }

    void whatIsNoJobIsOverwrittenOnlyWhenWanted()
    {
        const QByteArray damaged = "<Job version=\"1\"><Node";
        WriteAll(File("a.job.xml"), damaged);
        {
            Answer answer({"OK"});
            QVERIFY(!Window().OpenFile(File("a.job.xml")));
        }
        QVERIFY(Window().Document().GetFileName().isEmpty()); // its name is not taken over
        {
            Answer answer({"Cancel"});
            QVERIFY(!Window().SaveTo(File("a.job.xml")));
            QVERIFY(answer.GetText().contains("a.job.xml:1:"));
        }
        QCOMPARE(ReadAll(File("a.job.xml")), damaged);
        Answer answer({"Overwrite"});
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QCOMPARE(ReadAll(File("a.job.xml")), m_editor->Bytes());
        QCOMPARE(ReadAll(File("a.job.xml~")), damaged);
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("ipcparam");
    QCoreApplication::setApplicationName("test_recovery"); // has a directory of its own for what it keeps
    QStandardPaths::setTestModeEnabled(true);
    if (qEnvironmentVariableIsSet(jobVariable))
        return EditAndDie();
    TestRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_recovery.moc"
