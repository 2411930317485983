#include "analysis/classificatordlg.h"
#include "analysis/correlatordlg.h"
#include "analysis/decoderdlg.h"
#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/tdsheaderddcdlg.h"
#include "analysis/tdsheadermsdlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "common.h"
#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/alarmconditionsspdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/shorttimeprofileheaderdlg.h"
#include "ipcparam/sigtrackingcontroldlg.h"
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

/// Types into the field, or into the first row of the list, in place of what stands there.
void TypeInto(QWidget* field, const QString& text)
{
    field->window()->show();
    field->setFocus();
    if (auto* list = qobject_cast<VCListBoxNumeric*>(field))
        return NumericListTest::Press(NumericListTest::Type(list, 0, 1, text), Qt::Key_Return);
    WidgetFixture::Enter(static_cast<QAbstractSpinBox*>(field), text);
}

ValueSelection* Demodulation(bool vuhf = false)
{
    return dynamic_cast<ValueSelection*>(ValueOf(vuhf ? DEMODULATOR_VUHF_MODTYPE : DEMODULATOR_HF_DDC_MODTYPE));
}

QGroupBox* DecoderBox(const DecoderDlg& panel)
{
    return qobject_cast<QGroupBox*>(Grid(panel).At(0, 0));
}

const QString fullName = QStringLiteral("Full/");

const std::vector<std::unique_ptr<JOBXMLGENERATOR::Parameter>>& ParametersOf(const QString& group)
{
    static const auto model = JobModel::Load();
    return model->FindGroup(group, Band::Hf)->GetParameters();
}

// From now on the full name of a key of the group differs from the key, and both name a value.
void MapAndFill(const QString& group)
{
    Fill(group);
    Fill(group, basePath + fullName);
    for (const auto& parameter : ParametersOf(group))
        KeyManager::Instance()->Register(parameter->GetUniqueParameterName(),
                                         fullName + parameter->GetUniqueParameterName());
}

} // namespace

