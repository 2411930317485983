#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/spectralzoomdlg.h"
#include "analysis/tdsheaderddcdlg.h"
#include "analysis/tdsheadermsdlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "numericlistwindow.h"
#include "panelgrid.h"
#include "valuewidgets/vcbuttongroup.h"
#include "valuewidgets/vcnumericfloatspin.h"

#include <map>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

VCListBoxNumeric* ListIn(const ParameterDlg& panel, const QString& title)
{
    const QGroupBox* box = Grid(panel).Group(title);
    return box ? qobject_cast<VCListBoxNumeric*>(Grid(box).At(0, 0)) : nullptr;
}

void TypeInto(VCListBoxNumeric* list, int row, int column, const QString& text)
{
    list->window()->show();
    list->setFocus();
    NumericListTest::Press(NumericListTest::Type(list, row, column, text), Qt::Key_Return);
}

std::unique_ptr<ParameterDlg> MakeDetection(bool isShort, bool megahertz)
{
    if (isShort)
        return std::make_unique<DetectionShortDlg>(basePath, false, megahertz, nullptr, false);
    return std::make_unique<DetectionDlg>(basePath, megahertz, nullptr, false);
}

ValueSelection* Demodulation(bool vuhf = false)
{
    return dynamic_cast<ValueSelection*>(ValueOf(vuhf ? DEMODULATOR_VUHF_MODTYPE : DEMODULATOR_HF_DDC_MODTYPE));
}

QGroupBox* DecoderBox(const DecoderDlg& panel)
{
    return qobject_cast<QGroupBox*>(Grid(panel).At(0, 0));
}

} // namespace

class TestAnalysisPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        for (const char* group : {"G_DETCONV", "G_DETSHORT", "G_DECODER", "G_DEMOD_HF", "G_DEMOD_VUHF", "G_CLASSIFIER",
                                  "G_CORRELATOR", "G_HDR_DDC", "G_HDR_MS", "G_HDR_WB"})
            Fill(group);
    }
    void cleanup()
    {
        KeyManager::Instance()->Clear();
        WidgetFixture::CleanUp();
    }

    void excludedRangesAreShownAndStoredInTheUnitOfTheFlag()
    {
        for (const QString key : {DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE, DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE})
        {
            const bool isShort = key == DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE;
            for (const bool megahertz : {false, true})
            {
                const QString title = megahertz ? "Excluded ranges (MHz)" : "Excluded ranges (kHz)";
                ValueOf(key)->SetStoredText("1500000;1600000");
                const auto panel = MakeDetection(isShort, megahertz);
                auto* list = ListIn(*panel, title);
                QVERIFY(list);
                QCOMPARE(list->horizontalHeaderItem(1)->text(), "max");
                QCOMPARE(list->item(0, 0)->text(), megahertz ? "1.5" : "1500");
                TypeInto(list, 0, 1, megahertz ? "1.7005" : "1700.5");
                QCOMPARE(ValueOf(key)->GetStoredText(), "1500000;1700500");
            }
        }
    }

    void signalLengthsFollowTheFlagOfTheRanges()
    {
        for (const bool megahertz : {false, true})
        {
            ValueOf(DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH)->SetStoredText("10;2000");
            const auto panel = MakeDetection(true, megahertz);
            auto* list = ListIn(*panel, "Signal Length (ms)");
            QCOMPARE(list->item(0, 1)->text(), megahertz ? "200" : "2000");
            list->setCurrentCell(0, 0);
            QTest::keyClick(list, Qt::Key_Delete); // the last row stays
            QCOMPARE(list->rowCount(), 1);
            TypeInto(list, 0, 0, "5");
            QCOMPARE(ValueOf(DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH)->GetStoredText(), megahertz ? "50;2000" : "5;2000");
        }
    }

    void shortTimeBandwidthsAreEnteredInKilohertz()
    {
        const auto shortTime = MakeDetection(true, false);
        shortTime->show();
        const QString keys[] = {DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MINIMUM, DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MAXIMUM};
        for (const int row : {1, 2})
        {
            ValueBase* value = ValueOf(keys[row - 1]);
            value->SetStoredText("12345");
            auto* spin = qobject_cast<VCNumericFloatSpin*>(Grid(*shortTime).At(row, 5));
            QCOMPARE(Grid(*shortTime).TextAt(row, 6), "kHz");
            QCOMPARE(spin->text(), "12.345");
            spin->selectAll();
            QTest::keyClicks(spin, "6.5");
            QTest::keyClick(spin, Qt::Key_Return);
            QCOMPARE(value->GetStoredText(), "6500");
        }
    }

    void theZoomLocksItsOwnNodeAndNotTheHeaders()
    {
        Fill("G_SPECTRALZOOM", basePath + "TDSSpectralZoom/");
        const SpectralZoomDlg panel(basePath, nullptr, false);
        qobject_cast<QCheckBox*>(Grid(panel).At(0, 0))->click();
        QVERIFY(ValueOf("TDSSpectralZoom/" + DDC_LOCK_FREQUENCY_OFFLINE)->GetBool());
        QVERIFY(!ValueOf(DDC_LOCK_FREQUENCY_OFFLINE)->GetBool());
    }

    void morseInAnyLetterCaseHasItsOwnAlphabet()
    {
        const std::map<QString, bool> names{{"MORSE", true}, {"Morse", true}, {"MORSE 2", false}, {"", false}};
        for (const auto& [name, isMorse] : names)
        {
            Demodulation()->SetItems({{1, name}, {2, "something else"}});
            Demodulation()->SelectKey(1);
            const DecoderDlg panel(basePath, nullptr, false, false, false);
            QCOMPARE(DecoderBox(panel)->title(), name);
            const QString alphabet = isMorse ? MORSE_MORSEALPHABET : DECODED_TEXT_ALPHABET;
            QCOMPARE(Grid(DecoderBox(panel)).PathAt(1, 1), basePath + alphabet);
        }
    }

    void aNewDemodulationRebindsTheSameComboAndRetitles()
    {
        const QString text = ValueOf(DECODED_TEXT_ALPHABET)->GetStoredText();
        for (const bool vuhf : {false, true})
        {
            Demodulation(vuhf)->SetFromText("FSK");
            const DecoderDlg panel(basePath, nullptr, vuhf, false, vuhf);
            const Grid grid(DecoderBox(panel));
            const QWidget* alphabet = grid.At(1, 1);
            Demodulation(!vuhf)->SetFromText("MORSE"); // the other band's
            QCOMPARE(grid.PathAt(1, 1), basePath + DECODED_TEXT_ALPHABET);
            Demodulation(vuhf)->SetFromText("MORSE");
            QCOMPARE(DecoderBox(panel)->title(), "MORSE");
            QCOMPARE(grid.At(1, 1), alphabet);
            QCOMPARE(grid.PathAt(1, 1), basePath + MORSE_MORSEALPHABET);
            Demodulation(vuhf)->SetFromText("PSK");
            QCOMPARE(grid.PathAt(1, 1), basePath + DECODED_TEXT_ALPHABET);
            QCOMPARE(ValueOf(DECODED_TEXT_ALPHABET)->GetStoredText(), text);
            QCOMPARE(alphabet->isEnabled(), !panel.IsReadOnly());
        }
    }

    void withoutADemodulationTheAlphabetStaysUnbound()
    {
        Tree::Instance()->RemoveValue(basePath + DEMODULATOR_HF_DDC_MODTYPE);
        const DecoderDlg panel(basePath, nullptr, false, false, false);
        QCOMPARE(DecoderBox(panel)->title(), QString());
        QVERIFY(!Grid(DecoderBox(panel)).At(1, 1)->isEnabled());
        QCOMPARE(BoundNames(panel), QSet<QString>{DECODER_HF_DDC_DECODER_ID});
    }

    void largeLettersAreNotCutOff()
    {
        const auto restore = qScopeGuard([font = QApplication::font()] { QApplication::setFont(font); });
        QFont large = QApplication::font();
        large.setPointSize(2 * large.pointSize());
        QApplication::setFont(large);
        const DecoderDlg panel(basePath, nullptr, false, false, false);
        const QWidget* decoder = Grid(DecoderBox(panel)).At(0, 1);
        QVERIFY(decoder->maximumWidth() >= decoder->minimumSizeHint().width());
    }

    void theDecoderPanelAndItsValuesDieInAnyOrder()
    {
        const auto make = [] { return std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false); };
        auto panel = make();
        Tree::Instance()->Clear();
        panel.reset();
        init();
        panel = make();
        WidgetFixture::Counter destroyer([&] { panel.reset(); });
        Demodulation()->Attach(&destroyer);
        Demodulation()->SetFromText("MORSE"); // deletes the panel after it was told
        QVERIFY(!panel);
        panel = make();
        Demodulation()->SetFromText("FSK"); // deletes the panel before it is told
        QVERIFY(!panel);
    }

    void theClassifierDisablesTheFrequencyOffsetUnlessItIsKept()
    {
        ValueBase* offset = ValueOf(DEMODULATOR_HF_DDC_FREQUENCYOFFSET);
        for (const bool kept : {true, false})
        {
            ClassificatorDlg panel(basePath, kept, false, false, nullptr, false);
            QCOMPARE(offset->GetState(), kept ? stEnabled : stDisabled);
            offset->SetState(stEnabled);
            panel.DisableUnusedValues();
            QCOMPARE(offset->GetState(), kept ? stEnabled : stDisabled);
        }
    }

    void eachPatternDisablesAValueThatNoWidgetShows()
    {
        const CorrelatorDlg panel(basePath, nullptr, false);
        for (int pattern = 1; pattern <= 4; ++pattern)
            QCOMPARE(ValueOf(Correlator::PatternKey(pattern, Correlator::SYMBOLVALANCY))->GetState(), stDisabled);
    }

    void aHeaderWithoutDelayedModesShowsNoGroup()
    {
        Tree::Instance()->RemoveValue(basePath + DDC_SIGNAL_DELAYED_MODES);
        const TdsHeaderDDCDlg panel(basePath, nullptr, false, false, false);
        QVERIFY(!panel.findChild<VCButtonGroup*>());
        QCOMPARE(Grid(panel).TextAt(0, 0), "Lock frequency");
    }

    void someValuesAreAddressedByTheKeyItself()
    {
        const QSet<QString> raw{DDC_SIGNAL_DELAYED_MODES, TDS_HEADER_MEMORYSCAN_COUNT,
                                TDS_HEADER_VUHF_WB_GAINCONTROL_MODE, TDS_HEADER_VUHF_WB_GAINCONTROL_MGC_GAIN,
                                TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT};
        for (const QString& key : raw)
            KeyManager::Instance()->Register(key, "somewhere/else");
        KeyManager::Instance()->Register(TDS_HEADER_VUHF_WB_IFBANDWIDTH, TDS_HEADER_VUHF_WB_AGC_ATTACKTIME);
        const TdsHeaderDDCDlg ddc(basePath, nullptr, false, false, false);
        const TdsHeaderMSDlg memoryScan(basePath, nullptr, false);
        const TdsHeaderWBDlg wideband(basePath, nullptr, false, true, false, false);
        QVERIFY((BoundNames(ddc) + BoundNames(memoryScan) + BoundNames(wideband)).contains(raw));
        QCOMPARE(Grid(wideband).PathAt(0, 5), basePath + TDS_HEADER_VUHF_WB_AGC_ATTACKTIME);
    }

    void channelCountsAreShownButNeverEditable()
    {
        const TdsHeaderMSDlg memoryScan(basePath, nullptr, false);
        const TdsHeaderWBDlg wideband(basePath, nullptr, false, true, false, false);
        for (const QWidget* field : {Grid(memoryScan).At(0, 1), Grid(wideband).At(0, 8)})
        {
            QVERIFY(!qobject_cast<const QLineEdit*>(field)->text().isEmpty());
            QVERIFY(!field->isEnabled());
        }
        QCOMPARE(ValueOf(TDS_HEADER_MEMORYSCAN_COUNT)->GetState(), stDisabled);
        QCOMPARE(ValueOf(TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT)->GetState(), stDisabled);
    }

    void improvedDynamicsHaveAFlagOfTheirOwn()
    {
        for (const bool flag : {false, true})
        {
            const TdsHeaderWBDlg panel(basePath, nullptr, flag, flag, false, !flag);
            QCOMPARE(panel.IsReadOnly(), flag);
            QCOMPARE(Grid(panel).At(3, 2)->isEnabled(), !flag);
            QCOMPARE(Grid(panel).At(4, 2)->isEnabled(), flag);
        }
    }
};

QTEST_MAIN(TestAnalysisPanels)
#include "test_analysispanels.moc"
