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
        for (const char* group : {"G_HDR_DDC", "G_HDR_MS", "G_HDR_WB"})
            Fill(group);
    }
    void cleanup()
    {
        KeyManager::Instance()->Clear();
        Tree::Instance()->Clear();
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

QTEST_MAIN(TestHeaderPanels)
#include "test_headerpanels.moc"
