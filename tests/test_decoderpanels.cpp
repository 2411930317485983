#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vccomboboxclassic.h"

#include <QTest>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

ValueSelection* Demodulation(bool vuhf)
{
    return dynamic_cast<ValueSelection*>(ValueOf(vuhf ? DEMODULATOR_VUHF_MODTYPE : DEMODULATOR_HF_DDC_MODTYPE));
}

QGroupBox* DecoderBox(const DecoderDlg& panel)
{
    return qobject_cast<QGroupBox*>(Grid(panel).At(0, 0));
}

/// Deletes a panel when the value changes.
class Destroyer : public IObserver
{
public:
    void Update(Observable*, TChangeCode) override { panel.reset(); }
    std::unique_ptr<ParameterDlg> panel;
};

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

    void morseInAnyLetterCaseHasItsOwnAlphabet_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("alphabet");
        QTest::newRow("upper") << "MORSE" << QString(MORSE_MORSEALPHABET);
        QTest::newRow("mixed") << "Morse" << QString(MORSE_MORSEALPHABET);
        QTest::newRow("longer name") << "MORSE 2" << QString(DECODED_TEXT_ALPHABET);
        QTest::newRow("other") << "FSK" << QString(DECODED_TEXT_ALPHABET);
        QTest::newRow("no name") << "" << QString(DECODED_TEXT_ALPHABET);
    }
    void morseInAnyLetterCaseHasItsOwnAlphabet()
    {
        QFETCH(QString, name);
        QFETCH(QString, alphabet);
        Demodulation(false)->SetItems({{1, name}, {2, "something else"}});
        Demodulation(false)->SelectKey(1);
        const DecoderDlg panel(basePath, nullptr, false, false, false);
        QCOMPARE(DecoderBox(panel)->title(), name);
        QCOMPARE(Grid(DecoderBox(panel)).PathAt(1, 1), basePath + alphabet);
    }

    void aNewDemodulationRebindsTheSameComboAndRetitles_data()
    {
        QTest::addColumn<bool>("vuhf");
        QTest::newRow("HF") << false;
        QTest::newRow("V/UHF") << true;
    }
    void aNewDemodulationRebindsTheSameComboAndRetitles()
    {
        QFETCH(bool, vuhf);
        const DecoderDlg panel(basePath, nullptr, vuhf, false, false);
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
        QCOMPARE(grid.PathAt(0, 1), basePath + DECODER_HF_DDC_DECODER_ID); // the same key in both bands
        QCOMPARE(grid.At(0, 1)->minimumWidth(), 175);
        QCOMPARE(grid.At(0, 1)->maximumWidth(), 175);
    }

    void reboundAlphabetsKeepTheirContentAndTheReadOnlyState()
    {
        const QString text = ValueOf(DECODED_TEXT_ALPHABET)->GetStoredText();
        const QString morse = ValueOf(MORSE_MORSEALPHABET)->GetStoredText();
        const DecoderDlg panel(basePath, nullptr, false, false, true);
        Demodulation(false)->SetFromText("MORSE");
        Demodulation(false)->SetFromText("FSK");
        QVERIFY(!Grid(DecoderBox(panel)).At(1, 1)->isEnabled());
        QCOMPARE(ValueOf(DECODED_TEXT_ALPHABET)->GetStoredText(), text);
        QCOMPARE(ValueOf(MORSE_MORSEALPHABET)->GetStoredText(), morse);
    }

    void withoutADemodulationTheAlphabetStaysUnbound()
    {
        Tree::Instance()->RemoveValue(basePath + DEMODULATOR_HF_DDC_MODTYPE);
        const DecoderDlg panel(basePath, nullptr, false, false, false);
        QCOMPARE(DecoderBox(panel)->title(), QString());
        QCOMPARE(Grid(DecoderBox(panel)).PathAt(1, 1), QString());
        QVERIFY(!Grid(DecoderBox(panel)).At(1, 1)->isEnabled());
        QCOMPARE(Grid(DecoderBox(panel)).PathAt(0, 1), basePath + DECODER_HF_DDC_DECODER_ID);
    }

    void theDecoderPanelAndItsValuesDieInAnyOrder()
    {
        auto panel = std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false);
        Tree::Instance()->Clear();
        panel.reset();
        init();
        Destroyer first;
        first.panel = std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false);
        Destroyer last;
        Demodulation(false)->Attach(&last);
        last.panel = std::move(first.panel);
        Demodulation(false)->SetFromText("MORSE"); // deletes the panel after it was told
        QVERIFY(!last.panel);
        Demodulation(false)->Attach(&first);
        first.panel = std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false);
        Demodulation(false)->SetFromText("FSK"); // deletes the panel before it is told
        QVERIFY(!first.panel);
    }

    void theClassifierShowsTheClassesThatItsFormOffers_data()
    {
        QTest::addColumn<bool>("symbolRecognition");
        QTest::addColumn<bool>("segmentationOnly");
        QTest::addColumn<QSet<QString>>("classes");
        const QSet<QString> digital{CLASSIFIER_DDC_ANALOG_MODULATION, CLASSIFIER_DDC_MC_MODULATION,
                                    CLASSIFIER_DDC_ARQ_MODULATION, CLASSIFIER_DDC_MT_MODULATION,
                                    CLASSIFIER_DDC_PSK_MODULATION};
        const QSet<QString> symbols{CLASSIFIER_DDC_ANALOG_MODULATION, CLASSIFIER_DDC_MC_MODULATION,
                                    CLASSIFIER_DDC_SYMBOL_RECOGNITION, CLASSIFIER_DDC_MODULATIONANALYSISMETHOD};
        QTest::newRow("classes") << false << false << digital;
        QTest::newRow("symbols") << true << false << symbols;
        QTest::newRow("segmentation") << false << true << QSet<QString>();
        QTest::newRow("segmentation and symbols") << true << true << QSet<QString>();
    }
    void theClassifierShowsTheClassesThatItsFormOffers()
    {
        QFETCH(bool, symbolRecognition);
        QFETCH(bool, segmentationOnly);
        QFETCH(QSet<QString>, classes);
        const ClassificatorDlg panel(basePath, true, symbolRecognition, segmentationOnly, nullptr, false);
        const QSet<QString> segmentation{CLASSIFIER_DDC_AUTO_SEGMENTATION, CLASSIFIER_DDC_SEGMENTATION_FREQUENCY,
                                         CLASSIFIER_DDC_SEGMENTATION_BANDWIDTH};
        QCOMPARE(BoundNames(panel), segmentation + classes);
        QCOMPARE(Grid(panel).PlaceOfLine(QFrame::VLine), segmentationOnly ? Place{} : (Place{0, 3, 5, 1}));
    }

    void theSegmentationUnitsStandDifferently()
    {
        const ClassificatorDlg panel(basePath, true, false, false, nullptr, false);
        QCOMPARE(Grid(panel).TextAt(1, 2), "Hz");
        QCOMPARE(Grid(panel).TextAt(2, 2), "Hz");
        QVERIFY(Grid(panel).LabelAt(1, 2)->alignment() & Qt::AlignLeft);
        QVERIFY(Grid(panel).LabelAt(2, 2)->alignment() & Qt::AlignRight);
    }

    void theClassifierDisablesTheFrequencyOffsetUnlessItIsKept()
    {
        ValueBase* offset = ValueOf(DEMODULATOR_HF_DDC_FREQUENCYOFFSET);
        ClassificatorDlg keeping(basePath, true, false, false, nullptr, false);
        keeping.DisableUnusedValues();
        QCOMPARE(offset->GetState(), stEnabled);
        ClassificatorDlg panel(basePath, false, false, false, nullptr, false);
        QCOMPARE(offset->GetState(), stDisabled);
        offset->SetState(stEnabled);
        panel.DisableUnusedValues();
        QCOMPARE(offset->GetState(), stDisabled);
    }

    void eachPatternEditsItsOwnValues_data()
    {
        QTest::addColumn<int>("pattern");
        QTest::addColumn<Place>("place");
        QTest::newRow("1") << 1 << Place{0, 0, 2, 2};
        QTest::newRow("2") << 2 << Place{0, 2, 2, 2};
        QTest::newRow("3") << 3 << Place{2, 0, 2, 2};
        QTest::newRow("4") << 4 << Place{2, 2, 2, 2};
    }
    void eachPatternEditsItsOwnValues()
    {
        QFETCH(int, pattern);
        QFETCH(Place, place);
        const CorrelatorDlg panel(basePath, nullptr, false);
        QGroupBox* box = Grid(panel).Group(QStringLiteral("Pattern %1").arg(pattern));
        QVERIFY(box);
        QCOMPARE(Grid(panel).PlaceOf(box), place);
        const Grid grid(box);
        const QString prefix = basePath + QStringLiteral("CORRELATOR_VUHF_P%1_").arg(pattern);
        QCOMPARE(grid.PathAt(0, 1), prefix + "PATTERNNAME");
        QCOMPARE(grid.PathAt(0, 2), prefix + "ACTIVE");
        QCOMPARE(grid.PathAt(1, 1), prefix + "THRESHOLD");

        auto* active = qobject_cast<VCCheckBox*>(grid.At(0, 2));
        const bool before = active->isChecked();
        active->click();
        QCOMPARE(Tree::Instance()->FindValue(prefix + "ACTIVE")->GetBool(), !before);
        ValueBase* threshold = Tree::Instance()->FindValue(prefix + "THRESHOLD");
        threshold->SetFromText("0.25");
        auto* edit = grid.At(1, 1)->findChild<QLineEdit*>();
        QCOMPARE(edit->text(), QLocale().toString(0.25, 'f', 2));
    }

    void theSymbolValenciesAreDisabledThoughNoWidgetShowsThem()
    {
        const CorrelatorDlg panel(basePath, nullptr, false);
        for (int pattern = 1; pattern <= 4; ++pattern)
        {
            const QString key = Correlator::PatternKey(pattern, Correlator::SYMBOLVALANCY);
            QCOMPARE(ValueOf(key)->GetState(), stDisabled);
            QVERIFY(!BoundNames(panel).contains(key));
        }
    }
};

QTEST_MAIN(TestDecoderPanels)
#include "test_decoderpanels.moc"
