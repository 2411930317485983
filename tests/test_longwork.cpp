#include "jobedit/dialogpane.h"
#include "jobedit/longwork.h"
#include "jobedit/mainwindow.h"
#include "jobedit/messagelist.h"
#include "jobedit/nodepane.h"
#include "value/idledisposal.h"

#include <QtTest>
#include <QtWidgets>
#include <ctime>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

constexpr int copies = 300; // of the sample: a million values in a file of some 60 MB

/// Ticks every 10 ms, as painting and the keyboard would; remembers for how long it was not let: in processor time,
/// since other programs run on this machine, too.
class Heart
{
public:
    Heart()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.callOnTimeout([this] { Beat(); });
        m_timer.start(10);
    }
    qint64 LongestGap()
    {
        Beat();
        return m_longest;
    }

private:
    void Beat()
    {
        const qint64 now = Now();
        m_longest = std::max(m_longest, now - std::exchange(m_last, now));
    }
    static qint64 Now() { return qint64(std::clock()) * 1000 / CLOCKS_PER_SEC; }

    QTimer m_timer;
    qint64 m_last = Now();
    qint64 m_longest = 0;
};

QByteArray ReadAll(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

void NameAll(const Node& node)
{
    for (const auto& value : node.GetValues())
        value->SetExplicit(true);
    for (const auto& below : node.GetNodes())
        NameAll(*below);
}

} // namespace

class TestLongWork : public QObject
{
    Q_OBJECT

    QTemporaryDir m_directory;
    std::unique_ptr<MainWindow> m_window;

    QString File(const QString& name) const { return m_directory.filePath(name); }

    /// The sample again and again: once naming its values as it does, once naming all.
    void WriteLargeJobs()
    {
        JobModel::Load(); // brings the resources
        QFile sample(":/models/sample.job.xml");
        QVERIFY(sample.open(QIODevice::ReadOnly));
        const QByteArray text = sample.readAll();
        const qsizetype begin = text.indexOf("<Node ");
        const QByteArray end = "\n  </Node>";
        const QByteArray job = text.mid(begin, text.indexOf(end) + end.size() - begin);
        QFile sparse(File("sparse.job.xml"));
        QVERIFY(sparse.open(QIODevice::WriteOnly));
        sparse.write(text.left(begin));
        for (int copy = 0; copy < copies; ++copy)
            sparse.write(QByteArray(job).replace("/Jobs/Demo", "/Jobs/J" + QByteArray::number(copy)));
        sparse.write("</Job>\n");
        sparse.close();

        Tree tree;
        JobFile file(tree);
        QVERIFY(file.Load(sparse.fileName()));
        QVERIFY(tree.ValueCount() > 1'000'000);
        for (const Node* top : tree.GetTopNodes())
            NameAll(*top);
        QVERIFY(file.SaveAs(File("full.job.xml")));
        QVERIFY(QFileInfo(File("full.job.xml")).size() > 60'000'000);
    }

