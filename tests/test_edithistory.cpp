#include "editorfixture.h"
#include "jobedit/panelwindow.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgets/vclistboxnumeric.h"

using namespace EditorTest;

namespace
{

const QString gainPath = tunerPath + "TUNER_HF_NB_MGCVALUE";
const QString volumePath = tunerPath + Keys::TUNER_HF_NB_AUDIOVOLUME;

} // namespace

class TestEditHistory : public DeskTest
{
    Q_OBJECT

    QByteArray m_start;

    int StepsBack()
    {
        int steps = 0;
        for (; History().CanUndo(); ++steps)
            History().Undo();
        return steps;
    }
    int StepsForth()
    {
        int steps = 0;
        for (; History().CanRedo(); ++steps)
            History().Redo();
        return steps;
    }
    /// Everything so far makes that many steps, which can be taken back and made again to the byte.
    void CompareSteps(int expected)
    {
        const QByteArray end = m_desk->Bytes();
        QVERIFY(end != m_start);
        QCOMPARE(StepsBack(), expected);
        QCOMPARE(m_desk->Bytes(), m_start);
        QVERIFY(!Window().isWindowModified());
        QCOMPARE(StepsForth(), expected);
        QCOMPARE(m_desk->Bytes(), end);
        QVERIFY(Window().isWindowModified());
    }
    QAbstractSpinBox* Volume() { return m_desk->Find<QAbstractSpinBox>(tunerPath, Keys::TUNER_HF_NB_AUDIOVOLUME); }

private slots:
    void init()
    {
        Begin();
        m_start = m_desk->Bytes();
    }
    void cleanup() { End(); }

