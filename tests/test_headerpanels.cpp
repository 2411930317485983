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

    void theGeneralPanelEditsTheHeaderOfItsFlag_data()
    {
        QTest::addColumn<bool>("tdsHeader");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("TDS") << true << "TDS_HEADER_";
        QTest::newRow("channel set") << false << "CS_HEADER_DDC_";
    }
    void theGeneralPanelEditsTheHeaderOfItsFlag()
    {
        QFETCH(bool, tdsHeader);
        QFETCH(QString, prefix);
        const GeneralDlg panel(basePath, nullptr, false, tdsHeader);
        const Grid grid(panel);
        QCOMPARE(grid.PathAt(0, 1), basePath + prefix + "SIGDETECTLOCKTIMEOUT");
        QCOMPARE(grid.PathAt(1, 1), basePath + prefix + "SIGDETECTRELOCKTIMEOUT");
        QCOMPARE(grid.PathAt(0, 5), basePath + prefix + "LOCKCRITERION");
        QCOMPARE(grid.PathAt(1, 5), basePath + prefix + "MAXDWELLTIME");
        QCOMPARE(grid.PathAt(1, 7), basePath + prefix + "MAXDWELLTIME_CHECK");
        QCOMPARE(grid.PathAt(2, 0), basePath + CONFIGSET_ENABLED); // one for both headers
        QCOMPARE(grid.PlaceOf(grid.At(0, 5)), (Place{0, 5, 1, 3}));
    }

    void theUnitOfTheDwellTimeStandsToTheRight()
    {
        const GeneralDlg panel(basePath, nullptr, false, true);
        for (const auto& [row, column] : {std::pair(0, 2), std::pair(1, 2), std::pair(1, 6)})
        {
            const bool isDwellTime = column == 6;
            QCOMPARE(Grid(panel).TextAt(row, column), "ms");
            QVERIFY(Grid(panel).LabelAt(row, column)->alignment() & (isDwellTime ? Qt::AlignRight : Qt::AlignLeft));
        }
    }

    void theDelayedModesStandInRowOneWithOrWithoutTheLock_data()
    {
        QTest::addColumn<bool>("noFrequencyLock");
        QTest::newRow("with the lock") << false;
        QTest::newRow("without") << true;
    }
    void theDelayedModesStandInRowOneWithOrWithoutTheLock()
    {
        QFETCH(bool, noFrequencyLock);
        const TdsHeaderDDCDlg panel(basePath, nullptr, false, noFrequencyLock, false);
        QCOMPARE(Grid(panel).At(0, 0) == nullptr, noFrequencyLock);
        auto* modes = qobject_cast<VCButtonGroup*>(Grid(panel).At(1, 0));
        QVERIFY(modes);
        QCOMPARE(Grid(panel).PlaceOf(modes), (Place{1, 0, 2, 1}));
        QCOMPARE(modes->objectName(), QString(DDC_SIGNAL_DELAYED_MODES));
        QCOMPARE(modes->GetButtons().size(), size_t(3));
        QCOMPARE(modes->contentsMargins(), QMargins());
        modes->GetButtons()[2]->click();
        QCOMPARE(ValueOf(DDC_SIGNAL_DELAYED_MODES)->GetStoredText(), "2");
    }

    void aHeaderWithoutDelayedModesShowsNoGroup()
    {
        Tree::Instance()->RemoveValue(basePath + DDC_SIGNAL_DELAYED_MODES);
        const TdsHeaderDDCDlg panel(basePath, nullptr, false, false, false);
        QVERIFY(!panel.findChild<VCButtonGroup*>());
        QCOMPARE(Grid(panel).TextAt(0, 0), "Lock frequency");
    }

    void readOnlyDelayedModesStayDisabled()
    {
        const TdsHeaderDDCDlg panel(basePath, nullptr, false, false, true);
        ValueOf(DDC_SIGNAL_DELAYED_MODES)->SetState(stDisabled);
        ValueOf(DDC_SIGNAL_DELAYED_MODES)->SetState(stEnabled);
        QVERIFY(!Grid(panel).At(1, 0)->isEnabled());
    }

    void theseValuesAreAddressedByTheKeyItself_data()
    {
        QTest::addColumn<QString>("key");
        for (const QString key :
             {DDC_SIGNAL_DELAYED_MODES, TDS_HEADER_MEMORYSCAN_COUNT, TDS_HEADER_VUHF_WB_GAINCONTROL_MODE,
              TDS_HEADER_VUHF_WB_GAINCONTROL_MGC_GAIN, TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT})
            QTest::newRow(qPrintable(key)) << key;
    }
    void theseValuesAreAddressedByTheKeyItself()
    {
        QFETCH(QString, key);
        KeyManager::Instance()->Register(key, "somewhere/else");
        const TdsHeaderDDCDlg ddc(basePath, nullptr, false, false, false);
        const TdsHeaderMSDlg memoryScan(basePath, nullptr, false);
        const TdsHeaderWBDlg wideband(basePath, nullptr, false, true, false, false);
        QVERIFY((BoundNames(ddc) + BoundNames(memoryScan) + BoundNames(wideband)).contains(key));
    }

    void otherValuesOfTheWidebandHeaderAreMapped()
    {
        KeyManager::Instance()->Register(TDS_HEADER_VUHF_WB_IFBANDWIDTH, TDS_HEADER_VUHF_WB_AGC_ATTACKTIME);
        const TdsHeaderWBDlg panel(basePath, nullptr, false, true, false, false);
        QCOMPARE(Grid(panel).PathAt(0, 5), basePath + TDS_HEADER_VUHF_WB_AGC_ATTACKTIME);
    }

    void channelCountsAreShownButNeverEditable()
    {
        const TdsHeaderMSDlg memoryScan(basePath, nullptr, false);
        const TdsHeaderWBDlg wideband(basePath, nullptr, false, true, false, false);
        auto* channels = qobject_cast<QLineEdit*>(Grid(memoryScan).At(0, 1));
        QCOMPARE(channels->text(), "8");
        QVERIFY(channels->hasFrame());
        QVERIFY(!channels->isEnabled());
        QCOMPARE(ValueOf(TDS_HEADER_MEMORYSCAN_COUNT)->GetState(), stDisabled);
        channels = qobject_cast<QLineEdit*>(Grid(wideband).At(0, 8));
        QCOMPARE(channels->text(), "1");
        QVERIFY(!channels->isEnabled());
        QCOMPARE(ValueOf(TDS_HEADER_VUHF_WB_TUNERFREQUENCY_COUNT)->GetState(), stDisabled);
    }

    void theWidebandHeaderShowsTheRowsOfItsFlags_data()
    {
        QTest::addColumn<bool>("extension");
        QTest::addColumn<bool>("memoryScan");
        for (const bool extension : {false, true})
            for (const bool memoryScan : {false, true})
                QTest::addRow("extension %d, memory scan %d", extension, memoryScan) << extension << memoryScan;
    }
    void theWidebandHeaderShowsTheRowsOfItsFlags()
    {
        QFETCH(bool, extension);
        QFETCH(bool, memoryScan);
        const TdsHeaderWBDlg panel(basePath, nullptr, false, extension, memoryScan, false);
        const QSet<QString> names = BoundNames(panel);
        QCOMPARE(names.contains(TDS_HEADER_VUHF_WB_IFBANDWIDTH_EXTENSION), extension);
        for (const QString key : {TUNER_WB_VUHF_MEMORYSCAN_DWELLTIME, TUNER_WB_VUHF_MEMORYSCAN_TUNERAMPLIFIERMODE})
            QCOMPARE(names.contains(key), memoryScan);
        for (const QString key : {TDS_HEADER_VUHF_WB_RFMUTE, TDS_HEADER_VUHF_WB_IMPROVED_DYNAMIC_BEHAVIOUR})
            QCOMPARE(names.contains(key), !memoryScan);
        QCOMPARE(names.size(), 12 + extension + 2);
        const Grid scan(Grid(panel).Group("Scan"));
        QCOMPARE(scan.TextAt(1, 2), memoryScan ? QStringLiteral("\u00B5s") : QString());
        QCOMPARE(Grid(panel).PlaceOf(Grid(panel).Group("AGC")), (Place{6, 0, 1, 4}));
        QCOMPARE(Grid(panel).PlaceOf(Grid(panel).Group("Scan")), (Place{6, 5, 1, 4}));
    }

    void improvedDynamicsHaveAReadOnlyFlagOfTheirOwn_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<bool>("improvedReadOnly");
        for (const bool readOnly : {false, true})
            for (const bool improvedReadOnly : {false, true})
                QTest::addRow("panel %d, box %d", readOnly, improvedReadOnly) << readOnly << improvedReadOnly;
    }
    void improvedDynamicsHaveAReadOnlyFlagOfTheirOwn()
    {
        QFETCH(bool, readOnly);
        QFETCH(bool, improvedReadOnly);
        const TdsHeaderWBDlg panel(basePath, nullptr, readOnly, true, false, improvedReadOnly);
        QCOMPARE(panel.IsReadOnly(), readOnly);
        const Grid grid(panel);
        QCOMPARE(grid.At(4, 2)->isEnabled(), !improvedReadOnly);
        QCOMPARE(grid.At(3, 2)->isEnabled(), !readOnly);                     // built before
        QCOMPARE(Grid(grid.Group("Scan")).At(0, 1)->isEnabled(), !readOnly); // built after
    }
};

QTEST_MAIN(TestHeaderPanels)
#include "test_headerpanels.moc"
