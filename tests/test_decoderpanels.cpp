#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "widgetfixture.h"

#include <map>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

ValueSelection* Demodulation(bool vuhf = false)
{
    return dynamic_cast<ValueSelection*>(ValueOf(vuhf ? DEMODULATOR_VUHF_MODTYPE : DEMODULATOR_HF_DDC_MODTYPE));
}

QGroupBox* DecoderBox(const DecoderDlg& panel)
{
    return qobject_cast<QGroupBox*>(Grid(panel).At(0, 0));
}

} // namespace

class TestDecoderPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        for (const char* group : {"G_DECODER", "G_DEMOD_HF", "G_DEMOD_VUHF", "G_CLASSIFIER", "G_CORRELATOR"})
            Fill(group);
    }
    void cleanup() { Tree::Instance()->Clear(); }

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
            QCOMPARE(grid.PathAt(0, 1), basePath + DECODER_HF_DDC_DECODER_ID); // the same key in both bands
            QCOMPARE(grid.At(0, 1)->maximumWidth(), 175);
        }
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

    void withoutADemodulationTheAlphabetStaysUnbound()
    {
        Tree::Instance()->RemoveValue(basePath + DEMODULATOR_HF_DDC_MODTYPE);
        const DecoderDlg panel(basePath, nullptr, false, false, false);
        QCOMPARE(DecoderBox(panel)->title(), QString());
        QVERIFY(!Grid(DecoderBox(panel)).At(1, 1)->isEnabled());
        QCOMPARE(BoundNames(panel), QSet<QString>{DECODER_HF_DDC_DECODER_ID});
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

    void theClassifierShowsTheClassesThatItsFormOffers()
    {
        for (const bool symbols : {false, true})
        {
            const ClassificatorDlg panel(basePath, true, symbols, false, nullptr, false);
            const QSet<QString> names = BoundNames(panel);
            QCOMPARE(names.size(), symbols ? 7 : 8);
            QCOMPARE(names.contains(CLASSIFIER_DDC_SYMBOL_RECOGNITION), symbols);
            QCOMPARE(names.contains(CLASSIFIER_DDC_PSK_MODULATION), !symbols);
            // The units of the segmentation stand differently.
            QVERIFY(Grid(panel).LabelAt(1, 2)->alignment() & Qt::AlignLeft);
            QVERIFY(Grid(panel).LabelAt(2, 2)->alignment() & Qt::AlignRight);

            const ClassificatorDlg segmentation(basePath, true, symbols, true, nullptr, false);
            QCOMPARE(BoundNames(segmentation).size(), 3);
            QCOMPARE(Grid(segmentation).PlaceOfLine(QFrame::VLine), Place{});
        }
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

    void eachPatternEditsItsOwnValuesAndDisablesOneThatNoWidgetShows()
    {
        const CorrelatorDlg panel(basePath, nullptr, false);
        for (int pattern = 1; pattern <= 4; ++pattern)
        {
            const Grid grid(Grid(panel).Group(QStringLiteral("Pattern %1").arg(pattern)));
            const QString prefix = basePath + QStringLiteral("CORRELATOR_VUHF_P%1_").arg(pattern);
            QCOMPARE(grid.PathAt(0, 1), prefix + "PATTERNNAME");
            QCOMPARE(grid.PathAt(0, 2), prefix + "ACTIVE");
            QCOMPARE(grid.PathAt(1, 1), prefix + "THRESHOLD");
            Tree::Instance()->FindValue(prefix + "THRESHOLD")->SetFromText("0.25");
            QCOMPARE(grid.At(1, 1)->findChild<QLineEdit*>()->text(), "0.25");
            QCOMPARE(ValueOf(Correlator::PatternKey(pattern, Correlator::SYMBOLVALANCY))->GetState(), stDisabled);
        }
        QCOMPARE(BoundNames(panel).size(), 4 * 3);
    }
};

QTEST_MAIN(TestDecoderPanels)
#include "test_decoderpanels.moc"
