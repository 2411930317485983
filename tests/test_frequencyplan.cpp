#include "editorfixture.h"
#include "jobedit/frequencyplan.h"
#include "jobedit/planactions.h"
#include "jobedit/planexport.h"
#include "jobedit/planpane.h"
#include "jobedit/planview.h"

#include <QSignalSpy>
#include <QXmlStreamReader>

using namespace EditorTest;

namespace
{

const QString job = QStringLiteral("/Jobs/Demo/");

const PlanLane* LaneOf(const FrequencyPlan& plan, const QString& path)
{
    const auto found = std::ranges::find(plan.GetLanes(), path, &PlanLane::path);
    return found == plan.GetLanes().end() ? nullptr : &*found;
}

/// Whether it stands there, with its middle or an edge.
bool IsAt(const PlanMark& mark, qint64 hertz)
{
    return mark.frequency == hertz || (mark.frequency < 0 && (mark.from == hertz || mark.to == hertz));
}

} // namespace

class TestFrequencyPlan : public DeskTest
{
    Q_OBJECT

    FrequencyPlan Plan() { return FrequencyPlan::Of(Window().Document().GetNodes(), *Tree::Instance()); }
    PlanPane& Pane() { return Window().findChild<PlanActions*>()->Pane(); }
    PlanView& Hf() { return *Pane().View(Band::Hf); }
    void ShowPlan()
    {
        QTest::keyClick(&Window(), Qt::Key_F8);
        QVERIFY(Hf().isVisible() && Hf().hasFocus());
    }

private Q_SLOTS:
    void init()
    {
        Begin();
        Window().resize(1300, 1000);
    }
    void cleanup() { End(); }

    void aChainsLaneSaysWhatItDoes_data()
    {
        const Table<QString, QStringList> row("node", "marks");
        row("tuner with a scan that is off", "TDS_HF1/CS_TUNER/TUNER/",
            {"Scan: 3 MHz to 3.5 MHz (switched off)", "Receive frequency: 10 MHz, bandwidth 2.7 kHz",
             "Scan list 1: 3.5 MHz (switched off)", "Scan list 2: 5.732 MHz (switched off)",
             "Scan list 3: 6.501 MHz (switched off)"});
        row("down-converter in a wideband", "TDS_HFWB/CS_VOICE/VOICE/",
            {"Wideband reception: 8 MHz, bandwidth 2 MHz",
             "Wideband reception, second channel: 12 MHz, bandwidth 2 MHz",
             "Channel frequency: 8.5 MHz, bandwidth 10 kHz",
             "Channel frequency, second channel: 8.51 MHz, bandwidth 10 kHz"});
        row("receiver scan", "TDS_WBRX/CS_WBRX/RECEIVER/",
            {"Panorama: 100 MHz, bandwidth 10 MHz", "Receiver scan 1: 118 MHz to 137 MHz",
             "Receiver scan 2: 156 MHz to 162 MHz", "Receive frequency: 100 MHz, bandwidth 120 kHz"});
        row("ranges of channel nodes", "TDS_EXC/CS_RASTER/DETECTOR/",
            {"Detected range 1: 3 MHz to 3.4 MHz", "Detected range 2: 3.5 MHz to 3.9 MHz"});
        row("emitters", "TDS_EXC/CS_SIM/SIMULATION/",
            {"Simulated emitter 1: 10 MHz", "Simulated emitter 2: 10.01 MHz", "Simulated emitter 3: 10.02 MHz"});
    }
    void aChainsLaneSaysWhatItDoes()
    {
        QFETCH(QString, node);
        QFETCH(QStringList, marks);
        const FrequencyPlan plan = Plan();
        const PlanLane* lane = LaneOf(plan, job + node);
        QVERIFY(lane);
        QStringList found;
        for (const PlanMark& mark : lane->marks)
            found << FrequencyPlan::MarkText(mark);
        QCOMPARE(found, marks);
        QCOMPARE(lane->group + '/' + lane->title + '/', node);
    }

