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

constexpr const char* program = "test_recovery";
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
void TypeName(QDialog& dialog, const QString& fileName)
{
    auto* name = dialog.findChild<QLineEdit*>();
    name->setText(fileName);
    QTest::keyClick(name, Qt::Key_Return);
}

QStringList Kept()
{
    return QDir(RecoveryJournal::Directory()).entryList({"*.edits"}, QDir::Files);
}

} // namespace

class TestRecovery : public DeskTest
{
    Q_OBJECT

    RecoveryOffer& Recovery() { return Window().Recovery(); }

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
    QString MakeJob()
    {
        const bool good = Window().NewFromSample() && Window().SaveTo(File()) && Window().NewFromSample();
        return good ? File() : QString();
    }

    // What a crash would leave of a new job.
    static QString Leave(const QList<RecoveryChange>& changes)
    {
        QByteArray bytes = RecoveryFile::LineOf(RecoveryBase());
        for (const RecoveryChange& change : changes)
            bytes += RecoveryFile::LineOf(change);
        const QString name = RecoveryJournal::Directory() + "/left.edits";
        QDir().mkpath(RecoveryJournal::Directory());
        WriteAll(name, bytes);
        return name;
    }

private slots:
    void initTestCase() { QDir(RecoveryJournal::Directory()).removeRecursively(); }
    void init() { Begin(program); } // has a directory of its own for what it keeps
    void cleanup()
    {
        End();
        QDir(RecoveryJournal::Directory()).removeRecursively();
    }

    void theEditsOfAKilledEditorComeBackAsOneStep_data() { WithAndWithout("isNew"); }
    void theEditsOfAKilledEditorComeBackAsOneStep()
    {
        QFETCH(bool, isNew);
        const QString job = isNew ? QString("new") : MakeJob();
        const QByteArray before = m_desk->Bytes();
        const QByteArray edited = Die(job);
        QVERIFY(edited.contains("7060000") && edited.contains("COPY"));
        if (!isNew)
            QCOMPARE(ReadAll(job), before);

        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QVERIFY(isNew || answer.GetText().contains("a.job.xml"));
        QVERIFY(!answer.GetText().contains("lost"));
        QCOMPARE(m_desk->Bytes(), edited);
        QVERIFY(Window().isWindowModified());
        QVERIFY(!Window().Document().IsReadOnly()); // the dead editor's lock holds nobody up
        QCOMPARE(Window().Document().GetFileName(), isNew ? QString() : job);
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty());
        // They are kept again: this editor may die as well.
        QCOMPARE(Kept().size(), 1);