    void Settle()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!IdleDisposal::IsUnderWay(), 20000);
        QTest::qWait(50);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
        QLocale::setDefault(QLocale::C);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
        WriteLargeJobs();
    }

    void init()
    {
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

    void theWindowAnswersWithin100MsWhileALargeJobComesAndGoes_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("all values named") << "full.job.xml";
        QTest::newRow("few values named") << "sparse.job.xml";
    }
    void theWindowAnswersWithin100MsWhileALargeJobComesAndGoes()
    {
        QFETCH(QString, file);
        const auto gapOf = [this](const std::function<bool()>& operation)
        {
            Heart heart;
            if (!operation())
                return qint64(-1);
            Settle();
            return heart.LongestGap();
        };
        // The best of three: the first round also makes what stays.
        qint64 open = 1000, save = 1000, close = 1000;
        for (int round = 0; round < 3 && std::max({open, save, close}) >= 100; ++round)
        {
            open = std::min(open, gapOf([&] { return m_window->OpenFile(File(file)); }));
            QCOMPARE(m_window->Nodes().GetNodes().size(), size_t(copies * 98));
            save = std::min(save, gapOf([&] { return m_window->SaveTo(File("saved.job.xml")); }));
            close = std::min(close, gapOf([&] { return m_window->NewFromSample(); }));
        }
        qInfo("Longest steps in ms: open %d, save %d, close %d", int(open), int(save), int(close));
        QVERIFY(open >= 0 && save >= 0 && close >= 0);
#ifdef NDEBUG
        // The figure to keep to is 100, as printed above; what fails is a step that has become a long one on any machine.
        QVERIFY2(std::max({open, save, close}) < 250, qPrintable(QString::number(std::max({open, save, close}))));
#endif
    }

    void aLoadOrASaveIsCancelledAndNothingIsLost_data()
    {
        QTest::addColumn<bool>("saving");
        QTest::addColumn<QString>("way");
        for (const bool saving : {false, true})
            for (const char* way : {"Escape", "button", "closing the window"})
                if (!saving || way != QLatin1String("button")) // a save is over before there is one
                    QTest::addRow("%s, by %s", saving ? "saving" : "opening", way) << saving << QString(way);
    }
    void aLoadOrASaveIsCancelledAndNothingIsLost()
    {
        QFETCH(bool, saving);
        QFETCH(QString, way);
        const QString target = File("target.job.xml");
        if (saving)
            QVERIFY(m_window->OpenFile(File("sparse.job.xml")));
        QFile::remove(target);
        QVERIFY(QFile::copy(":/models/sample.job.xml", target));
        const QByteArray before = ReadAll(target);
        const QString path = m_window->Nodes().GetCurrentNode()->path;
        const QTabWidget* dialog = m_window->Dialog().GetDialog();
        const size_t values = Tree::Instance()->ValueCount();

        QTimer user;
        user.callOnTimeout(
            [&]
            {
                if (way == "Escape" && LongWork::IsUnderWay())
                    QTest::keyClick(m_window.get(), Qt::Key_Escape);
                else if (way != "button" && LongWork::IsUnderWay())
                    m_window->close();
                else if (const auto* panel = m_window->findChild<QFrame*>("longWork"))
                    QTest::mouseClick(panel->findChild<QPushButton*>(), Qt::LeftButton);
            });
        user.start(5);
        const bool done = saving ? m_window->SaveTo(target) : m_window->OpenFile(File("full.job.xml"));
        user.stop();
        QVERIFY(!done);

        QVERIFY(m_window->isVisible());
        QVERIFY(!m_window->findChild<QFrame*>("longWork"));
        QVERIFY(m_window->statusBar()->currentMessage().contains("cancelled"));
        QCOMPARE(ReadAll(target), before);
        QCOMPARE(Tree::Instance()->ValueCount(), values);
        QCOMPARE(m_window->Nodes().GetCurrentNode()->path, path);
        QCOMPARE(m_window->Dialog().GetDialog(), dialog);
        QVERIFY(!m_window->isWindowModified());
        ValueBase* value = Tree::Instance()->FindValue(path + "TUNER_HF_NB_FREQUENCY");
        QVERIFY(!value || (value->SetStoredText("7100000") && m_window->isWindowModified()));
    }

    void progressIsShownBeforeThereIsAWindow()
    {
        m_window->hide();
        QPointer<QWidget> panel;
        QTimer user;
        user.callOnTimeout(
            [&]
            {
                for (QWidget* window : QApplication::topLevelWidgets())
                    if (window->objectName() == "longWork" && window->isVisible())
                        panel = window;
                if (panel)
                    QTest::keyClick(panel, Qt::Key_Escape);
            });
        user.start(5);
        QVERIFY(!m_window->OpenFile(File("full.job.xml")));
        QVERIFY(!panel);
        QVERIFY(m_window->Document().GetFileName().isEmpty());
        QVERIFY(!m_window->isVisible());
    }

    void theFilterOfALargeJobAnswersAndShowsWhatMatches()
    {
        QVERIFY(m_window->OpenFile(File("sparse.job.xml")));
        qint64 longest = 0;
        for (const char key : {'_', 'v', 'u', 'h', 'f'})
        {
            const auto begin = std::clock();
            QTest::keyClick(m_window->Nodes().Filter(), key);
            longest = std::max<qint64>(longest, qint64(std::clock() - begin) * 1000 / CLOCKS_PER_SEC);
        }
#ifdef NDEBUG
        QVERIFY2(longest < 400, qPrintable(QString::number(longest))); // 20 to 70 on a quiet machine
#endif
        m_window->Nodes().Filter()->setText("J7");
        const QTreeView* view = m_window->Nodes().View();
        const QModelIndex job = view->model()->index(0, 0);
        QCOMPARE(view->model()->rowCount(), 11); // J7 and J70 to J79
        QVERIFY(view->isExpanded(job) && view->isExpanded(view->model()->index(0, 0, job)));
    }

    void inputWhileWorkIsUnderWayChangesNothing()
    {
        QVERIFY(m_window->Nodes().SelectNode("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/"));
        auto* field =
            m_window->Dialog().GetDialog()->findChild<QWidget*>("TUNER_HF_NB_FREQUENCY")->findChild<QLineEdit*>();
        field->setFocus();
        const QString text = field->text();
        int rounds = 0;
        {
            LongWork work("Counting", m_window.get());
            QTimer::singleShot(0, this,
                               [&]
                               {
                                   QTest::keyClicks(field, "123\t");
                                   QTest::keyClick(m_window.get(), Qt::Key_2, Qt::ControlModifier);
                                   QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                                                     m_window->Nodes().View()->mapTo(m_window.get(), QPoint(20, 60)));
                               });
            const LongWork inner("Part of it", m_window.get());
            for (QElapsedTimer time; !time.isValid() || !time.hasExpired(LongWork::ShownAfterMs + 100); ++rounds)
            {
                if (!time.isValid())
                    time.start();
                QVERIFY(work.Progress(time.elapsed(), LongWork::ShownAfterMs + 100));
                QTest::qSleep(1);
            }
            const auto panels = m_window->findChildren<QFrame*>("longWork");
            QCOMPARE(panels.size(), 1);
            QVERIFY(panels.first()->findChild<QProgressBar*>()->value() > 500);
        }
        QCOMPARE(field->text(), text);
        QVERIFY(field->hasFocus());
        QCOMPARE(m_window->Dialog().GetForm(), Form::Job);
        QVERIFY(!m_window->isWindowModified());
        QTest::keyClicks(field, "1");
        QVERIFY(field->text() != text);
    }
};

QTEST_MAIN(TestLongWork)
#include "test_longwork.moc"