    void noFrequencyOfTheJobIsForgotten()
    {
        // Every value that can be a frequency of a band is an edge or the middle of a mark of its chain.
        int seen = 0;
        const FrequencyPlan plan = Plan();
        const std::function<void(const Node&, const PlanLane*)> look = [&](const Node& node, const PlanLane* lane)
        {
            if (const PlanLane* own = LaneOf(plan, node.GetBasePath()))
                lane = own;
            for (const auto& value : node.GetValues())
            {
                // Widths, steps and intermediate frequencies may be 0 or very low.
                if (value->GetKind() != ValueKind::Frequency || value->GetDescriptor().minimum < 9e3)
                    continue;
                const qint64 hertz = static_cast<const FrequencyValue&>(*value).GetValue();
                const auto isThere = [&](const PlanMark& mark) { return IsAt(mark, hertz); };
                QVERIFY2(lane && std::ranges::any_of(lane->marks, isThere), qPrintable(value->GetPathName()));
                ++seen;
            }
            for (const auto& child : node.GetNodes())
                look(*child, lane);
        };
        for (const Node* top : Tree::Instance()->GetTopNodes())
            look(*top, nullptr);
        QVERIFY(seen > 60);
    }

    void aMarkStandsOnTheAxisOfItsBand_data()
    {
        const Table<QString, QString, bool, bool> row("value", "content", "onHf", "onVuhf");
        const QString external = "TDS_EXT/CS_EXT/TUNER/TUNER_EXT_FREQUENCY";
        row("last of HF", external, "30000000", true, false);
        row("external receiver above HF", external, "100000000", false, true);
        row("V/UHF device below 30 MHz", "TDS_VUHF1/CS_TUNER/TUNER/TUNER_VUHF_FREQUENCY", "25000000", false, true);
        row("range over both", "TDS_HF1/CS_DATA/DATATRANS/SURVEILLANCE_SEQ_FREQ_RANGE", "20000000;40000000", true,
            true);
    }
    void aMarkStandsOnTheAxisOfItsBand()
    {
        QFETCH(QString, value);
        QFETCH(QString, content);
        QFETCH(bool, onHf);
        QFETCH(bool, onVuhf);
        Set(job + value, content);
        const FrequencyPlan plan = Plan();
        const PlanLane* lane = LaneOf(plan, job + value.left(value.lastIndexOf('/') + 1));
        QVERIFY(lane);
        const qint64 first = content.section(';', 0, 0).toLongLong();
        const auto mark = std::ranges::find_if(lane->marks, [&](const PlanMark& one) { return IsAt(one, first); });
        QVERIFY(mark != lane->marks.end());
        QCOMPARE(FrequencyPlan::IsOn(*lane, *mark, Band::Hf), onHf);
        QCOMPARE(FrequencyPlan::IsOn(*lane, *mark, Band::Vuhf), onVuhf);
    }