    void aTypedNumberIsOneStepThatIsNamed()
    {
        m_desk->TypeFrequency("7040 k\t");
        QCOMPARE(History().UndoText(), "Frequency: 10 MHz -> 7.04 MHz");
        const auto* undo = Window().findChild<QAction*>("undo");
        QVERIFY(undo->text().endsWith(History().UndoText()));
        m_desk->Press(Qt::Key_Z);
        QCOMPARE(m_desk->Bytes(), m_start);
        QVERIFY(!undo->isEnabled());
        m_desk->Press(Qt::Key_Y);
        QCOMPARE(Stored(frequencyPath), "7040000");
        m_desk->TypeFrequency("7050 k"); // counts, though it is still being typed
        m_desk->Press(Qt::Key_Z);        // goes to the job, though the field has the keyboard
        QCOMPARE(Stored(frequencyPath), "7040000");
        QVERIFY(m_desk->FrequencyField()->text().contains("7040"));
        QVERIFY(History().CanUndo());
        m_desk->Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Stored(frequencyPath), "7050000");
        CompareSteps(2);
    }

    void everyPressIsAStepAndAHeldKeyIsOne()
    {
        QAbstractSpinBox* spin = Volume();
        QVERIFY(spin && spin->isEnabled());
        const int before = Stored(volumePath).toInt();
        QTest::keyClick(spin, Qt::Key_Down);
        QTest::keyClick(spin, Qt::Key_Down);
        QCOMPARE(Stored(volumePath).toInt(), before - 2);
        QTest::keyPress(spin, Qt::Key_Down);
        for (int repeat = 0; repeat < 3; ++repeat)
        {
            QKeyEvent again(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true);
            QApplication::sendEvent(spin, &again);
            QTest::qWait(1);
        }
        QTest::qWait(150); // the spin box goes on by itself
        QTest::keyRelease(spin, Qt::Key_Down);
        QVERIFY(Stored(volumePath).toInt() < before - 4);
        QCoreApplication::processEvents();
        CompareSteps(3);
    }

    void aSpinButtonHeldAndTurnsOfTheWheelThatFollowEachOtherAreOneStepEach()
    {
        QAbstractSpinBox* spin = Volume();
        QVERIFY(spin);
        const int before = Stored(volumePath).toInt();
        QStyleOptionSpinBox option;
        option.initFrom(spin);
        option.subControls = QStyle::SC_All;
        const QRect down = spin->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, spin);
        QTest::mousePress(spin, Qt::LeftButton, {}, down.center());
        QTRY_VERIFY(Stored(volumePath).toInt() < before - 3);
        QTest::mouseRelease(spin, Qt::LeftButton, {}, down.center());
        QCoreApplication::processEvents();
        CompareSteps(1);
        m_desk->TypeFrequency("7040 k\t");
        spin->setFocus();
        for (int turn = 0; turn < 4; ++turn)
        {
            TurnWheel(*spin, {5, 5}, -1);
            QTest::qWait(1);
        }
        m_desk->TypeFrequency("7050 k\t");
        CompareSteps(4);
    }

    void aChoiceInAPopupIsOneStepAndSwitchesWithIt()
    {
        auto* box = m_desk->Find<QComboBox>(tunerPath, Keys::TUNER_HF_NB_GAIN_CTRL_METHOD);
        QVERIFY(box && box->isEnabled());
        const EnableState state = Value(gainPath)->GetState();
        const int row = box->currentIndex();
        box->showPopup();
        QTest::keyClick(box->view(), row > 0 ? Qt::Key_Up : Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(Value(gainPath)->GetState() != state);
        QVERIFY(box->currentIndex() != row);
        QCOMPARE(History().UndoText(), "Gain: " + box->itemText(row) + " -> " + box->currentText());
        m_desk->Press(Qt::Key_Z);
        QCOMPARE(box->currentIndex(), row); // also the widget that made the edit hears
        QCOMPARE(Value(gainPath)->GetState(), state);
        m_desk->Press(Qt::Key_Y);
        CompareSteps(1);
    }

    void selectAllOfAPanelIsOneStep()
    {
        auto* button = m_desk->FirstNamed<QPushButton>(Keys::AUTORECORDING_RECORD_ALL);
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY2(QRegularExpression("^[A-Z].*: .* -> .* and \\d more$").match(History().UndoText()).hasMatch(),
                 qPrintable(History().UndoText()));
        QCoreApplication::processEvents();
        CompareSteps(1);
    }

    void theExcitersModeIsOneStepWithWhatItSwitches()
    {
        auto* mode = m_desk->FirstNamed<QComboBox>(Keys::ExciterMode);
        QVERIFY(mode);
        StepsBack();
        m_start = m_desk->Bytes();
        int acts = 0;
        const auto act = [&](auto press)
        {
            const QByteArray before = m_desk->Bytes();
            press();
            acts += m_desk->Bytes() != before;
        };
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Up, Qt::Key_Down})
        {
            act([&] { QTest::keyClick(mode, key); });
            // A switch that differs from what the mode says must be as it was after undo.
            for (auto* box : Dialog()->findChildren<QCheckBox*>())
                if (box->isVisible() && box->isEnabled())
                    act([&] { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2)); });
        }
        QVERIFY2(acts > 8, qPrintable(QString::number(acts)));
        CompareSteps(acts);
    }

    void aListEditedCellByCellIsAStepForEachCell()
    {
        auto* list = m_desk->FirstWhere<VCListBoxNumeric>([](auto& each) { return each.columnCount() == 1; });
        QVERIFY(list);
        StepsBack(); // what showing has chosen
        m_start = m_desk->Bytes();
        list->setFocus();
        int rows = list->rowCount();
        for (const char* number : {"40000", "50000"})
        {
            QTest::keyClick(list, Qt::Key_Insert);
            QTest::keyClicks(QApplication::focusWidget(), number);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QCoreApplication::processEvents(); // by which the cell's editor is closed
            QCOMPARE(list->rowCount(), ++rows);
        }
        CompareSteps(2);
        QCOMPARE(list->rowCount(), rows);
        // A cell that is still being typed counts before undo.
        QTest::keyClick(list, Qt::Key_Insert);
        QTest::keyClicks(QApplication::focusWidget(), "60000");
        m_desk->Press(Qt::Key_Z);
        QCOMPARE(list->rowCount(), rows);
        QVERIFY(History().CanRedo());
        QCOMPARE(StepsForth(), 1);
        CompareSteps(3);
    }

    void leavingTheTabOrTheNodeCommitsWhatIsBeingTyped()
    {
        auto* spin = m_desk->FirstWhere<VCNumericFloatSpin>([this](auto&) { return Dialog()->count() > 1; });
        QVERIFY(spin);
        QTabWidget* dialog = Dialog();
        const QString path = spin->GetBoundValue()->GetPathName();
        spin->setFocus();
        spin->selectAll();
        const QString typed = QString::number(spin->value() + 1);
        QTest::keyClicks(spin, typed);
        const int tab = dialog->currentIndex();
        QTest::mouseClick(dialog->tabBar(), Qt::LeftButton, {}, dialog->tabBar()->tabRect(tab > 0 ? 0 : 1).center());
        QVERIFY(dialog->currentIndex() != tab);
        QCOMPARE(Stored(path), typed);
        m_desk->TypeFrequency("7050 k");
        QVERIFY(Window().Nodes().SelectNode("/Jobs/Demo"));
        QCOMPARE(Stored(frequencyPath), "7050000");
        CompareSteps(2);
    }

    void undoWorksInTheWindowOfAPanel()
    {
        const JobNode node = *std::ranges::find(Window().Nodes().GetNodes(), "IPC_HEADER_HF_AGSC", &JobNode::type);
        PanelWindow panel(node, *FindDirectPanels(node).front(), &Window());
        panel.setAttribute(Qt::WA_DeleteOnClose, false);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto* time = panel.findChild<QWidget*>(Keys::AUTORECORDING_REAPPEARANCE_TIME);
        QVERIFY(time);
        time->setFocus();
        QTest::keyClick(time, Qt::Key_Up);
        QVERIFY(m_desk->Bytes() != m_start);
        m_desk->Press(Qt::Key_Z);
        QCOMPARE(m_desk->Bytes(), m_start);
        QCOMPARE(StepsForth(), 1);
    }

    void whatAnObserverWritesMeanwhileIsSetRight()
    {
        Hearer meddler([] { Set(volumePath, "5"); });
        Value(frequencyPath)->Attach(&meddler);
        for (const auto& [path, text] :
             {std::pair(frequencyPath, "7000000"), {volumePath, "7"}, {frequencyPath, "7000001"}})
        {
            Set(path, text);
            QCoreApplication::processEvents();
        }
        History().Undo();
        QCOMPARE(Stored(volumePath), "7");
        History().Redo();
        CompareSteps(3);
    }

    void stepsOfOneNameHoldAllAndNothingIsNoStep()
    {
        {
            EditHistory::Step nothing(History(), "Nothing");
        }
        QVERIFY(!History().CanUndo());
        {
            EditHistory::Step outer(History(), "Outer");
            Set(frequencyPath, "7000000");
            QCoreApplication::processEvents();
            EditHistory::Step inner(History(), "Inner");
            Set(frequencyPath, "7000001");
        }
        QCOMPARE(History().UndoText(), "Outer");
        CompareSteps(1);
        {
            EditHistory::Step thereAndBack(History(), "There and back");
            const QString before = Stored(frequencyPath);
            Set(frequencyPath, "7000005");
            Set(frequencyPath, before);
        }
        QCOMPARE(History().UndoText(), "Outer");
    }

    void theMarkFollowsTheSavedStep()
    {
        const JobDocument& document = Window().Document();
        const ValueBase& value = *Value(frequencyPath);
        const QString first = value.GetStoredText();
        m_desk->TypeFrequency("7040 k\t");
        QVERIFY(document.DiffersFromSaved(value));
        QCOMPARE(document.SavedText(value), first);
        QVERIFY(Window().SaveTo(File()));
        QVERIFY(!document.DiffersFromSaved(value));
        m_desk->TypeFrequency("7050 k\t");
        QVERIFY(Window().isWindowModified());
        History().Undo();
        QVERIFY(!Window().isWindowModified());
        History().Undo();
        QVERIFY(Window().isWindowModified());
        QVERIFY(document.DiffersFromSaved(value));
        QCOMPARE(document.SavedText(value), "7040000");
        History().Redo();
        QVERIFY(!Window().isWindowModified());
        QCOMPARE(m_desk->Bytes(), ReadAll(File()));
        History().Undo();
        m_desk->TypeFrequency("7060 k\t"); // the saved step falls out
        StepsBack();
        QVERIFY(Window().isWindowModified());
    }

    void theOldestOfManyStepsGo()
    {
        for (int step = 0; step < int(EditHistory::MaximumSteps) + 5; ++step)
        {
            EditHistory::Step one(History(), "One");
            Set(frequencyPath, QString::number(7000000 + step));
        }
        QCOMPARE(StepsBack(), int(EditHistory::MaximumSteps));
        QCOMPARE(Stored(frequencyPath), QString::number(7000004));
        QVERIFY(Window().isWindowModified());
    }

    void nodesComeGoAndChangeTheirNamesInSteps()
    {
        JobDocument& document = Window().Document();
        NodePane& nodes = Window().Nodes();
        QString reason;
        QVERIFY(nodes.SelectNode(tunerPath));
        m_desk->TypeFrequency("7040 k"); // committed before the node is renamed
        QVERIFY(document.RenameNode("/Jobs/Demo/TDS_HF1", "FIRST", &reason));
        const QString renamed = QString(tunerPath).replace("TDS_HF1", "FIRST");
        QCOMPARE(nodes.GetCurrentNode()->path, renamed);
        QCOMPARE(Stored(renamed + Keys::TUNER_HF_NB_FREQUENCY), "7040000");
        QVERIFY(document.DiffersFromSaved(*Value(renamed + Keys::TUNER_HF_NB_FREQUENCY)));
        QCOMPARE(Stored(frequencyPath), "gone");
        QCOMPARE(History().UndoText(), "Rename node TDS_HF1 to FIRST");
        QVERIFY(document.DuplicateNode(renamed, "TUNER2", &reason));
        QVERIFY(document.RemoveNode(renamed, &reason));
        QVERIFY(nodes.GetCurrentNode() && nodes.GetCurrentNode()->path != renamed);
        QVERIFY(document.AddNode("/Jobs/Demo", {.name = "NEW", .type = "CS", .groups = {"G_TUNER_HF"}}, &reason));
        QVERIFY(!document.RenameNode("/Jobs/Demo/NEW", "FIRST", &reason));
        QVERIFY(reason.contains("FIRST"));
        QVERIFY(document.RenameNode("/Jobs/Demo", "DEMO", &reason)); // of a path its last segment
        QVERIFY(document.RenameNode("/Jobs/DEMO", "/Jobs/Demo", &reason));
        QVERIFY(nodes.SelectNode("/Jobs/Demo/NEW"));
        Set("/Jobs/Demo/NEW/" + Keys::TUNER_HF_NB_FREQUENCY, "7111000");
        CompareSteps(8);
    }
};

QTEST_MAIN(TestEditHistory)
#include "test_edithistory.moc"
