#include "editorfixture.h"
#include "jobedit/panelwindow.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgets/vclistboxnumeric.h"

#include <random>

using namespace EditorTest;

namespace
{

constexpr const char* gain = "TUNER_HF_NB_MGCVALUE";

} // namespace

class TestEditHistory : public QObject
{
    Q_OBJECT

    std::optional<Desk> m_editor;
    QByteArray m_start;

    EditHistory& History() { return m_editor->History(); }
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
        const QByteArray end = m_editor->Bytes();
        QVERIFY(end != m_start);
        QCOMPARE(StepsBack(), expected);
        QCOMPARE(m_editor->Bytes(), m_start);
        QVERIFY(!m_editor->window.isWindowModified());
        QCOMPARE(StepsForth(), expected);
        QCOMPARE(m_editor->Bytes(), end);
        QVERIFY(m_editor->window.isWindowModified());
    }
private slots:
    void init()
    {
        m_editor.emplace();
        m_start = m_editor->Bytes();
    }
    void cleanup() { m_editor.reset(); }

    void aTypedNumberIsOneStepThatIsNamed()
    {
        m_editor->TypeFrequency("7040 k\t");
        QCOMPARE(History().UndoText(), "Frequency: 10 MHz -> 7.04 MHz");
        const auto* undo = m_editor->window.findChild<QAction*>("undo");
        QVERIFY(undo->text().endsWith(History().UndoText()));
        m_editor->Press(Qt::Key_Z);
        QCOMPARE(m_editor->Bytes(), m_start);
        QVERIFY(!undo->isEnabled());
        m_editor->Press(Qt::Key_Y);
        QCOMPARE(Editor::Stored(frequencyPath), "7040000");
        m_editor->Press(Qt::Key_Z);
        m_editor->Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Editor::Stored(frequencyPath), "7040000");
        CompareSteps(1);
    }

    void whatIsStillBeingTypedIsCommittedBeforeUndo()
    {
        m_editor->TypeFrequency("7040 k\t");
        m_editor->TypeFrequency("7050 k");
        m_editor->Press(Qt::Key_Z); // goes to the job, though the field has the keyboard
        QCOMPARE(Editor::Stored(frequencyPath), "7040000");
        QVERIFY(m_editor->FrequencyField()->text().contains("7040"));
        QVERIFY(History().CanUndo());
        m_editor->Press(Qt::Key_Y);
        QCOMPARE(Editor::Stored(frequencyPath), "7050000");
        CompareSteps(2);
    }

    void everyPressIsAStepAndAHeldKeyIsOne()
    {
        QWidget* spin = m_editor->Find(tunerPath, Keys::TUNER_HF_NB_AUDIOVOLUME);
        QVERIFY(spin && spin->isEnabled());
        const QString path = tunerPath + Keys::TUNER_HF_NB_AUDIOVOLUME;
        const int before = Editor::Stored(path).toInt();
        QTest::keyClick(spin, Qt::Key_Down);
        QTest::keyClick(spin, Qt::Key_Down);
        QCOMPARE(Editor::Stored(path).toInt(), before - 2);
        QTest::keyPress(spin, Qt::Key_Down);
        for (int repeat = 0; repeat < 3; ++repeat)
        {
            QKeyEvent again(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, {}, true);
            QApplication::sendEvent(spin, &again);
            QTest::qWait(1);
        }
        QTest::qWait(150); // the spin box goes on by itself
        QTest::keyRelease(spin, Qt::Key_Down);
        QVERIFY(Editor::Stored(path).toInt() < before - 4);
        QCoreApplication::processEvents();
        CompareSteps(3);
    }

    void aSpinButtonHeldIsOneStep()
    {
        auto* spin = m_editor->Find<QAbstractSpinBox>(tunerPath, Keys::TUNER_HF_NB_AUDIOVOLUME);
        QVERIFY(spin);
        const QString path = tunerPath + Keys::TUNER_HF_NB_AUDIOVOLUME;
        const int before = Editor::Stored(path).toInt();
        QStyleOptionSpinBox option;
        option.initFrom(spin);
        option.subControls = QStyle::SC_All;
        const QRect down = spin->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, spin);
        QTest::mousePress(spin, Qt::LeftButton, {}, down.center());
        QTRY_VERIFY(Editor::Stored(path).toInt() < before - 3);
        QTest::mouseRelease(spin, Qt::LeftButton, {}, down.center());
        QCoreApplication::processEvents();
        CompareSteps(1);
    }

    void turnsOfTheWheelThatFollowEachOtherAreOneStep()
    {
        QWidget* spin = m_editor->Find(tunerPath, Keys::TUNER_HF_NB_AUDIOVOLUME);
        QVERIFY(spin);
        for (int turn = 0; turn < 4; ++turn)
        {
            QWheelEvent wheel(QPointF(5, 5), spin->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(spin, &wheel);
            QTest::qWait(1);
        }
        m_editor->TypeFrequency("7040 k\t");
        CompareSteps(2);
    }

    void aChoiceInAPopupIsOneStepAndSwitchesWithIt()
    {
        auto* box = m_editor->Find<QComboBox>(tunerPath, Keys::TUNER_HF_NB_GAIN_CTRL_METHOD);
        QVERIFY(box && box->isEnabled());
        const EnableState state = Editor::Value(tunerPath + gain)->GetState();
        const int row = box->currentIndex();
        box->showPopup();
        QTest::keyClick(box->view(), row > 0 ? Qt::Key_Up : Qt::Key_Down);
        QTest::keyClick(box->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QVERIFY(Editor::Value(tunerPath + gain)->GetState() != state);
        QCOMPARE(box->currentIndex() != row, true);
        QCOMPARE(History().UndoText(), "Gain: " + box->itemText(row) + " -> " + box->currentText());
        m_editor->Press(Qt::Key_Z);
        QCOMPARE(box->currentIndex(), row); // also the widget that made the edit hears
        QCOMPARE(Editor::Value(tunerPath + gain)->GetState(), state);
        m_editor->Press(Qt::Key_Y);
        CompareSteps(1);
    }

    void selectAllOfAPanelIsOneStep()
    {
        auto* button = m_editor->FirstWhere<QPushButton>(
            [](QPushButton& each) { return each.objectName() == Keys::AUTORECORDING_RECORD_ALL; });
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY2(QRegularExpression("^[A-Z].*: .* -> .* and \\d more$").match(History().UndoText()).hasMatch(),
                 qPrintable(History().UndoText()));
        QCoreApplication::processEvents();
        CompareSteps(1);
    }

    void theExcitersModeIsOneStepWithWhatItSwitches()
    {
        auto* mode =
            m_editor->FirstWhere<QComboBox>([](QComboBox& each) { return each.objectName() == Keys::ExciterMode; });
        QVERIFY(mode);
        StepsBack();
        m_start = m_editor->Bytes();
        int acts = 0;
        const auto act = [&](auto press)
        {
            const QByteArray before = m_editor->Bytes();
            press();
            acts += m_editor->Bytes() != before;
        };
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Up, Qt::Key_Down})
        {
            act([&] { QTest::keyClick(mode, key); });
            // A switch that differs from what the mode says must be as it was after undo.
            for (auto* box : m_editor->window.Dialog().GetDialog()->findChildren<QCheckBox*>())
                if (box->isVisible() && box->isEnabled())
                    act([&] { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2)); });
        }
        QVERIFY2(acts > 8, qPrintable(QString::number(acts)));
        CompareSteps(acts);
    }

    void aListEditedCellByCellIsAStepForEachCell()
    {
        auto* list =
            m_editor->FirstWhere<VCListBoxNumeric>([](VCListBoxNumeric& each) { return each.columnCount() == 1; });
        QVERIFY(list);
        StepsBack(); // what showing has chosen
        m_start = m_editor->Bytes();
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
        QCoreApplication::processEvents();
        CompareSteps(2);
        QCOMPARE(list->rowCount(), rows);
        // A cell that is still being typed counts before undo.
        QTest::keyClick(list, Qt::Key_Insert);
        QTest::keyClicks(QApplication::focusWidget(), "60000");
        m_editor->Press(Qt::Key_Z);
        QCOMPARE(list->rowCount(), rows);
        QVERIFY(History().CanRedo());
        QCOMPARE(StepsForth(), 1);
        CompareSteps(3);
    }

    void leavingTheTabOrTheNodeCommitsWhatIsBeingTyped()
    {
        auto* spin = m_editor->FirstWhere<VCNumericFloatSpin>(
            [this](VCNumericFloatSpin&) { return m_editor->window.Dialog().GetDialog()->count() > 1; });
        QVERIFY(spin);
        QTabWidget* dialog = m_editor->window.Dialog().GetDialog();
        const QString path = spin->GetBoundValue()->GetPathName();
        spin->setFocus();
        spin->selectAll();
        const QString typed = QString::number(spin->value() + 1);
        QTest::keyClicks(spin, typed);
        const int tab = dialog->currentIndex();
        QTest::mouseClick(dialog->tabBar(), Qt::LeftButton, {}, dialog->tabBar()->tabRect(tab > 0 ? 0 : 1).center());
        QVERIFY(dialog->currentIndex() != tab);
        QCOMPARE(Editor::Stored(path), typed);
        m_editor->TypeFrequency("7050 k");
        QVERIFY(m_editor->window.Nodes().SelectNode("/Jobs/Demo"));
        QCOMPARE(Editor::Stored(frequencyPath), "7050000");
        CompareSteps(2);
    }

    void undoWorksInTheWindowOfAPanel()
    {
        const JobNode* found = nullptr;
        for (const JobNode& node : m_editor->window.Nodes().GetNodes())
            if (node.type == "IPC_HEADER_HF_AGSC")
                found = &node;
        QVERIFY(found);
        PanelWindow panel(*found, *FindDirectPanels(*found).front(), &m_editor->window);
        panel.setAttribute(Qt::WA_DeleteOnClose, false);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        auto* time = panel.findChild<QWidget*>(Keys::AUTORECORDING_REAPPEARANCE_TIME);
        QVERIFY(time);
        time->setFocus();
        QTest::keyClick(time, Qt::Key_Up);
        QVERIFY(m_editor->Bytes() != m_start);
        m_editor->Press(Qt::Key_Z);
        QCOMPARE(m_editor->Bytes(), m_start);
        QCOMPARE(StepsForth(), 1);
    }

    void whatAnObserverWritesMeanwhileIsSetRight()
    {
        struct Meddler final : IObserver
        {
            void Update(Observable*, TChangeCode code) override
            {
                if (code == ccContent)
                    Editor::Value(volume)->SetStoredText("5");
            }
            QString volume = tunerPath + Keys::TUNER_HF_NB_AUDIOVOLUME;
        } meddler;
        Editor::Value(frequencyPath)->Attach(&meddler);
        const auto write = [](const QString& path, const QString& text)
        {
            Editor::Value(path)->SetStoredText(text);
            QCoreApplication::processEvents();
        };
        write(frequencyPath, "7000000");
        write(meddler.volume, "7");
        write(frequencyPath, "7000001");
        History().Undo();
        QCOMPARE(Editor::Stored(meddler.volume), "7");
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
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText("7000000"));
            QCoreApplication::processEvents();
            EditHistory::Step inner(History(), "Inner");
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText("7000001"));
        }
        QCOMPARE(History().UndoText(), "Outer");
        CompareSteps(1);
        {
            EditHistory::Step thereAndBack(History(), "There and back");
            const QString before = Editor::Stored(frequencyPath);
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText("7000005"));
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText(before));
        }
        QCOMPARE(History().UndoText(), "Outer");
    }

    void theMarkFollowsTheSavedStep()
    {
        const QString file = m_editor->File("a.job.xml");
        const ValueBase& value = *Editor::Value(frequencyPath);
        const QString first = value.GetStoredText();
        m_editor->TypeFrequency("7040 k\t");
        QVERIFY(m_editor->window.Document().DiffersFromSaved(value));
        QCOMPARE(m_editor->window.Document().SavedText(value), first);
        QVERIFY(m_editor->window.SaveTo(file));
        QVERIFY(!m_editor->window.Document().DiffersFromSaved(value));
        m_editor->TypeFrequency("7050 k\t");
        QVERIFY(m_editor->window.isWindowModified());
        History().Undo();
        QVERIFY(!m_editor->window.isWindowModified());
        History().Undo();
        QVERIFY(m_editor->window.isWindowModified());
        QVERIFY(m_editor->window.Document().DiffersFromSaved(value));
        QCOMPARE(m_editor->window.Document().SavedText(value), "7040000");
        History().Redo();
        QVERIFY(!m_editor->window.isWindowModified());
        QCOMPARE(m_editor->Bytes(), ReadAll(file));
        History().Undo();
        m_editor->TypeFrequency("7060 k\t"); // the saved step falls out
        StepsBack();
        QVERIFY(m_editor->window.isWindowModified());
    }

    void theOldestOfManyStepsGo()
    {
        const int count = int(EditHistory::MaximumSteps) + 5;
        for (int step = 0; step < count; ++step)
        {
            EditHistory::Step one(History(), "One");
            QVERIFY(Editor::Value(frequencyPath)->SetStoredText(QString::number(7000000 + step)));
        }
        QCOMPARE(StepsBack(), int(EditHistory::MaximumSteps));
        QCOMPARE(Editor::Stored(frequencyPath), QString::number(7000004));
        QVERIFY(m_editor->window.isWindowModified());
    }

    void nodesComeGoAndChangeTheirNamesInSteps()
    {
        JobDocument& document = m_editor->window.Document();
        NodePane& nodes = m_editor->window.Nodes();
        QString reason;
        QVERIFY(nodes.SelectNode(tunerPath));
        m_editor->TypeFrequency("7040 k"); // committed before the node is renamed
        QVERIFY2(document.RenameNode("/Jobs/Demo/TDS_HF1", "FIRST", &reason), qPrintable(reason));
        const QString renamed = QString(tunerPath).replace("TDS_HF1", "FIRST");
        QCOMPARE(nodes.GetCurrentNode()->path, renamed);
        QCOMPARE(Editor::Stored(renamed + Keys::TUNER_HF_NB_FREQUENCY), "7040000");
        QVERIFY(document.DiffersFromSaved(*Editor::Value(renamed + Keys::TUNER_HF_NB_FREQUENCY)));
        QCOMPARE(Editor::Stored(frequencyPath), "gone");
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
        QVERIFY(Editor::Value("/Jobs/Demo/NEW/" + Keys::TUNER_HF_NB_FREQUENCY)->SetStoredText("7111000"));
        CompareSteps(8);
        StepsBack();
        QStringList order;
        for (const JobNode& node : nodes.GetNodes())
            order << node.path;
        QVERIFY(m_editor->window.NewFromSample());
        for (const JobNode& node : nodes.GetNodes())
            QCOMPARE(order.takeFirst(), node.path);
    }

    void anythingDoneCanBeTakenBackToTheByte_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1u, 2u, 3u})
            QTest::addRow("%u", seed) << seed;
    }
    void anythingDoneCanBeTakenBackToTheByte()
    {
        QFETCH(unsigned, seed);
        std::mt19937 random(seed);
        const auto pick = [&](auto size) { return decltype(size)(random() % quint32(size)); };
        JobDocument& document = m_editor->window.Document();
        int structural = 0;
        QString reason;
        for (int round = 0; round < 150; ++round)
        {
            const auto nodes = m_editor->window.Nodes().GetNodes();
            const QString path = nodes[pick(nodes.size())].path;
            const QString name = "N" + QString::number(round);
            const quint32 choice = pick(16u);
            if (choice == 0)
                structural += document.RenameNode(path, name, &reason);
            else if (choice == 1)
                structural += document.DuplicateNode(path, name, &reason);
            else if (choice == 2 && path.count('/') > 4)
                structural += document.RemoveNode(path, &reason);
            else if (choice < 5)
                History().Undo();
            else
                for (const auto& value : Tree::Instance()->FindNode(path)->GetValues())
                    if (pick(4u) == 0)
                        value->SetStoredText(value->GetKind() == ValueKind::Bool ? (pick(2u) ? "true" : "false")
                                                                                 : QString::number(pick(3u)));
            if (choice % 2)
                QCoreApplication::processEvents(); // what comes within one turn is one step
        }
        CommitPendingEdit();
        StepsForth();
        QList<QByteArray> states{m_editor->Bytes()};
        while (History().CanUndo())
        {
            History().Undo();
            states << m_editor->Bytes();
        }
        QVERIFY(states.size() > 20);
        QVERIFY(structural > 0);
        QCOMPARE(states.constLast(), m_start);
        QVERIFY(!m_editor->window.isWindowModified());
        for (qsizetype state = states.size() - 1; state > 0; --state)
        {
            QCOMPARE(m_editor->Bytes(), states[state]);
            QVERIFY(History().CanRedo());
            History().Redo();
        }
        QCOMPARE(m_editor->Bytes(), states.constFirst());
        QVERIFY(!History().CanRedo());
    }
};

QTEST_MAIN(TestEditHistory)
#include "test_edithistory.moc"