    void theAxisHasRoundFrequenciesThatDoNotTouch_data()
    {
        // text: one that is there
        const Table<double, double, QString> row("from", "to", "text");
        row("HF", 0.0, 30e6, "15 MHz");
        row("a channel", 10.0e6, 10.005e6, "10001 kHz");
        row("broadcast", 87.5e6, 108e6, "90 MHz");
        row("a V/UHF channel", 145.0e6, 145.05e6, "145.02 MHz");
        row("up to 3 GHz", 20e6, 3e9, "1.0 GHz");
    }
    void theAxisHasRoundFrequenciesThatDoNotTouch()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        const PlanScale scale{from, to, 100.0, 900.0};
        QStringList texts;
        double last = -1e9;
        for (const PlanScale::Tick& tick : scale.Ticks(100.0))
        {
            QVERIFY(tick.hertz >= from - 1e-3 && tick.hertz <= to);
            if (tick.text.isEmpty())
                continue;
            texts << tick.text;
            QVERIFY(scale.XOf(tick.hertz) - last >= 100.0 - 1e-6);
            last = scale.XOf(tick.hertz);
        }
        QVERIFY(texts.size() >= 2 && texts.size() <= 10);
        QFETCH(QString, text);
        QVERIFY2(texts.contains(text), qPrintable(texts.join(", ")));
    }

    void theWheelZoomsAroundTheCursorAndKeysZoomAndMove()
    {
        ShowPlan();
        const QPoint place = Hf().PlaceOf(tunerPath, 10e6);
        const auto before = Hf().GetRange();
        TurnWheel(*Hf().viewport(), {place.x(), 60}, 3);
        const auto after = Hf().GetRange();
        QVERIFY(after.second - after.first < 0.6 * (before.second - before.first));
        QVERIFY(std::abs(Hf().PlaceOf(tunerPath, 10e6).x() - place.x()) <= 1);
        // Never out of the band, however far.
        TurnWheel(*Hf().viewport(), {place.x(), 60}, -40);
        QCOMPARE(Hf().GetRange(), std::pair(0.0, 30e6));
        TurnWheel(*Hf().viewport(), {place.x(), 60}, 200);
        QVERIFY(Hf().GetRange().second - Hf().GetRange().first >= 999.0);
        Hf().SetRange(0.0, 30e6);
        const std::pair whole(0.0, 30e6);
        const auto press = [&](Qt::Key key)
        {
            QTest::keyClick(&Hf(), key);
            return Hf().GetRange();
        };
        const auto zoomed = press(Qt::Key_Plus);
        QCOMPARE(zoomed.second - zoomed.first, 20e6);
        QCOMPARE(press(Qt::Key_Right).first, zoomed.first + 2e6);
        QCOMPARE(press(Qt::Key_Left), zoomed);
        QCOMPARE(press(Qt::Key_Minus), whole);
        QVERIFY(press(Qt::Key_Plus) != whole);
        QCOMPARE(press(Qt::Key_Home), whole);
        Hf().SelectPath(job + "TDS_MSCAN_HF/CS_MEMORY/MEMORYSCAN/");
        const auto [from, to] = press(Qt::Key_Asterisk);
        QVERIFY(from > 3e6 && from < 3.5e6 && to > 5.25e6 && to < 5.6e6);
    }

    void draggingMovesWithTheMouseAndChoosesNothing()
    {
        ShowPlan();
        Hf().SetRange(5e6, 15e6);
        Hf().SelectPath(tunerPath);
        const QSignalSpy chosen(&Hf(), &PlanView::NodeChosen);
        const QPoint place = Hf().PlaceOf(tunerPath, 10e6);
        QTest::mousePress(Hf().viewport(), Qt::LeftButton, {}, place);
        QMouseEvent move(QEvent::MouseMove, place + QPoint(80, 0), Hf().viewport()->mapToGlobal(place + QPoint(80, 0)),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(Hf().viewport(), &move);
        QTest::mouseRelease(Hf().viewport(), Qt::LeftButton, {}, place + QPoint(80, 0));
        QCOMPARE(Hf().PlaceOf(tunerPath, 10e6).x(), place.x() + 80);
        QVERIFY(chosen.isEmpty());
    }

    void aClickOrReturnSelectsTheNode()
    {
        ShowPlan();
        Hf().SelectPath(tunerPath); // scrolls to it
        Window().Nodes().SelectNode(job + "TDS_HFWB/CS_VOICE/VOICE/");
        QCOMPARE(Hf().GetSelectedPath(), job + "TDS_HFWB/CS_VOICE/VOICE/");
        Hf().SelectPath(tunerPath);
        QTest::mouseClick(Hf().viewport(), Qt::LeftButton, {}, Hf().PlaceOf(tunerPath, 20e6));
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
        // From the last chain of a section to the first of the next: the heading is passed over.
        QTest::keyClick(&Hf(), Qt::Key_Down);
        QTest::keyClick(&Hf(), Qt::Key_Down);
        QCOMPARE(Hf().GetSelectedPath(), job + "TDS_HFWB/CS_CLASS/CLASSIFIER/");
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
        QTest::keyClick(&Hf(), Qt::Key_Return);
        QCOMPARE(m_desk->CurrentPath(), job + "TDS_HFWB/CS_CLASS/CLASSIFIER/");
        QTest::keyClick(&Hf(), Qt::Key_Up);
        QCOMPARE(Hf().GetSelectedPath(), job + "TDS_HF1/CS_VOICE/VOICE/");
        QVERIFY(Hf().accessibleDescription().contains("Receive frequency: 10 MHz"));
    }

    void thePlanFollowsEdits()
    {
        ShowPlan();
        Window().Nodes().SelectNode(tunerPath);
        Set(frequencyPath, "7040500");
        Set(tunerPath + "SCAN_STATUS", "true");
        QTRY_VERIFY(Hf().SelectedText().contains("Receive frequency: 7.0405 MHz"));
        QVERIFY(Hf().SelectedText().contains("Scan: 3 MHz to 3.5 MHz\n"));
        // The list applies to another type of scan.
        QVERIFY(Hf().SelectedText().contains("Scan list 1: 3.5 MHz (switched off)"));
        // Those that were made while it was hidden, too.
        QTest::keyClick(&Window(), Qt::Key_F8);
        QVERIFY(!Hf().isVisible());
        Set(frequencyPath, "7040600");
        ShowPlan();
        QVERIFY(Hf().SelectedText().contains("7.0406 MHz"));
        // A channel's own node belongs to the lane of its chain.
        const QString emitters = job + "TDS_EXC/CS_SIM/SIMULATION/";
        Window().Nodes().SelectNode(emitters);
        Set(emitters + "Emitter2/EmitterFrequency", "12345678");
        QTRY_VERIFY(Hf().SelectedText().contains("Simulated emitter 2: 12.345678 MHz"));
    }

    void aPlanBehindAnotherTabComesToTheFront()
    {
        ShowPlan();
        Window().findChild<QDockWidget*>("messageDock")->raise();
        QTRY_VERIFY(Hf().visibleRegion().isEmpty());
        QTest::keyClick(&Window(), Qt::Key_F8);
        QTRY_VERIFY(!Hf().visibleRegion().isEmpty());
    }

    void theToolTipTellsWhatIsThere()
    {
        ShowPlan();
        Hf().SelectPath(tunerPath);
        const auto textAt = [&](const QPoint& place)
        {
            QHelpEvent event(QEvent::ToolTip, place, Hf().viewport()->mapToGlobal(place));
            QApplication::sendEvent(Hf().viewport(), &event);
            return QToolTip::text();
        };
        const QString text = textAt(Hf().PlaceOf(tunerPath, 10e6));
        QVERIFY2(text.contains(tunerPath) && text.contains("Receive frequency: 10 MHz, bandwidth 2.7 kHz"),
                 qPrintable(text));
        QVERIFY(!text.contains("Scan"));
        QVERIFY(textAt(Hf().PlaceOf(tunerPath, 3.2e6)).contains("Scan: 3 MHz to 3.5 MHz (switched off)"));
    }

    void thePicturesHoldAllChains()
    {
        FileError error;
        QVERIFY(Window().Document().SaveAs(File("a <b> & \"c\".job.xml"), error));
        QVERIFY2(ExportPlan(Window().Document(), File("plan.svg"), {1200, 0}, error), qPrintable(error.reason));
        QXmlStreamReader reader(ReadAll(File("plan.svg")));
        QString texts;
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::Characters)
                texts += reader.text().toString() + '\n';
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
        QVERIFY(texts.contains("a <b> & \"c\".job.xml"));
        const FrequencyPlan plan = Plan();
        for (const PlanLane& lane : plan.GetLanes())
            QVERIFY2(texts.contains(lane.title), qPrintable(lane.title));

        QVERIFY2(ExportPlan(Window().Document(), File("plan.png"), {1200, 2000}, error), qPrintable(error.reason));
        const QImage picture(File("plan.png"));
        QCOMPARE(picture.size(), QSize(1200, 2000));
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); ++y)
            colours << picture.pixel(picture.width() / 3, y);
        QVERIFY(colours.size() > 5);
        QVERIFY(!Window().Document().IsModified());
    }

    void aPictureThatCannotBeWrittenLeavesTheFile_data() { EachText("name", {"plan.txt", "missing/plan.svg"}); }
    void aPictureThatCannotBeWrittenLeavesTheFile()
    {
        QFETCH(QString, name);
        WriteAll(File("plan.txt"), "kept");
        FileError error;
        QVERIFY(!ExportPlan(Window().Document(), File(name), {800, 0}, error));
        QCOMPARE(error.file, File(name));
        QVERIFY(!error.reason.isEmpty());
        QCOMPARE(ReadAll(File("plan.txt")), QByteArray("kept"));
    }
};

QTEST_MAIN(TestFrequencyPlan)
#include "test_frequencyplan.moc"
