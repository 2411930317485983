#include "editorfixture.h"
#include "jobedit/compareactions.h"
#include "jobedit/differencemodel.h"
#include "jobedit/otherjob.h"
#include "jobedit/valuetexts.h"
#include "common.h"

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

class TestCompare : public QObject
{
    Q_OBJECT

    std::optional<Desk> m_desk;

    MainWindow& Window() { return m_desk->window; }
    static ValueBase* Value(const QString& path) { return Editor::Value(path); }
    static QTreeView* List(CompareDialog& dialog) { return dialog.findChild<QTreeView*>("differences"); }
    static QPushButton* Button(CompareDialog& dialog, const char* name) { return dialog.findChild<QPushButton*>(name); }
    CompareDialog* OpenDialog() { return Window().findChild<CompareDialog*>(); }
    void CompareChains()
    {
        for (QAction* action : Window().ToolsMenu()->actions())
            if (action->text().remove('&') == "Compare Chains...")
                action->trigger();
    }
    void Load(OtherJob& job, const QByteArray& content)
    {
        WriteAll(m_desk->File("load.job.xml"), content);
        FileError error;
        QVERIFY2(job.file.Load(m_desk->File("load.job.xml"), &error), qPrintable(error.ToText()));
    }

private Q_SLOTS:
    void init() { m_desk.emplace(); }
    void cleanup() { m_desk.reset(); }

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
            Load(other, right);
            QCOMPARE(ToText(CompareTrees(*Tree::Instance(), {}, other.tree, {})), text);
        }
        Tree::Instance()->SetJournal(std::move(hook));
        QCOMPARE(heard, 0);
        QVERIFY(!Window().isWindowModified());
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
        const Table<int, QString, QString> row("kind", "stored", "text");
        const int frequency = int(ValueKind::Frequency);
        row("0 Hz", frequency, "0", "0 Hz");
        row("Hz", frequency, "999", "999 Hz");
        row("kHz", frequency, "1050", "1.05 kHz");
        row("MHz", frequency, "433920001", "433.920001 MHz");
        row("GHz", frequency, "3000000000", "3 GHz");
        row("GHz to the last Hz", frequency, "1234567891", "1.234567891 GHz");
        row("negative", frequency, "-5000", "-5 kHz");
        row("number", int(ValueKind::Double), "-2.5", "-2.5 dB");
        row("numbers", int(ValueKind::DoubleList), "-2.5;3", "-2.5; 3");
        row("no number", int(ValueKind::Int), "many", "many");
        row("moment", int(ValueKind::DateTime), "2024-02-29T23:05:00", "29.02.2024 23:05:00");
        row("off", int(ValueKind::Bool), "false", "off");
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
        WriteAll(m_desk->File("other.job.xml"),
                 SampleWithFrequency("7040000").replace("name=\"TDS_EXT\"", "name=\"TDS_NEW\""));
        CompareDialog* dialog = Window().Comparing().CompareWithFile(m_desk->File("other.job.xml"));
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
        QVERIFY(!Window().isWindowModified());
        QTest::keyClick(dialog, Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(Value(frequencyPath)->GetStoredText(), QString("7040000")); // a button's key presses it visibly
        QVERIFY(Window().isWindowModified());
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
        QTRY_VERIFY(Window().Nodes().SelectNode(added));
        // What came is a part of the job, and equal to the other one after it was saved.
        QVERIFY(Window().SaveTo(m_desk->File("mine.job.xml")));
        OtherJob mine, other;
        QVERIFY(mine.file.Load(m_desk->File("mine.job.xml")) && other.file.Load(m_desk->File("other.job.xml")));
        QCOMPARE(ToText(CompareTrees(mine.tree, {}, other.tree, {})), QString());

        // Two take-overs, two steps, nodes and values alike.
        Window().Document().History().Undo();
        QVERIFY(!Tree::Instance()->FindNode(added));
        QVERIFY(Window().Document().File().FindNodeSpec(u"/Jobs/Demo/TDS_EXT/CS_EXT/TUNER/"));
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("7040000"));
        Window().Document().History().Undo();
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("10000000"));
        QVERIFY(!Window().Document().History().CanUndo());
    }

    void whatCannotBeTakenOverSaysWhy()
    {
        QByteArray content = Sample().replace("G_WDE_RASTER\" count=\"2\"", "G_WDE_RASTER\" count=\"3\"");
        WriteAll(m_desk->File("other.job.xml"), content.replace("\"IPC_TUNER_HF\"", "\"IPC_OTHER\""));
        CompareDialog* dialog = Window().Comparing().CompareWithFile(m_desk->File("other.job.xml"));
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QTest::mouseClick(Button(*dialog, "tickAll"), Qt::LeftButton);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(dialog->Model().rowCount(), 2);
        QVERIFY(!List(*dialog)->isColumnHidden(DifferenceModel::Reason));
        for (int row = 0; row < 2; ++row)
            QVERIFY(!dialog->Model().index(row, DifferenceModel::Reason).data().toString().isEmpty());
        QCOMPARE(Window().Messages().count(), 2);
        QVERIFY(Window().Messages().GetText().contains("Range3"));
        QVERIFY(!Window().isWindowModified());
    }

    void aValueOutsideTheRangeHereIsRefused()
    {
        const double maximum = *Value(frequencyPath)->GetDescriptor().maximum;
        const QString wanted = QString::number(qint64(maximum) + 1);
        WriteResult result = WriteValues(Window().Document(), {}, {{frequencyPath, wanted}, {tunerPath + "X", "1"}});
        QCOMPARE(result.written, 0);
        QCOMPARE(result.refused.size(), size_t(2));
        QVERIFY(!result.refused[0].reason.isEmpty() && !result.refused[1].reason.isEmpty());
        QVERIFY(!Window().isWindowModified());
    }

    void theSavedStateComesBack()
    {
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        Value(frequencyPath)->SetStoredText("7100000");
        CompareDialog* dialog = Window().Comparing().CompareWithSaved();
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().rowCount(), 1);
        QTest::keyClick(List(*dialog), Qt::Key_Space);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(Value(frequencyPath)->GetStoredText(), QString("10000000"));
    }

    void returnLeadsToTheFieldAndF4BackToTheList()
    {
        WriteAll(m_desk->File("other.job.xml"), SampleWithFrequency("7040000").replace("name=\"TDS_EXT\"", "name=\"TDS_NEW\""));
        CompareDialog* dialog = Window().Comparing().CompareWithFile(m_desk->File("other.job.xml"));
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
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
            seen << Window().Nodes().GetCurrentNode()->path;
            if (key == Keys::TUNER_HF_NB_FREQUENCY)
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

    void eitherOfTwoChainsIsReached()
    {
        Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7040000");
        CompareDialog* dialog = Window().Comparing().CompareChains(tunerPath, voicePath);
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QTreeView* list = List(*dialog);
        QTest::keyClick(list, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(Window().Nodes().GetCurrentNode()->path, voicePath);
        QVERIFY(Window().focusWidget()->parentWidget()->objectName().contains(Keys::TUNER_HF_NB_FREQUENCY));
        const QRect row = list->visualRect(list->model()->index(0, DifferenceModel::Right));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(Window().Nodes().GetCurrentNode()->path, tunerPath);
        QTRY_COMPARE(QApplication::activeWindow(), &Window());
        // Without the chain there is nothing to compare.
        QVERIFY(Window().Document().RemoveNode(voicePath.chopped(1), nullptr));
        QTRY_VERIFY(!OpenDialog());
    }

    void twoSelectedChainsAreComparedAndEitherTakesOver()
    {
        Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7040000");
        QVERIFY(Window().Nodes().SelectNode(tunerPath));
        QTreeView* tree = Window().Nodes().View();
        const QModelIndexList matches = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, "VOICE", -1,
                                                             Qt::MatchExactly | Qt::MatchRecursive);
        for (const QModelIndex& match : matches)
            if (match.parent().data() == "CS_VOICE" && match.parent().parent().data() == "TDS_HF1")
            {
                tree->scrollTo(match);
                QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::ControlModifier,
                                  tree->visualRect(match).center());
            }
        QCOMPARE(Window().Nodes().GetSelectedNodes().size(), size_t(2));
        CompareChains();
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QTRY_COMPARE(QApplication::activeWindow(), dialog);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole),
                 QString("CS_TUNER/TUNER"));
        QTest::mouseClick(Button(*dialog, "swap"), Qt::LeftButton);
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole),
                 QString("CS_VOICE/VOICE"));
        QTest::mouseClick(Button(*dialog, "tickAll"), Qt::LeftButton);
        QTest::mouseClick(Button(*dialog, "takeOver"), Qt::LeftButton);
        QCOMPARE(Value(voicePath + Keys::TUNER_HF_NB_FREQUENCY)->GetStoredText(), QString("10000000"));
    }

    void oneSelectedChainIsComparedWithOneOfItsTypeFirst()
    {
        const QString header = "/Jobs/Demo/TDS_HFWB/HEADER_VOICE/";
        QVERIFY(Window().Nodes().SelectNode(header));
        const Next choice([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
        CompareChains();
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
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        if (modified)
            Value(frequencyPath)->SetStoredText("7100000");
        WriteAll(m_desk->File("a.job.xml"), SampleWithFrequency("7040000"));
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Window(), &activation);
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

        QCoreApplication::sendEvent(&Window(), &activation);
        QTest::qWait(20);
        QVERIFY(!OpenDialog());
        QVERIFY(Window().Save()); // asks nothing any more
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains(expected.toUtf8()));
    }

    void aFileWrittenAnewWithTheSameContentIsNoNewsButSavingAsks()
    {
        QVERIFY(Window().SaveTo(m_desk->File("a.job.xml")));
        WriteAll(m_desk->File("a.job.xml"), ReadAll(m_desk->File("a.job.xml")) + "<!-- theirs -->\n");
        QEvent activation(QEvent::WindowActivate);
        QCoreApplication::sendEvent(&Window(), &activation);
        QTest::qWait(50);
        QVERIFY(!OpenDialog());
        QVERIFY(!Window().Comparing().IsDiskSettled());
        // The question leads to the list, in which Escape decides nothing.
        {
            const Answer answer({"Compare..."});
            QVERIFY(!Window().Save());
            QVERIFY(answer.WasAsked());
        }
        CompareDialog* dialog = OpenDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->Model().rowCount(), 0);
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTRY_VERIFY(!OpenDialog());
        QVERIFY(!Window().Comparing().IsDiskSettled());
        QVERIFY(ReadAll(m_desk->File("a.job.xml")).contains("theirs"));
    }
};

QTEST_MAIN(TestCompare)
#include "test_compare.moc"
