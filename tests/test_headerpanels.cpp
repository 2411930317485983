#include "analysis/generaldlg.h"
#include "analysis/tdsheaderddcdlg.h"
#include "analysis/tdsheadermsdlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "valuewidgets/vcbuttongroup.h"

#include <QTest>

using namespace TKE;
using namespace TKE::Keys;
using namespace PanelTest;

class TestHeaderPanels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void init()
    {
        for (const char* group : {"G_GENERAL_TDS", "G_GENERAL_CS", "G_HDR_DDC", "G_HDR_MS", "G_HDR_WB"})
            Fill(group);
    }
    void cleanup()
    {
        KeyManager::Instance()->Clear();
        Tree::Instance()->Clear();
    }

    void theGeneralPanelEditsTheHeaderOfItsFlag()
    {
        for (const QString prefix : {"TDS_HEADER_", "CS_HEADER_DDC_"})
        {
            const GeneralDlg panel(basePath, nullptr, false, prefix == "TDS_HEADER_");
            QSet<QString> names = BoundNames(panel);
            QVERIFY(names.remove(CONFIGSET_ENABLED)); // one for both headers
            QCOMPARE(names.size(), 5);
            for (const QString& name : names)
                QVERIFY2(name.startsWith(prefix), qPrintable(name));
            QVERIFY(Grid(panel).LabelAt(1, 2)->alignment() & Qt::AlignLeft);
            QVERIFY(Grid(panel).LabelAt(1, 6)->alignment() & Qt::AlignRight); // the unit of the dwell time
        }
    }

    void theDelayedModesStandInRowOneWithOrWithoutTheLock()
    {
        for (const bool noFrequencyLock : {false, true})
        {
            ValueOf(DDC_SIGNAL_DELAYED_MODES)->SetStoredText("0");
            const TdsHeaderDDCDlg panel(basePath, nullptr, false, noFrequencyLock, false);
            QCOMPARE(Grid(panel).At(0, 0) == nullptr, noFrequencyLock);
            auto* modes = qobject_cast<VCButtonGroup*>(Grid(panel).At(1, 0));
            QVERIFY(modes);
            QCOMPARE(modes->objectName(), QString(DDC_SIGNAL_DELAYED_MODES));
            modes->GetButtons().at(2)->click();
            QCOMPARE(ValueOf(DDC_SIGNAL_DELAYED_MODES)->GetStoredText(), "2");

            const TdsHeaderDDCDlg readOnly(basePath, nullptr, false, noFrequencyLock, true);
            ValueOf(DDC_SIGNAL_DELAYED_MODES)->SetState(stDisabled);
            ValueOf(DDC_SIGNAL_DELAYED_MODES)->SetState(stEnabled);
            QVERIFY(!Grid(readOnly).At(1, 0)->isEnabled());
        }
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

    void theWidebandHeaderFollowsItsFlags()
    {
        for (const bool flag : {false, true})
        {
            const TdsHeaderWBDlg panel(basePath, nullptr, flag, flag, false, !flag);
            const Grid grid(panel);
            QCOMPARE(BoundNames(panel).contains(TDS_HEADER_VUHF_WB_IFBANDWIDTH_EXTENSION), flag);
            QCOMPARE(panel.IsReadOnly(), flag);
            QCOMPARE(grid.At(3, 2)->isEnabled(), !flag);
            QCOMPARE(grid.At(4, 2)->isEnabled(), flag); // improved dynamics have a flag of their own
            QCOMPARE(Grid(grid.Group("Scan")).At(0, 1)->isEnabled(), !flag);

            const TdsHeaderWBDlg memoryScan(basePath, nullptr, false, flag, true, false);
            const QSet<QString> scanned = BoundNames(memoryScan) - BoundNames(panel);
            const QSet<QString> unscanned = BoundNames(panel) - BoundNames(memoryScan);
            QCOMPARE(scanned,
                     (QSet<QString>{TUNER_WB_VUHF_MEMORYSCAN_DWELLTIME, TUNER_WB_VUHF_MEMORYSCAN_TUNERAMPLIFIERMODE}));
            QCOMPARE(unscanned,
                     (QSet<QString>{TDS_HEADER_VUHF_WB_RFMUTE, TDS_HEADER_VUHF_WB_IMPROVED_DYNAMIC_BEHAVIOUR}));
        }
    }
};

QTEST_MAIN(TestHeaderPanels)
#include "test_headerpanels.moc"
