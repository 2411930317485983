#include "jobedit/compareactions.h"
#include "jobedit/differencemodel.h"
#include "jobedit/mainwindow.h"
#include "jobedit/messagelist.h"
#include "jobedit/nodepane.h"
#include "jobedit/otherjob.h"
#include "jobedit/valuetexts.h"
#include "keys/keys.h"

#include <QTest>
#include <QtWidgets>

using namespace JOBEDIT;
using namespace TKE;

namespace
{

const QString tunerPath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_TUNER/TUNER/");
const QString voicePath = QStringLiteral("/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/");
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

QByteArray Sample()
{
    JobModel::Load(); // brings the resources
    return ReadAll(":/models/sample.job.xml");
}

/// The sample with a value of the HF tuner.
QByteArray SampleWithFrequency(const QByteArray& content)
{
    const QByteArray element = "groups=\"G_DFLOCATE G_SCAN_HF G_TUNER_HF\"";
    QByteArray job = Sample();
    const qsizetype place = job.indexOf(element, job.indexOf("\"CS_TUNER\"")) + element.size();
    return job.replace(place, 2, "><Value name=\"TUNER_HF_NB_FREQUENCY\">" + content + "</Value></Node>");
}

QByteArray Renamed(QByteArray job, const QByteArray& before, const QByteArray& after)
{
    return job.replace("name=\"" + before + '"', "name=\"" + after + '"');
}

} // namespace