        History().Undo();
        QCOMPARE(m_desk->Bytes(), before);
        QVERIFY(!History().CanUndo());
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
            Set(frequencyPath, QString::number(7'000'000 + edit));
            QTest::qWait(10);
        }
        QVERIFY2(longest < slow / 2, qPrintable(QString::number(longest)));

        const QDir directory(RecoveryJournal::Directory());
        const QByteArray kept = directory.filePath(Kept().value(0)).toUtf8();
        std::vector<DiskWatch::Call> calls;
        const auto isOnDisk = [&]
        {
            std::ranges::copy(DiskWatch::Take(), std::back_inserter(calls));
            const struct stat now = DiskWatch::Of(kept);
            return std::ranges::any_of(calls, [&](const auto& call)
                                       { return call.file == now.st_ino && call.size == now.st_size; });
        };
        QTest::qWait(600); // until the last edit is written
        QTRY_VERIFY(isOnDisk());
        DiskWatch::s_before = {};
        const auto callsFor = [&](const QByteArray& path)
        { return std::ranges::count(calls, DiskWatch::Of(path).st_ino, &DiskWatch::Call::file); };
        QVERIFY(callsFor(kept) <= all.elapsed() / 500 + 1);
        QCOMPARE(callsFor(directory.path().toUtf8()), 1);
    }

    void theUserMayDiscardOrComeBackLater()
    {
        const QString job = MakeJob();
        QVERIFY(!Die(job).isEmpty());
        QVERIFY(Asks({"Later"}, [&] { return !Recovery().OfferAll(); }));
        QVERIFY(!Asks({"Later"}, [&] { return Window().OpenFile(job); })); // is not asked again and again
        QCOMPARE(Window().Document().GetFileName(), job);
        m_desk.emplace();
        QVERIFY(QFile::rename(job, File("away")));
        {
            const Answer answer({"Restore", "OK"});
            QVERIFY(!Recovery().OfferAll());
            QVERIFY2(answer.GetText().contains("vanished"), qPrintable(answer.GetText()));
        }
        QCOMPARE(RecoveryJournal::FindAbandoned().size(), 1);
        QVERIFY(QFile::rename(File("away"), job));
        m_desk.emplace();
        QVERIFY(Asks({"Discard"}, [&] { return Window().OpenFile(job); }));
        QVERIFY(!Window().isWindowModified());
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty());
        QVERIFY(!Recovery().OfferAll());
    }

    void aJobThatChangedMeanwhileIsNamed()
    {
        const QString job = MakeJob();
        QVERIFY(!Die(job).isEmpty());
        QByteArray changed = ReadAll(job);
        changed.replace("<Node name=\"TUNER\"", "<Node name=\"TUNEX\"");
        WriteAll(job, changed);
        const Answer answer({"Restore", "OK"});
        QVERIFY(Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains("was changed since"), qPrintable(answer.GetText()));
        QVERIFY2(answer.GetText().contains("could not be brought back"), qPrintable(answer.GetText()));
        const QStringList aside = QDir(RecoveryJournal::Directory()).entryList({"*.rest"});
        QVERIFY(aside.size() == 1 && answer.GetText().contains(aside.first()));
        QVERIFY(Window().Messages().GetText().contains(frequencyPath + ": "));
        QVERIFY(Window().Messages().GetText().contains("7060000"));
        QVERIFY(Tree::Instance()->FindNode(u"/Jobs/Demo/COPY"));
    }

    void savingAndClosingLeaveNothingBehind()
    {
        const QDir directory(RecoveryJournal::Directory());
        m_desk->TypeFrequency("7040 k\t");
        QTRY_COMPARE(Kept().size(), 1);
        QVERIFY(RecoveryJournal::FindAbandoned().isEmpty()); // its editor lives
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(Kept().isEmpty());
        History().Undo();
        emit qGuiApp->applicationStateChanged(Qt::ApplicationInactive); // at once when the editor loses the focus
        QCOMPARE(Kept().size(), 1);
        const RecoveryFile undone = RecoveryFile::Read(directory.filePath(Kept().first()));
        QCOMPARE(undone.changes.size(), size_t(1)); // a change of what is saved
        QCOMPARE(undone.changes.front().text, Stored(frequencyPath));
        QCOMPARE(undone.base->file, File());
        Answer answer({"Discard"});
        QVERIFY(Window().close());
        m_desk.reset();
        QVERIFY(directory.isEmpty());
    }

    void takingBackTheRemovalOfASavedNodeIsKeptToo()
    {
        m_desk->TypeFrequency("7040 k\t");
        QString reason;
        QVERIFY(Window().Document().RemoveNode("/Jobs/Demo/TDS_HF1/CS_TUNER", &reason));
        QVERIFY(Window().SaveTo(File()));
        History().Undo();
        History().Undo();
        History().Redo();
        const QDir directory(RecoveryJournal::Directory());
        QTRY_COMPARE(Kept().size(), 1);
        QVERIFY(QFile::copy(directory.filePath(Kept().first()), File("kept")));
        QVERIFY(Window().Save());
        QVERIFY(Window().Document().RemoveNode("/Jobs/Demo/TDS_HF1/CS_TUNER", &reason));
        QVERIFY(Window().Save());
        QVERIFY(QFile::copy(File("kept"), directory.filePath("left.edits")));
        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QCOMPARE(Stored(frequencyPath), "7040000");
    }

    void contentsGoWithTheirNodeWhenAnotherTakesItsPlace()
    {
        using Kind = RecoveryChange::Kind;
        Leave({{Kind::Duplicate, 1, "/Jobs/Demo/TDS_HF1", "COPY"},
               {Kind::Value, 2, frequencyPath, "7040000"},
               {Kind::Rename, 3, "/Jobs/Demo/TDS_HF1", "OLD"},
               {Kind::Rename, 4, "/Jobs/Demo/COPY", "TDS_HF1"}});
        Answer answer({"Restore"});
        QVERIFY(Recovery().OfferAll());
        QCOMPARE(Stored(frequencyPath), "10000000");
        QCOMPARE(Stored(QString(frequencyPath).replace("TDS_HF1", "OLD")), "7040000");
    }

    void damagedFilesGiveWhatCanBeRead()
    {
        QList<RecoveryChange> changes;
        for (int step = 1; step <= 20; ++step)
            changes << RecoveryChange{RecoveryChange::Kind::Value, step, volumePath, QString::number(step)};
        const QString name = Leave(changes);
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
            QVERIFY(read.damaged >= 1 && read.changes.size() >= 18);
        }
        QByteArray damaged = whole;
        damaged[damaged.lastIndexOf("\"text\"") + 2] = '#';
        WriteAll(name, damaged);
        const Answer answer({"Restore", "Later"});
        QVERIFY(Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains("lost: 1"), qPrintable(answer.GetText()));
        QCOMPARE(Stored(volumePath), "19");
        WriteAll(name, whole.mid(9)); // without a beginning, but not thrown away
        QVERIFY(!Recovery().OfferAll());
        QVERIFY2(answer.GetText().contains(name), qPrintable(answer.GetText()));
        QVERIFY(QFile::exists(name));
    }

    void aSaveThatFailsLosesNothingAndOffersAnotherPlace_data()
    {
        EachText("fault",
                 {"directory vanished", "disk full", "directory in the place", "no directory", "no permission"});
    }
    void aSaveThatFailsLosesNothingAndOffersAnotherPlace()
    {
        QFETCH(QString, fault);
        QVERIFY(QDir().mkpath(File("jobs")));
        const QString job = File("jobs/a.job.xml");
        QVERIFY(Window().SaveTo(job));
        const QByteArray before = ReadAll(job);
        const bool forbidden = fault == "no permission";
        const auto all = QFileDevice::Permissions(QFlag(0x7777));
        const auto noWrite = all & ~(QFileDevice::WriteOwner | QFileDevice::WriteGroup | QFileDevice::WriteOther);
        const auto allow = qScopeGuard([&] { QFile::setPermissions(File("jobs"), all); });
        if (forbidden)
        {
            QVERIFY(Window().NewFromSample()); // which takes the lock away
            QVERIFY(QFile::setPermissions(job, all) && QFile::setPermissions(QFileInfo(File()).path(), all));
            QVERIFY(QFile::setPermissions(File("jobs"), noWrite));
            const OrdinaryUser user;
            if (!user.IsOrdinary())
                QSKIP("root is not bound by permissions, and may be nobody else here");
            QVERIFY(Window().OpenFile(job));
            QVERIFY(Window().Messages().GetText().contains(job + " could not be locked"));
            QVERIFY(!Window().Document().IsReadOnly());
        }
        m_desk->TypeFrequency("7040 k\t");
        QTRY_COMPARE(Kept().size(), 1);
        const QByteArray edited = m_desk->Bytes();
        const bool isInTheWay = fault == "directory in the place";
        if (isInTheWay)
            QVERIFY(QFile::remove(job) && QDir().mkpath(job + "/below"));
        else if (fault.contains("directory"))
            QVERIFY(QDir(File("jobs")).removeRecursively());
        if (fault == "no directory")
            WriteAll(File("jobs"), "a file");
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        if (fault == "disk full")
        {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit small{4096, limit.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
        }
        std::optional<OrdinaryUser> user;
        const QStringList overwrite = isInTheWay ? QStringList{"Overwrite"} : QStringList();
        {
            if (forbidden)
                user.emplace();
            const Answer answer(overwrite + QStringList{"OK"});
            const bool saved = Window().Save();
            setrlimit(RLIMIT_FSIZE, &limit);
            user.reset();
            QVERIFY(!saved);
            QVERIFY2(answer.GetText().contains(job), qPrintable(answer.GetText()));
            QCOMPARE(answer.GetText().contains(qt_error_string(EACCES)), forbidden);
        }
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().Messages().GetText().contains(job));
        QCOMPARE(m_desk->Bytes(), edited);
        if (fault == "disk full" || forbidden)
        {
            QCOMPARE(ReadAll(job), before);
            const QStringList lock = forbidden ? QStringList() : QStringList{"a.job.xml.lock"};
            QCOMPARE(QDir(File("jobs")).entryList({"a.job.xml?*"}, QDir::Files), lock);
        }
        if (fault == "disk full")
            return;
        // The message itself leads to another place.
        const QString elsewhere = File("elsewhere.job.xml");
        {
            if (forbidden)
                user.emplace();
            const Next chooser([&](QDialog& dialog) { TypeName(dialog, elsewhere); }, "QFileDialog");
            const Answer answer(overwrite + QStringList{"Save As..."});
            const bool saved = Window().Save();
            user.reset();
            QVERIFY(saved);
        }
        QCOMPARE(ReadAll(elsewhere), edited);
        QVERIFY(!Window().isWindowModified());
        QVERIFY(QFile::exists(elsewhere + ".lock"));
    }

    void whatIsNoJobIsOverwrittenOnlyWhenWanted()
    {
        const QByteArray damaged = "<Job version=\"1\"><Node";
        WriteAll(File(), damaged);
        QVERIFY(Asks({"OK"}, [&] { return !Window().OpenFile(File()); }));
        QVERIFY(Window().Document().GetFileName().isEmpty()); // its name is not taken over
        {
            const Answer answer({"Cancel"});
            QVERIFY(!Window().SaveTo(File()));
            QVERIFY(answer.GetText().contains("a.job.xml:1:"));
        }
        QCOMPARE(ReadAll(File()), damaged);
        QVERIFY(Asks({"Overwrite"}, [&] { return Window().SaveTo(File()); }));
        QCOMPARE(ReadAll(File()), m_desk->Bytes());
        QCOMPARE(ReadAll(File() + '~'), damaged);
    }
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("ipcparam");
    QCoreApplication::setApplicationName(program);
    QStandardPaths::setTestModeEnabled(true);
    if (qEnvironmentVariableIsSet(jobVariable))
        return EditAndDie();
    TestRecovery test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_recovery.moc"