/// What single panels do beyond the rows that test_panelrows looks at.
class TestPanels : public QObject
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

    void numbersAreShownAndEnteredInTheirUnit_data()
    {
        // title: of the group of a list, or the unit behind a spin box
        const Table<QString, bool, QString, QString, QString, QString, QString> table(
            "key", "megahertz", "title", "stored", "shown", "typed", "after");
        const auto row = [&](const QString& key, bool megahertz, const QString& title, const QString& stored,
                             const QString& shown, const QString& typed, const QString& after)
        { table(key + ' ' + title, key, megahertz, title, stored, shown, typed, after); };
        const QString ranges = "1500000;1600000", rangesAfter = "1500000;1700500";
        for (const QString key : {DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE, DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE})
        {
            row(key, false, "Excluded ranges (kHz)", ranges, "1600", "1700.5", rangesAfter);
            row(key, true, "Excluded ranges (MHz)", ranges, "1.6", "1.7005", rangesAfter);
        }
        for (const bool megahertz : {false, true}) // the lengths follow the flag of the ranges
            row(DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH, megahertz, "Signal Length (ms)", "10;2000",
                megahertz ? "200" : "2000", "300", megahertz ? "10;3000" : "10;300");
        for (const QString key : {DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MINIMUM, DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MAXIMUM})
            row(key, false, "kHz", "12345", "12.345", "6.5", "6500");
    }
    void numbersAreShownAndEnteredInTheirUnit()
    {
        QFETCH(QString, key);
        QFETCH(bool, megahertz);
        QFETCH(QString, title);
        QFETCH(QString, stored);
        QFETCH(QString, typed);
        ValueOf(key)->SetStoredText(stored);
        std::unique_ptr<ParameterDlg> panel;
        if (key == DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE)
            panel = std::make_unique<DetectionDlg>(basePath, megahertz, nullptr, false);
        else
            panel = std::make_unique<DetectionShortDlg>(basePath, false, megahertz, nullptr, false);
        auto* field = panel->findChild<QWidget*>(key);
        QVERIFY(field);
        if (auto* list = qobject_cast<VCListBoxNumeric*>(field))
        {
            QVERIFY(Grid(Grid(*panel).Group(title)).At(0, 0) == list);
            QTEST(list->item(0, 1)->text(), "shown");
            list->setCurrentCell(0, 0);
            if (key == DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH)
                QTest::keyClick(list, Qt::Key_Delete); // its last row stays
        }
        else
            QTEST(static_cast<VCNumericFloatSpin*>(field)->text(), "shown");
        TypeInto(field, typed);
        QTEST(ValueOf(key)->GetStoredText(), "after");
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

    void withoutADemodulationTheAlphabetStaysUnboundAndThePanelMayGoWhenItChanges()
    {
        auto panel = std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false);
        Hearer destroyer([&] { panel.reset(); });
        Demodulation()->Attach(&destroyer);
        Demodulation()->SetFromText("MORSE");
        QVERIFY(!panel);
        Tree::Instance()->RemoveValue(basePath + DEMODULATOR_HF_DDC_MODTYPE);
        panel = std::make_unique<DecoderDlg>(basePath, nullptr, false, false, false);
        QCOMPARE(DecoderBox(*panel)->title(), QString());
        QVERIFY(!Grid(DecoderBox(*panel)).At(1, 1)->isEnabled());
        QVERIFY(!ValueOf(DECODED_TEXT_ALPHABET)->IsObserved() && !ValueOf(MORSE_MORSEALPHABET)->IsObserved());
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

    void channelCountsAreNeverEditableAndImprovedDynamicsByAFlagOfTheirOwn()
    {
        const TdsHeaderMSDlg memoryScan(basePath, nullptr, false);
        for (const bool flag : {false, true})
        {
            const TdsHeaderWBDlg wideband(basePath, nullptr, flag, flag, false, !flag);
            QCOMPARE(wideband.IsReadOnly(), flag);
            QCOMPARE(Grid(wideband).At(3, 2)->isEnabled(), !flag);
            QCOMPARE(Grid(wideband).At(4, 2)->isEnabled(), flag);
            for (const QWidget* field : {Grid(memoryScan).At(0, 1), Grid(wideband).At(0, 8)})
            {
                QVERIFY(!qobject_cast<const QLineEdit*>(field)->text().isEmpty());
                QVERIFY(!field->isEnabled());
            }
        }
        for (const QString key : {TDS_HEADER_MEMORYSCAN_COUNT, TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT})
            QCOMPARE(ValueOf(key)->GetState(), stDisabled);
    }

    void aReadOnlyPanelThatIsOpenedDirectlyStaysDisabledWhateverTheValuesSay()
    {
        const auto check = [](const ParameterDlg& panel, const QString& group)
        {
            for (const auto& parameter : ParametersOf(group))
            {
                ValueBase* value = ValueOf(parameter->GetUniqueParameterName());
                value->SetState(stDisabled);
                value->SetState(stEnabled);
                if (const auto* widget = panel.findChild<QWidget*>(value->GetName()))
                    QVERIFY2(!widget->isEnabledTo(&panel), qPrintable(value->GetName()));
            }
        };
        Fill("G_PROFILE");
        Fill("G_PROFILE_HDR");
        check(ShorttimeProfileDlg(basePath, nullptr, true), "G_PROFILE");
        check(ShorttimeProfileHeaderDlg(basePath, nullptr, true), "G_PROFILE_HDR");
        const AutoRecordingDlg buttons(basePath, nullptr, false, true); // no value is behind a button
        QVERIFY(buttons.findChild<QWidget*>(AUTORECORDING_RECORD_ALL)->isEnabledTo(&buttons));
    }

    void theLargestPanelsHaveRoomAtTheSizeOfTheHost()
    {
        Fill("G_ACTIVITY", ParameterDlg::GetParentPath(basePath));
        Fill("G_ALARM_SP");
        Fill("G_PROFILE");
        ActivityGenerationDlg activity(basePath, nullptr, true, true, true, false);
        AlarmConditionsSPDlg alarm(basePath, nullptr);
        ShorttimeProfileDlg profile(basePath, nullptr, false);
        for (ParameterDlg* panel : std::initializer_list<ParameterDlg*>{&activity, &alarm, &profile})
        {
            panel->resize(775, 480);
            panel->show();
            QCOMPARE(panel->size(), QSize(775, 480)); // a window cannot be smaller than its layout needs
            for (const QLabel* label : panel->findChildren<QLabel*>())
                QVERIFY2(!label->wordWrap() || label->height() >= label->heightForWidth(label->width()),
                         qPrintable(label->text()));
        }
    }

    void bothButtonsChooseFixedFrequencyMonitoringButOnlyDeselectAllByFullName_data() { WithAndWithout("record"); }
    void bothButtonsChooseFixedFrequencyMonitoringButOnlyDeselectAllByFullName()
    {
        QFETCH(bool, record);
        MapAndFill("G_AUTOREC");
        const QString button = record ? AUTORECORDING_RECORD_ALL : AUTORECORDING_DESELECT_ALL;
        QStringList expected{basePath + (record ? QString() : fullName) + AUTORECORDING_FFM_OR_SCAN + "=0"};
        for (const QString& at : {QString(), fullName})
            ValueOf(at + AUTORECORDING_FFM_OR_SCAN)->SetFromText(QStringLiteral("Scan"));
        for (const QString key : {AUTORECORDING_BITSTREAM, AUTORECORDING_DECODED_TEXT, AUTORECORDING_TRANSMISSION_SYS,
                                  AUTORECORDING_FAX, AUTORECORDING_AUDIO, AUTORECORDING_AMREC})
        {
            ValueOf(key)->SetBool(!record);
            expected.append(basePath + key + (record ? "=true" : "=false"));
        }
        const AutoRecordingDlg panel(basePath, nullptr, false, false);
        QStringList written;
        Tree::Instance()->SetJournal([&](const JournalEntry& entry)
                                     { written.append(entry.value.GetPathName() + u'=' + entry.after); });
        QTest::mouseClick(panel.findChild<QPushButton*>(button), Qt::LeftButton);
        QCOMPARE(written, expected);
    }

    void aPanelThatGoesDuringSelectAllWritesNoFurther()
    {
        Fill("G_AUTOREC");
        auto panel = std::make_unique<AutoRecordingDlg>(basePath, nullptr, false, false);
        Hearer killer([&] { panel.reset(); });
        ValueOf(AUTORECORDING_BITSTREAM)->Attach(&killer);
        QTest::mouseClick(panel->findChild<QPushButton*>(AUTORECORDING_RECORD_ALL), Qt::LeftButton);
        QVERIFY(!panel);
        QVERIFY(ValueOf(AUTORECORDING_BITSTREAM)->GetBool());
        QVERIFY(!ValueOf(AUTORECORDING_FAX)->GetBool());
    }

    void aProfileDisablesWhatIsShownOnlyAndNothingElse()
    {
        Fill("G_PROFILE");
        const ShorttimeProfileDlg panel(basePath, nullptr, false);
        for (const char* key : {"USEBANDWIDTH", "USEFREQUENCY", "USEHOPSTEP", "USEHOPPINGRATE", "USEFREQUENCYSETTBL"})
            ValueOf(QLatin1String(key))->SetBool(false);
        QSet<QString> disabled;
        for (const auto& parameter : ParametersOf("G_PROFILE"))
            if (ValueOf(parameter->GetUniqueParameterName())->GetState() == stDisabled)
                disabled.insert(parameter->GetUniqueParameterName());
        const QSet<QString> expected{FIRSTEDITDATETIME,  LASTEDITDATETIME, CREATINGOPERATOR,
                                     MODIFIYINGOPERATOR, NUMBEROFCHANNELS, MODULATIONTYPE};
        QCOMPARE(disabled, expected);
    }

    void aBandwidthOfAProfileIsEnteredInMegahertzAndItsListInKilohertz()
    {
        Fill("G_PROFILE");
        const ShorttimeProfileDlg panel(basePath, nullptr, false);
        auto* edit = panel.findChild<QLineEdit*>(MINBANDWIDTH);
        QCOMPARE(edit->text().toDouble(), 0.0125);
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("0.025"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(ValueOf(MINBANDWIDTH)->GetText(), QStringLiteral("25000"));
        QCOMPARE(panel.findChild<QTableWidget*>()->item(0, 0)->text().toDouble(), 30025.0);
    }

    void signalTrackingShowsOneValueAndDisablesTheOther()
    {
        MapAndFill("G_TRACKING");
        const SigTrackingControlDlg panel(basePath, nullptr);
        const QString key = SIGNALTRACKINGCONTROL_FREQUENCYRANGE;
        QCOMPARE(ValueOf(key)->GetState(), stEnabled);
        QCOMPARE(ValueOf(fullName + key)->GetState(), stDisabled);
    }
};

QTEST_MAIN(TestPanels)
#include "test_panels.moc"