class TestCompare : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<MainWindow> m_window;

    QString File(const QString& name) const { return m_directory->filePath(name); }
    static ValueBase* Value(const QString& path) { return Tree::Instance()->FindValue(path); }
    static QTreeView* List(CompareDialog& dialog) { return dialog.findChild<QTreeView*>("differences"); }
    static QPushButton* Button(CompareDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }
    CompareDialog* OpenDialog() const { return m_window->findChild<CompareDialog*>(); }
    void Load(OtherJob& job, const QByteArray& content)
    {
        WriteAll(File("load.job.xml"), content);
        FileError error;
        QVERIFY2(job.file.Load(File("load.job.xml"), &error), qPrintable(error.ToText()));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("ipcparam");
        QCoreApplication::setApplicationName("jobedit");
        QStandardPaths::setTestModeEnabled(true);
        QLocale::setDefault(QLocale::C);
    }

    void init()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("settings"));
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

    void differencesComeInTheOrderOfTheFile_data()
    {
        QTest::addColumn<QByteArray>("right");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << Sample() << "";
        QTest::newRow("a value") << SampleWithFrequency("7040000") << "~ " + frequencyPath + ": 10 MHz -> 7.04 MHz\n";
        QTest::newRow("nodes") << Renamed(SampleWithFrequency("7040000"), "TDS_EXT", "TDS_NEW")
                               << "- /Jobs/Demo/TDS_EXT/: TDS\n~ " + frequencyPath +
                                      ": 10 MHz -> 7.04 MHz\n+ /Jobs/Demo/TDS_NEW/: TDS\n";
        QTest::newRow("channels") << Sample().replace("G_WDE_RASTER\" count=\"2\"", "G_WDE_RASTER\" count=\"1\"")
                                  << "- /Jobs/Demo/TDS_EXC/CS_RASTER/DETECTOR/Range2/: (node)\n";
        QTest::newRow("a type") << Sample().replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\"")
                                << "~ " + tunerPath + ": IPC_TUNER_HF -> IPC_OTHER\n";
    }
    void differencesComeInTheOrderOfTheFile()
    {
        QFETCH(QByteArray, right);
        QFETCH(QString, text);
        int heard = 0;
        JournalHook hook = Tree::Instance()->SetJournal([&](const JournalEntry&) { ++heard; });
        {
            OtherJob other;
            Load(other, right);
            QCOMPARE(ToText(CompareTrees(*Tree::Instance(), {}, other.tree, {})), text);
        }
        Tree::Instance()->SetJournal(std::move(hook));
        QCOMPARE(heard, 0);
        QVERIFY(!m_window->isWindowModified());
    }

    void valuesOnOneSideOnlyAndNamesOfItemsAreShown()
    {
        const auto found = CompareTrees(*Tree::Instance(), tunerPath, *Tree::Instance(), voicePath);
        QCOMPARE(ToText(found), QString()); // the same groups with the same defaults

        Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7040000");
        auto* selection = dynamic_cast<ValueSelection*>(Value(tunerPath + "TUNER_HF_NB_MGC"));
        for (const auto& value : Tree::Instance()->FindNode(voicePath)->GetValues())
            if (value->GetKind() == ValueKind::Selection && value->GetDescriptor().items.size() > 1)
                selection = static_cast<ValueSelection*>(value.get());
        QVERIFY(selection);
        const SelectionItem& item = selection->GetItems().back().GetKey() == selection->GetCurrentKey()
                                        ? selection->GetItems().front()
                                        : selection->GetItems().back();
        QVERIFY(selection->SelectKey(item.GetKey()));
        Tree::Instance()->RemoveValue(tunerPath + "TUNER_HF_NB_MGCVALUE");

        int seen = 0;
        for (const Difference& difference : CompareTrees(*Tree::Instance(), tunerPath, *Tree::Instance(), voicePath))
        {
            if (difference.key == selection->GetName())
                QCOMPARE(difference.RightText(), item.GetName());
            else if (difference.key == "TUNER_HF_NB_MGCVALUE")
                QCOMPARE(difference.kind, Difference::Kind::OnlyRight);
            else
                QCOMPARE(difference.Path(), QString(Keys::TUNER_HF_NB_FREQUENCY));
            ++seen;
        }
        QCOMPARE(seen, 3);
    }

    void contentsAreReadable_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("text");
        const int frequency = int(ValueKind::Frequency);
        QTest::newRow("0 Hz") << frequency << "0"
                              << "0 Hz";
        QTest::newRow("Hz") << frequency << "999"
                            << "999 Hz";
        QTest::newRow("kHz") << frequency << "1050"
                             << "1.05 kHz";
        QTest::newRow("MHz") << frequency << "433920001"
                             << "433.920001 MHz";
        QTest::newRow("GHz") << frequency << "3000000000"
                             << "3 GHz";
        QTest::newRow("GHz to the last Hz") << frequency << "1234567891"
                                            << "1.234567891 GHz";
        QTest::newRow("negative") << frequency << "-5000"
                                  << "-5 kHz";
        QTest::newRow("number") << int(ValueKind::Double) << "-2.5"
                                << "-2.5 dB";
        QTest::newRow("numbers") << int(ValueKind::DoubleList) << "-2.5;3"
                                 << "-2.5; 3";
        QTest::newRow("no number") << int(ValueKind::Int) << "many"
                                   << "many";
        QTest::newRow("moment") << int(ValueKind::DateTime) << "2024-02-29T23:05:00"
                                << "29.02.2024 23:05:00";
        QTest::newRow("off") << int(ValueKind::Bool) << "false"
                             << "off";
        QTest::newRow("items") << int(ValueKind::Selection) << "1;9"
                               << "One, 9";
    }
    void contentsAreReadable()
    {
        QFETCH(int, kind);
        QFETCH(QString, stored);
        ValueDescriptor descriptor;
        descriptor.kind = ValueKind(kind);
        descriptor.unit = descriptor.kind == ValueKind::Double ? "dB" : "";
        descriptor.items = {{1, "One"}};
        QTEST(ValueTexts::OfStored(descriptor, stored), "text");
        QFETCH(QString, text);
        if (descriptor.kind != ValueKind::Selection && descriptor.kind != ValueKind::DateTime)
            text.replace('.', ',');
        QLocale::setDefault(QLocale::German);
        const QString german = ValueTexts::OfStored(descriptor, stored);
        QLocale::setDefault(QLocale::C);
        QCOMPARE(german, text);
    }

    void aComparisonCanBeEnded()
    {
        int calls = 0;
        QVERIFY(CompareTrees(*Tree::Instance(), {}, Tree(), {}).size() > 0);
        OtherJob big;
        for (int node = 0; node < 100; ++node)
            for (int value = 0; value < 200; ++value)
                big.tree.CreateValue<IntValue>(QStringLiteral("/N%1/V%2").arg(node).arg(value));
        CompareTrees(big.tree, {}, big.tree, {},
                     [&](qint64 done, qint64 all)
                     {
                         Q_ASSERT(done <= all);
                         return ++calls < 1;
                     });
        QCOMPARE(calls, 1);
    }

    void tickedDifferencesAreTakenOverByKeyboard()
    {
        WriteAll(File("other.job.xml"), SampleWithFrequency("7040000").replace("name=\"TDS_EXT\"", "name=\"TDS_NEW\""));
        CompareDialog* dialog = m_window->Comparing().CompareWithFile(File("other.job.xml"));
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().rowCount(), 3);
        QVERIFY(!Button(*dialog, "takeOver")->isEnabled());

        auto* filter = dialog->findChild<QLineEdit*>("differenceFilter");
        filter->setFocus();
        QTest::keyClicks(filter, "frequency");
        QCOMPARE(List(*dialog)->model()->rowCount(), 1);
        QTest::keyClick(filter, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QVERIFY(List(*dialog)->hasFocus());
        QTest::keyClick(List(*dialog), Qt::Key_Home);
        QTest::keyClick(List(*dialog), Qt::Key_Space);
        QVERIFY(Button(*dialog, "takeOver")->isEnabled());
        QVERIFY(!m_window->isWindowModified());
        QTest::keyClick(dialog, Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(Value(frequencyPath)->GetStoredText(), QString("7040000")); // a button's key presses it visibly
        QVERIFY(m_window->isWindowModified());
        QVERIFY(Tree::Instance()->FindNode(u"/Jobs/Demo/TDS_EXT"));
        QCOMPARE(dialog->Model().rowCount(), 2);

        filter->clear();
        QTest::mouseClick(Button(*dialog, "tickAll"), Qt::LeftButton);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(dialog->Model().rowCount(), 0);
        QTest::keyClick(List(*dialog), Qt::Key_C, Qt::ControlModifier); // in an empty list
        for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Down})
            QTest::keyClick(List(*dialog), key);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!Tree::Instance()->FindNode(u"/Jobs/Demo/TDS_EXT"));
        const QString added = "/Jobs/Demo/TDS_NEW/CS_EXT/TUNER/";
        QTRY_VERIFY(m_window->Nodes().SelectNode(added));
        // What came is a part of the job, and equal to the other one after it was saved.
        QVERIFY(m_window->SaveTo(File("mine.job.xml")));
        OtherJob mine, other;
        QVERIFY(mine.file.Load(File("mine.job.xml")) && other.file.Load(File("other.job.xml")));
        QCOMPARE(ToText(CompareTrees(mine.tree, {}, other.tree, {})), QString());

        // Two take-overs, two steps, nodes and values alike.
        m_window->Document().History().Undo();
        QVERIFY(!Tree::Instance()->FindNode(added));
        QVERIFY(m_window->Document().File().FindNodeSpec(u"/Jobs/Demo/TDS_EXT/CS_EXT/TUNER/"));
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("7040000"));
        m_window->Document().History().Undo();
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("10000000"));
        QVERIFY(!m_window->Document().History().CanUndo());
    }

    void whatCannotBeTakenOverSaysWhy()
    {
        QByteArray content = Sample().replace("G_WDE_RASTER\" count=\"2\"", "G_WDE_RASTER\" count=\"3\"");
        WriteAll(File("other.job.xml"), content.replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\""));
        CompareDialog* dialog = m_window->Comparing().CompareWithFile(File("other.job.xml"));
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QTest::mouseClick(Button(*dialog, "tickAll"), Qt::LeftButton);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(dialog->Model().rowCount(), 2);
        QVERIFY(!List(*dialog)->isColumnHidden(DifferenceModel::Reason));
        for (int row = 0; row < 2; ++row)
            QVERIFY(!dialog->Model().index(row, DifferenceModel::Reason).data().toString().isEmpty());
        QCOMPARE(m_window->Messages().count(), 2);
        QVERIFY(m_window->Messages().GetText().contains("Range3"));
        QVERIFY(!m_window->isWindowModified());
    }

    void aValueOutsideTheRangeHereIsRefused()
    {
        const double maximum = *Value(frequencyPath)->GetDescriptor().maximum;
        const QString wanted = QString::number(qint64(maximum) + 1);
        WriteResult result = WriteValues(m_window->Document(), {}, {{frequencyPath, wanted}, {tunerPath + "X", "1"}});
        QCOMPARE(result.written, 0);
        QCOMPARE(result.refused.size(), size_t(2));
        QVERIFY(!result.refused[0].reason.isEmpty() && !result.refused[1].reason.isEmpty());
        QVERIFY(!m_window->isWindowModified());
    }

    void theSavedStateComesBack()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        Value(frequencyPath)->SetStoredText("7100000");
        CompareDialog* dialog = m_window->Comparing().CompareWithSaved();
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().rowCount(), 1);
        QTest::keyClick(List(*dialog), Qt::Key_Space);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("10000000"));
    }

    void returnLeadsToTheFieldAndF4BackToTheList()
    {
        WriteAll(File("other.job.xml"), SampleWithFrequency("7040000").replace("name=\"TDS_EXT\"", "name=\"TDS_NEW\""));
        CompareDialog* dialog = m_window->Comparing().CompareWithFile(File("other.job.xml"));
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QTreeView* list = List(*dialog);
        m_window->Nodes().SelectNode(voicePath);
        // A node that the job has, one that it lacks, and a field.
        QStringList seen;
        for (int row = 0; row < 3; ++row)
        {
            const Difference& difference = dialog->Model().GetDifferences()[size_t(row)];
            list->setCurrentIndex(list->model()->index(row, DifferenceModel::Parameter));
            QTest::keyClick(list, Qt::Key_Return);
            QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
            QVERIFY(dialog->isVisible());
            seen << m_window->Nodes().GetCurrentNode()->path;
            if (difference.key == Keys::TUNER_HF_NB_FREQUENCY)
            {
                auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
                QVERIFY(field);
                const QRect place(field->mapToGlobal(QPoint()), field->size());
                QVERIFY(!dialog->frameGeometry().intersects(place));
                field->selectAll();
                QTest::keyClicks(field, "7040 k");
            }
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
            QTRY_COMPARE(QApplication::activeWindow(), dialog);
            QVERIFY(list->hasFocus());
        }
        QCOMPARE(seen, (QStringList{"/Jobs/Demo/TDS_EXT/", tunerPath, "/Jobs/Demo/"}));
        QVERIFY(m_window->statusBar()->currentMessage().contains("TDS_NEW"));
        // What was set right meanwhile is gone, what is ticked stays so.
        QTRY_COMPARE(dialog->Model().rowCount(), 2);
        QTest::keyClick(list, Qt::Key_Space);
        QTest::keyClick(list, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(dialog->Model().rowCount(), 3);
        int ticked = 0;
        for (int row = 0; row < 3; ++row)
            ticked += dialog->Model().IsTicked(dialog->Model().index(row, 0));
        QCOMPARE(ticked, 1);
        // Another job has nothing to do with this list.
        QVERIFY(m_window->NewFromSample());
        QTRY_VERIFY(!OpenDialog());
    }

    void eitherOfTwoChainsIsReached()
    {
        Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7040000");
        CompareDialog* dialog = m_window->Comparing().CompareChains(tunerPath, voicePath);
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QTreeView* list = List(*dialog);
        QTest::keyClick(list, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_window->Nodes().GetCurrentNode()->path, voicePath);
        QVERIFY(m_window->focusWidget()->parentWidget()->objectName().contains(Keys::TUNER_HF_NB_FREQUENCY));
        const QRect row = list->visualRect(list->model()->index(0, DifferenceModel::Right));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(m_window->Nodes().GetCurrentNode()->path, tunerPath);
        QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
        // Without the chain there is nothing to compare.
        QVERIFY(m_window->Document().RemoveNode(voicePath.chopped(1), nullptr));
        QTRY_VERIFY(!OpenDialog());
    }

    void twoSelectedChainsAreComparedAndEitherTakesOver()
    {
        Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7040000");
        QVERIFY(m_window->Nodes().SelectNode(tunerPath));
        QTreeView* tree = m_window->Nodes().View();
        const QModelIndexList matches = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, "VOICE", -1,
                                                             Qt::MatchExactly | Qt::MatchRecursive);
        for (const QModelIndex& match : matches)
            if (match.parent().data() == "CS_VOICE" && match.parent().parent().data() == "TDS_HF1")
            {
                tree->scrollTo(match);
                QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::ControlModifier,
                                  tree->visualRect(match).center());
            }
        QCOMPARE(m_window->Nodes().GetSelectedNodes().size(), size_t(2));
        for (QAction* action : m_window->ToolsMenu()->actions())
            if (action->text().remove('&') == "Compare Chains...")
                action->trigger();
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole), tunerPath);
        QTest::mouseClick(Button(*dialog, "swap"), Qt::LeftButton);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole), voicePath);
        QTest::mouseClick(Button(*dialog, "tickAll"), Qt::LeftButton);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->GetStoredText(), QString("10000000"));
    }

    void oneSelectedChainIsComparedWithOneOfItsTypeFirst()
    {
        const QString header = "/Jobs/Demo/TDS_HFWB/HEADER_VOICE/";
        QVERIFY(m_window->Nodes().SelectNode(header));
        QTimer::singleShot(50, this,
                           []
                           {
                               auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
                               QVERIFY(box);
                               QTest::keyClick(box, Qt::Key_Return);
                           });
        for (QAction* action : m_window->ToolsMenu()->actions())
            if (action->text().remove('&') == "Compare Chains...")
                action->trigger();
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Right, Qt::Horizontal, Qt::DisplayRole),
                 QString("/Jobs/Demo/TDS_VUHFWB/HEADER_VOICE/"));
        QVERIFY(dialog->Model().rowCount() > 0);
    }

    void aFileChangedBySomebodyElseIsShownOnceWhenTheWindowComesBack_data()
    {
        QTest::addColumn<bool>("modified");
        QTest::addColumn<bool>("takeOver");
        QTest::newRow("keep mine") << true << false;
        QTest::newRow("take theirs") << true << true;
        QTest::newRow("nothing of mine: theirs is ticked") << false << true;
    }
    void aFileChangedBySomebodyElseIsShownOnceWhenTheWindowComesBack()
    {
        QFETCH(bool, modified);
        QFETCH(bool, takeOver);
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        if (modified)
            Value(frequencyPath)->SetStoredText("7100000");
        WriteAll(File("a.job.xml"), SampleWithFrequency("7040000"));
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(m_window.get(), &activation);
        QTRY_VERIFY(OpenDialog());
        CompareDialog* dialog = OpenDialog();
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().rowCount(), 1);
        QCOMPARE(dialog->Model().IsTicked(dialog->Model().index(0, 0)), !modified);
        if (takeOver)
        {
            if (modified)
                QTest::keyClick(List(*dialog), Qt::Key_Space);
            QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        }
        QTest::mouseClick(Button(*dialog, "close"), Qt::LeftButton);
        QTRY_VERIFY(!OpenDialog());
        const QString expected = takeOver ? "7040000" : "7100000";
        QCOMPARE(Value(frequencyPath)->GetStoredText(), expected);

        QCoreApplication::sendEvent(m_window.get(), &activation);
        QTest::qWait(20);
        QVERIFY(!OpenDialog());
        QVERIFY(m_window->Save()); // asks nothing any more
        QVERIFY(ReadAll(File("a.job.xml")).contains(expected.toUtf8()));
    }

    void aFileWrittenAnewWithTheSameContentIsNoNewsButSavingAsks()
    {
        QVERIFY(m_window->SaveTo(File("a.job.xml")));
        WriteAll(File("a.job.xml"), ReadAll(File("a.job.xml")) + "<!-- theirs -->\n");
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(m_window.get(), &activation);
        QTest::qWait(50);
        QVERIFY(!OpenDialog());
        QVERIFY(!m_window->Comparing().IsDiskSettled());
        // The question leads to the list, in which Escape decides nothing.
        bool asked = false;
        QTimer::singleShot(50, this,
                           [&]
                           {
                               auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                               QVERIFY(box);
                               for (QAbstractButton* button : box->buttons())
                                   if (button->text().remove('&') == "Compare...")
                                   {
                                       asked = true;
                                       return button->click();
                                   }
                               box->reject();
                           });
        QVERIFY(!m_window->Save());
        QVERIFY(asked);
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->Model().rowCount(), 0);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!OpenDialog());
        QVERIFY(!m_window->Comparing().IsDiskSettled());
        QVERIFY(ReadAll(File("a.job.xml")).contains("theirs"));
    }
};

QTEST_MAIN(TestCompare)
#include "test_compare.moc"
