#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/fftdatadlg.h"
#include "analysis/spectralzoomdlg.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgets/vclistboxnumeric.h"

#include <QTest>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

namespace
{

VCListBoxNumeric* ListIn(const QGroupBox* box)
{
    return box ? qobject_cast<VCListBoxNumeric*>(Grid(box).At(0, 0)) : nullptr;
}

/// Types `text` into a cell the way a person does.
void TypeInto(VCListBoxNumeric* list, int row, int column, const QString& text)
{
    list->window()->show();
    list->setFocus();
    list->setCurrentCell(row, column);
    QTest::keyClick(list, Qt::Key_F2);
    auto* editor = qobject_cast<QLineEdit*>(list->indexWidget(list->currentIndex()));
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
}

std::unique_ptr<ParameterDlg> MakeDetection(bool isShort, bool megahertz, bool readOnly = false)
{
    if (isShort)
        return std::make_unique<DetectionShortDlg>(basePath, false, megahertz, nullptr, readOnly);
    return std::make_unique<DetectionDlg>(basePath, megahertz, nullptr, readOnly);
}

} // namespace

class TestDetectionPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        for (const char* group : {"G_DETCONV", "G_DETSHORT", "G_SPECTRUM"})
            Fill(group);
    }
    void cleanup()
    {
        Tree::Instance()->SetJournal({});
        Tree::Instance()->Clear();
    }

    void excludedRangesAreShownAndStoredInTheUnitOfTheFlag_data()
    {
        QTest::addColumn<bool>("isShort");
        QTest::addColumn<bool>("megahertz");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        for (const bool isShort : {false, true})
        {
            QTest::addRow("short %d, kHz", isShort) << isShort << false << "Excluded ranges (kHz)"
                                                    << "1500"
                                                    << "1700.5";
            QTest::addRow("short %d, MHz", isShort) << isShort << true << "Excluded ranges (MHz)"
                                                    << "1.5"
                                                    << "1.7005";
        }
    }
    void excludedRangesAreShownAndStoredInTheUnitOfTheFlag()
    {
        QFETCH(bool, isShort);
        QFETCH(bool, megahertz);
        QFETCH(QString, title);
        QFETCH(QString, shown);
        QFETCH(QString, typed);
        const QString key = isShort ? DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE : DDC_DETECTCONV_SEQ_EXCL_FREQ_RANGE;
        ValueOf(key)->SetStoredText("1500000;1600000");
        const auto panel = MakeDetection(isShort, megahertz);
        VCListBoxNumeric* list = ListIn(Grid(*panel).Group(title));
        QVERIFY(list);
        QCOMPARE(list->horizontalHeaderItem(0)->text(), "min");
        QCOMPARE(list->horizontalHeaderItem(1)->text(), "max");
        QCOMPARE(list->item(0, 0)->text(), shown);
        TypeInto(list, 0, 1, typed);
        QCOMPARE(ValueOf(key)->GetStoredText(), "1500000;1700500");
    }

    void signalLengthsFollowTheFlagOfTheRanges()
    {
        for (const bool megahertz : {false, true})
        {
            ValueOf(DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH)->SetStoredText("10;2000");
            const DetectionShortDlg panel(basePath, false, megahertz, nullptr, false);
            VCListBoxNumeric* list = ListIn(Grid(panel).Group("Signal Length (ms)"));
            QCOMPARE(list->item(0, 1)->text(), megahertz ? "200" : "2000");
            list->setCurrentCell(0, 0);
            QTest::keyClick(list, Qt::Key_Delete); // the last row stays
            QCOMPARE(list->rowCount(), 1);
            TypeInto(list, 0, 0, "5");
            QCOMPARE(ValueOf(DDC_DETECTSHORT_SEQ_SIGNAL_LENGTH)->GetStoredText(), megahertz ? "50;2000" : "5;2000");
        }
    }

    void shortTimeBandwidthsAreStoredInHertzAndShownInKilohertz_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("key");
        QTest::newRow("min") << 1 << QString(DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MINIMUM);
        QTest::newRow("max") << 2 << QString(DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MAXIMUM);
    }
    void shortTimeBandwidthsAreStoredInHertzAndShownInKilohertz()
    {
        QFETCH(int, row);
        QFETCH(QString, key);
        ValueOf(key)->SetStoredText("12345");
        DetectionShortDlg panel(basePath, false, false, nullptr, false);
        panel.show();
        auto* spin = qobject_cast<VCNumericFloatSpin*>(Grid(panel).At(row, 5));
        QVERIFY(spin);
        QCOMPARE(Grid(panel).TextAt(row, 6), "kHz");
        QCOMPARE(spin->text(), "12.345");
        spin->selectAll();
        QTest::keyClicks(spin, "6.5");
        QTest::keyClick(spin, Qt::Key_Return);
        QCOMPARE(ValueOf(key)->GetStoredText(), "6500");
    }

    void bandwidthsAreAChoiceInContinuousDetection()
    {
        const DetectionDlg panel(basePath, false, nullptr, false);
        QCOMPARE(Grid(panel).PathAt(1, 6), basePath + DDC_DETECTCONV_PAR_BANDWDTH_MIN);
        QCOMPARE(Grid(panel).PathAt(2, 6), basePath + DDC_DETECTCONV_PAR_BANDWDTH_MAX);
        QVERIFY(qobject_cast<QComboBox*>(Grid(panel).At(1, 6)));
    }

    void levelsAreInMicrovolts()
    {
        const DetectionDlg longTime(basePath, false, nullptr, false);
        QCOMPARE(Grid(longTime).TextAt(0, 7), QStringLiteral("dB\u00B5V/Hz"));
        QCOMPARE(Grid(longTime).TextAt(4, 7), QStringLiteral("dB\u00B5V/Hz"));
        const DetectionShortDlg shortTime(basePath, false, false, nullptr, false);
        QCOMPARE(Grid(shortTime).TextAt(0, 6), QStringLiteral("dB\u00B5V"));
        QCOMPARE(Grid(shortTime).TextAt(4, 6), QStringLiteral("dB\u00B5V"));
    }

    void theSpectrumHasTheRowsOfItsForm_data()
    {
        QTest::addColumn<bool>("fftLengthMode");
        QTest::addColumn<bool>("refreshRateRow");
        QTest::newRow("resolution") << false << false;
        QTest::newRow("resolution and rate") << false << true;
        QTest::newRow("length") << true << false;
        QTest::newRow("length and rate") << true << true;
    }
    void theSpectrumHasTheRowsOfItsForm()
    {
        QFETCH(bool, fftLengthMode);
        QFETCH(bool, refreshRateRow);
        const FFTDataDlg panel(basePath, fftLengthMode, refreshRateRow, nullptr, false);
        QSet<QString> rows{SPECTRUM_WINDOW_TYPES, SPECTRUM_DISPLAYMODE, SPECTRUM_MEASUREMENTTIME};
        rows.insert(fftLengthMode ? SPECTRUM_FFT_LENGTH : SPECTRUM_RESOLUTIONBW);
        if (refreshRateRow)
            rows.insert(SPECTRUM_MAX_SPECTRUMRATE);
        QCOMPARE(BoundNames(panel), rows);
        QCOMPARE(Grid(panel).TextAt(1, 2).isEmpty(), !refreshRateRow);
        QCOMPARE(Grid(panel).PlaceOfLine(QFrame::VLine), (Place{0, 3, 3, 1}));
    }

    void theZoomLocksItsOwnNodeAndNotTheHeaders()
    {
        Fill("G_HDR_DDC");
        Fill("G_SPECTRALZOOM", basePath + "TDSSpectralZoom/");
        const SpectralZoomDlg panel(basePath, nullptr, false);
        const QString path = basePath + "TDSSpectralZoom/" + DDC_LOCK_FREQUENCY_OFFLINE;
        QCOMPARE(Grid(panel).PathAt(0, 0), path);
        qobject_cast<QCheckBox*>(Grid(panel).At(0, 0))->click();
        QVERIFY(Tree::Instance()->FindValue(path)->GetBool());
        QVERIFY(!ValueOf(DDC_LOCK_FREQUENCY_OFFLINE)->GetBool());
    }

    void readOnlyPanelsEditNothingWhateverTheStatesBecome()
    {
        for (const bool isShort : {false, true})
        {
            const auto panel = MakeDetection(isShort, true, true);
            const QSet<QString> names = BoundNames(*panel);
            QCOMPARE(names.size(), isShort ? 11 : 10);
            for (const QString& name : names)
            {
                ValueOf(name)->SetState(stDisabled);
                ValueOf(name)->SetState(stEnabled);
                QVERIFY2(!panel->findChild<QWidget*>(name)->isEnabled(), qPrintable(name));
            }
        }
    }

    void tabbingThroughEveryFieldWritesNothing_data()
    {
        QTest::addColumn<bool>("isShort");
        QTest::newRow("long") << false;
        QTest::newRow("short") << true;
    }
    void tabbingThroughEveryFieldWritesNothing()
    {
        QFETCH(bool, isShort);
        ValueOf(DDC_DETECTSHORT_SEQ_EXCL_FREQ_RANGE)->SetStoredText("4000000.125;4063000;1500000;1600000");
        ValueOf(DDC_DETECTSHORT_SIGNAL_BANDWIDTH_MINIMUM)->SetStoredText("5000.123456");
        const auto panel = MakeDetection(isShort, true);
        panel->show();
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        QStringList written;
        Tree::Instance()->SetJournal([&](const JournalEntry& entry) { written << entry.value.GetName(); });
        QSet<QWidget*> visited;
        panel->setFocus();
        for (int i = 0; i < 60 && panel->focusWidget(); ++i)
        {
            QTest::keyClick(panel->focusWidget(), Qt::Key_F2); // opens the editor of a cell
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited.insert(QApplication::focusWidget());
        }
        QVERIFY2(visited.size() >= 10, qPrintable(QString::number(visited.size())));
        QCOMPARE(written, QStringList());
    }
};

QTEST_MAIN(TestDetectionPanels)
#include "test_detectionpanels.moc"
