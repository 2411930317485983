#include "analysis/detectiondlg.h"
#include "analysis/detectionshortdlg.h"
#include "analysis/spectralzoomdlg.h"
#include "keys/keys.h"
#include "numericlistwindow.h"
#include "panelgrid.h"
#include "valuewidgets/vcnumericfloatspin.h"

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

} // namespace

class TestDetectionPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        for (const char* group : {"G_DETCONV", "G_DETSHORT"})
            Fill(group);
    }
    void cleanup() { WidgetFixture::CleanUp(); }

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
        Fill("G_HDR_DDC");
        Fill("G_SPECTRALZOOM", basePath + "TDSSpectralZoom/");
        const SpectralZoomDlg panel(basePath, nullptr, false);
        qobject_cast<QCheckBox*>(Grid(panel).At(0, 0))->click();
        QVERIFY(ValueOf("TDSSpectralZoom/" + DDC_LOCK_FREQUENCY_OFFLINE)->GetBool());
        QVERIFY(!ValueOf(DDC_LOCK_FREQUENCY_OFFLINE)->GetBool());
    }
};

QTEST_MAIN(TestDetectionPanels)
#include "test_detectionpanels.moc"
