#include "common.h"
#include "editorfixture.h"
#include "jobedit/compareactions.h"
#include "jobedit/differencemodel.h"
#include "jobedit/longwork.h"
#include "jobedit/otherjob.h"
#include "jobedit/valuetexts.h"

using namespace EditorTest;

namespace
{

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

class TestCompare : public DeskTest
{
    Q_OBJECT

    static QTreeView* List(CompareDialog& dialog) { return dialog.findChild<QTreeView*>("differences"); }
    CompareDialog* OpenDialog() { return Window().findChild<CompareDialog*>(); }
    /// This dialog, once it has the keyboard.
    static CompareDialog* Wait(CompareDialog* dialog)
    {
        return QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }) ? dialog : nullptr;
    }
    CompareDialog* CompareWith(const QByteArray& content)
    {
        WriteAll(File("other.job.xml"), content);
        return Wait(Window().Comparing().CompareWithFile(File("other.job.xml")));
    }
    static void Click(CompareDialog& dialog, const QStringList& buttons)
    {
        for (const QString& button : buttons)
            QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    /// As if the user came back from another program.
    void Activate()
    {
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Window(), &activation);
    }

private Q_SLOTS:
    void init() { Begin(); }
    void cleanup() { End(); }

    void differencesComeInTheOrderOfTheFile_data()
    {
        const Table<QByteArray, QString> row("right", "text");
        row("none", Sample(), "");
        row("a value", SampleWithFrequency("7040000"), "~ " + frequencyPath + ": 10 MHz -> 7.04 MHz\n");
        row("nodes", Renamed(SampleWithFrequency("7040000"), "TDS_EXT", "TDS_NEW"),
            "- /Jobs/Demo/TDS_EXT/: TDS\n~ " + frequencyPath + ": 10 MHz -> 7.04 MHz\n+ /Jobs/Demo/TDS_NEW/: TDS\n");
        row("channels", Sample().replace("G_WDE_RASTER\" count=\"2\"", "G_WDE_RASTER\" count=\"1\""),
            "- /Jobs/Demo/TDS_EXC/CS_RASTER/DETECTOR/Range2/: (node)\n");
        row("a type", Sample().replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\""),
            "~ " + tunerPath + ": IPC_TUNER_HF -> IPC_OTHER\n");
    }
    void differencesComeInTheOrderOfTheFile()
    {
        QFETCH(QByteArray, right);
        QFETCH(QString, text);
        int heard = 0;
        JournalHook hook = Tree::Instance()->SetJournal([&](const JournalEntry&) { ++heard; });
        {
            OtherJob other;
            WriteAll(File(), right);
            QVERIFY(other.file.Load(File()));
            QCOMPARE(ToText(CompareTrees(*Tree::Instance(), {}, other.tree, {})), text);
        }
        Tree::Instance()->SetJournal(std::move(hook));
        QCOMPARE(heard, 0);
        QVERIFY(!Window().isWindowModified());
    }

    void valuesOnOneSideOnlyAndNamesOfItemsAreShown()
    {
        const auto text = []
        { return ToText(CompareTrees(*Tree::Instance(), tunerPath, *Tree::Instance(), voicePath)); };
        QCOMPARE(text(), QString()); // the same groups with the same defaults
        Set(voicePath + "TUNER_HF_NB_ANALOGDEMOD_METHOD", "4");
        Tree::Instance()->RemoveValue(tunerPath + "TUNER_HF_NB_MGCVALUE");
        QCOMPARE(text(), "~ TUNER_HF_NB_ANALOGDEMOD_METHOD: USB -> CW\n+ TUNER_HF_NB_MGCVALUE: 60 dB\n");
    }

    void contentsAreReadable_data()
    {
        const Table<int, QString, QString> row("kind", "stored", "text");
        const int frequency = int(ValueKind::Frequency);
        row("Hz", frequency, "0", "0 Hz");
        row("kHz", frequency, "1050", "1.05 kHz");
        row("MHz", frequency, "433920001", "433.920001 MHz");
        row("GHz", frequency, "1234567891", "1.234567891 GHz");
        row("negative", frequency, "-5000", "-5 kHz");
        row("number", int(ValueKind::Double), "-2.5", "-2.5 dB");
        row("numbers", int(ValueKind::DoubleList), "-2.5;3", "-2.5; 3");
        row("no number", int(ValueKind::Int), "many", "many");
        row("moment", int(ValueKind::DateTime), "2024-02-29T23:05:00", "29.02.2024 23:05:00");
        row("items", int(ValueKind::Selection), "1;9", "One, 9");
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
        OtherJob big;
        for (int value = 0; value < 20000; ++value)
            big.tree.CreateValue<IntValue>(QStringLiteral("/N%1/V%2").arg(value / 200).arg(value));
        CompareTrees(big.tree, {}, big.tree, {}, [&](qint64 done, qint64 all) { return ++calls < 1 || done > all; });
        QCOMPARE(calls, 1);
    }

    void tickedDifferencesAreTakenOverByKeyboard()
    {
        CompareDialog* dialog = CompareWith(Renamed(SampleWithFrequency("7040000"), "TDS_EXT", "TDS_NEW"));
        QVERIFY(dialog);
        const auto* takeOver = dialog->findChild<QPushButton*>("takeOver");
        QCOMPARE(dialog->Model().rowCount(), 3);
        QVERIFY(!takeOver->isEnabled());

        auto* filter = dialog->findChild<QLineEdit*>("differenceFilter");
        filter->setFocus();
        QTest::keyClicks(filter, "frequency");
        QCOMPARE(List(*dialog)->model()->rowCount(), 1);
        QTest::keyClick(filter, Qt::Key_Return);
        QVERIFY(dialog->isVisible());
        QVERIFY(List(*dialog)->hasFocus());
        QTest::keyClick(List(*dialog), Qt::Key_Home);
        QTest::keyClick(List(*dialog), Qt::Key_Space);
        QVERIFY(takeOver->isEnabled());
        QVERIFY(!Window().isWindowModified());
        QTest::keyClick(dialog, Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(Stored(frequencyPath), "7040000"); // a button's key presses it visibly
        QVERIFY(Window().isWindowModified());
        QVERIFY(Tree::Instance()->FindNode(u"/Jobs/Demo/TDS_EXT"));
        QCOMPARE(dialog->Model().rowCount(), 2);

        filter->clear();
        Click(*dialog, {"tickAll", "takeOver"});
        QCOMPARE(dialog->Model().rowCount(), 0);
        QTest::keyClick(List(*dialog), Qt::Key_C, Qt::ControlModifier); // in an empty list
        for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Down})
            QTest::keyClick(List(*dialog), key);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!Tree::Instance()->FindNode(u"/Jobs/Demo/TDS_EXT"));
        const QString added = "/Jobs/Demo/TDS_NEW/CS_EXT/TUNER/";
        QTRY_VERIFY(Window().Nodes().SelectNode(added));
        // What came is a part of the job, and equal to the other one after it was saved.
        QVERIFY(Window().SaveTo(File("mine.job.xml")));
        OtherJob mine, other;
        QVERIFY(mine.file.Load(File("mine.job.xml")) && other.file.Load(File("other.job.xml")));
        QCOMPARE(ToText(CompareTrees(mine.tree, {}, other.tree, {})), QString());

        // Two take-overs, two steps, nodes and values alike.
        History().Undo();
        QVERIFY(!Tree::Instance()->FindNode(added));
        QVERIFY(Window().Document().File().FindNodeSpec(u"/Jobs/Demo/TDS_EXT/CS_EXT/TUNER/"));
        QCOMPARE(Stored(frequencyPath), "7040000");
        History().Undo();
        QCOMPARE(Stored(frequencyPath), "10000000");
        QVERIFY(!History().CanUndo());
    }

    void whatCannotBeTakenOverSaysWhy()
    {
        QByteArray content = Sample().replace("G_WDE_RASTER\" count=\"2\"", "G_WDE_RASTER\" count=\"3\"");
        CompareDialog* dialog = CompareWith(content.replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\""));
        QVERIFY(dialog);
        Click(*dialog, {"tickAll", "takeOver"});
        QCOMPARE(dialog->Model().rowCount(), 2);
        QVERIFY(!List(*dialog)->isColumnHidden(DifferenceModel::Reason));
        for (int row = 0; row < 2; ++row)
            QVERIFY(!dialog->Model().index(row, DifferenceModel::Reason).data().toString().isEmpty());
        QCOMPARE(Window().Messages().count(), 2);
        QVERIFY(Window().Messages().GetText().contains("Range3"));
        QVERIFY(!Window().isWindowModified());
    }

    void whatAValueHereCannotHoldIsRefused()
    {
        const QString above = QString::number(qint64(*Value(frequencyPath)->GetDescriptor().maximum) + 1);
        const QString source = tunerPath + Keys::TUNER_HF_NB_IFSOURCE; // has no such item
        const auto result = WriteValues(Window().Document(), {},
                                        {{frequencyPath, above}, {tunerPath + "X", "1"}, {source, "98765", false}});
        QCOMPARE(result.written, 0);
        QCOMPARE(result.refused.size(), size_t(3));
        for (const auto& refused : result.refused)
            QVERIFY(!refused.reason.isEmpty());
        QVERIFY(!Window().isWindowModified());
    }

    void theSavedStateComesBack()
    {
        QVERIFY(Window().SaveTo(File()));
        Set(frequencyPath, "7100000");
        CompareDialog* dialog = Wait(Window().Comparing().CompareWithSaved());
        QVERIFY(dialog && dialog->Model().rowCount() == 1);
        QTest::keyClick(List(*dialog), Qt::Key_Space);
        Click(*dialog, {"takeOver"});
        QCOMPARE(Stored(frequencyPath), QString("10000000"));
    }

    void returnLeadsToTheFieldAndF4BackToTheList()
    {
        CompareDialog* dialog = CompareWith(Renamed(SampleWithFrequency("7040000"), "TDS_EXT", "TDS_NEW"));
        QVERIFY(dialog);
        QTreeView* list = List(*dialog);
        Window().Nodes().SelectNode(voicePath);
        // A node that the job has, one that it lacks, and a field.
        QStringList seen;
        for (int row = 0; row < 3; ++row)
        {
            const QString key = dialog->Model().GetDifferences()[size_t(row)].key; // the list is made anew meanwhile
            list->setCurrentIndex(list->model()->index(row, DifferenceModel::Parameter));
            QTest::keyClick(list, Qt::Key_Return);
            QTRY_COMPARE(QApplication::activeWindow(), &Window());
            QVERIFY(dialog->isVisible());
            seen << m_desk->CurrentPath();
            if (key == Keys::TUNER_HF_NB_FREQUENCY)
            {
                auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
                QVERIFY(field);
                QVERIFY(!dialog->frameGeometry().intersects({field->mapToGlobal(QPoint()), field->size()}));
                field->selectAll();
                QTest::keyClicks(field, "7040 k");
            }
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
            QTRY_COMPARE(QApplication::activeWindow(), dialog);
            QVERIFY(list->hasFocus());
        }
        QCOMPARE(seen, (QStringList{"/Jobs/Demo/TDS_EXT/", tunerPath, "/Jobs/Demo/"}));
        QVERIFY(Window().statusBar()->currentMessage().contains("TDS_NEW"));
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
        QVERIFY(Window().NewFromSample());
        QTRY_VERIFY(!OpenDialog());
    }

    void anOpenListIsMadeAnewAfterLongWorkOnly()
    {
        CompareDialog* dialog = Wait(CompareWith(SampleWithFrequency("7040000")));
        QVERIFY(dialog && dialog->Model().rowCount() == 1);
        {
            LongWork work("Counting", &Window());
            QElapsedTimer time;
            time.start();
            for (Set(frequencyPath, "7040000"); !time.hasExpired(100);)
                work.Progress(1, 2);
            QCOMPARE(dialog->Model().rowCount(), 1);
        }
        QTRY_COMPARE(dialog->Model().rowCount(), 0);
    }

    void twoSelectedChainsAreComparedReachedAndTakenOver()
    {
        Set(voicePath + Keys::TUNER_HF_NB_FREQUENCY, "7040000");
        QVERIFY(Window().Nodes().SelectNode(tunerPath));
        QTreeView* tree = Window().Nodes().View();
        for (const QModelIndex& index : AllRows(*tree->model()))
            if (index.data() == "VOICE" && index.parent().data() == "CS_VOICE" &&
                index.parent().parent().data() == "TDS_HF1")
            {
                tree->scrollTo(index);
                const QPoint place = tree->visualRect(index).center();
                QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
            }
        QCOMPARE(Window().Nodes().GetSelectedNodes().size(), size_t(2));
        m_desk->Action("Compare Chains...")->trigger();
        CompareDialog* dialog = Wait(OpenDialog());
        QVERIFY(dialog);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole),
                 QString("CS_TUNER/TUNER"));
        QTreeView* list = List(*dialog);
        QTest::keyClick(list, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_desk->CurrentPath(), voicePath);
        QVERIFY(Window().focusWidget()->parentWidget()->objectName().contains(Keys::TUNER_HF_NB_FREQUENCY));
        const QPoint right = list->visualRect(list->model()->index(0, DifferenceModel::Right)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, right);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, right);
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
        QTRY_COMPARE(QApplication::activeWindow(), &Window());
        Click(*dialog, {"swap"});
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole),
                 QString("CS_VOICE/VOICE"));
        Click(*dialog, {"tickAll", "takeOver"});
        QCOMPARE(Stored(voicePath + Keys::TUNER_HF_NB_FREQUENCY), QString("10000000"));
        // Without the chain there is nothing to compare.
        QVERIFY(Window().Document().RemoveNode(voicePath.chopped(1), nullptr));
        QTRY_VERIFY(!OpenDialog());
    }

    void oneSelectedChainIsComparedWithOneOfItsTypeFirst()
    {
        QVERIFY(Window().Nodes().SelectNode("/Jobs/Demo/TDS_HFWB/HEADER_VOICE/"));
        const Next choice([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
        m_desk->Action("Compare Chains...")->trigger();
        QVERIFY(choice.HasActed());
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Right, Qt::Horizontal, Qt::DisplayRole),
                 QString("TDS_VUHFWB/HEADER_VOICE"));
        QVERIFY(dialog->Model().rowCount() > 0);
    }

    void aFileChangedBySomebodyElseIsShownOnceWhenTheWindowComesBack_data()
    {
        const Table<bool, bool> row("modified", "takeOver");
        row("keep mine", true, false);
        row("take theirs", true, true);
        row("nothing of mine: theirs is ticked", false, true);
    }
    void aFileChangedBySomebodyElseIsShownOnceWhenTheWindowComesBack()
    {
        QFETCH(bool, modified);
        QFETCH(bool, takeOver);
        QVERIFY(Window().SaveTo(File()));
        if (modified)
            Set(frequencyPath, "7100000");
        WriteAll(File(), SampleWithFrequency("7040000"));
        Activate();
        QTRY_VERIFY(OpenDialog());
        CompareDialog* dialog = Wait(OpenDialog());
        QVERIFY(dialog && dialog->Model().rowCount() == 1);
        QCOMPARE(dialog->Model().IsTicked(dialog->Model().index(0, 0)), !modified);
        if (takeOver && modified)
            QTest::keyClick(List(*dialog), Qt::Key_Space);
        Click(*dialog, takeOver ? QStringList{"takeOver", "close"} : QStringList{"close"});
        QTRY_VERIFY(!OpenDialog());
        const QString expected = takeOver ? "7040000" : "7100000";
        QCOMPARE(Stored(frequencyPath), expected);

        Activate();
        QTest::qWait(20);
        QVERIFY(!OpenDialog());
        QVERIFY(Window().Save()); // asks nothing any more
        QVERIFY(ReadAll(File()).contains(expected.toUtf8()));
    }

    void aFileWrittenAnewWithTheSameContentIsNoNewsButSavingAsks()
    {
        QVERIFY(Window().SaveTo(File()));
        WriteAll(File(), ReadAll(File()) + "<!-- theirs -->\n");
        Activate();
        QTest::qWait(50);
        QVERIFY(!OpenDialog());
        QVERIFY(!Window().Comparing().IsDiskSettled());
        // The question leads to the list, in which Escape decides nothing.
        QVERIFY(Asks({"Compare..."}, [&] { return !Window().Save(); }));
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog && dialog->Model().rowCount() == 0);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!OpenDialog());
        QVERIFY(!Window().Comparing().IsDiskSettled());
        QVERIFY(Asks({"Cancel"}, [&] { return !Window().Save(); }));
        QVERIFY(ReadAll(File()).contains("theirs"));
        QVERIFY(Asks({"Overwrite"}, [&] { return Window().Save(); }));
        QCOMPARE(ReadAll(File()), m_desk->Bytes());
    }
};

QTEST_MAIN(TestCompare)
#include "test_compare.moc"
