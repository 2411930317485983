#include "common.h"
#include "ipcparam/wavecomdlg.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "widgetfixture.h"

using namespace TKE;
using namespace Keys;
using JOBXMLGENERATOR::Place;
using PanelTest::basePath;
using PanelTest::Grid;

namespace
{

const std::vector<std::unique_ptr<JOBXMLGENERATOR::Parameter>>& Parameters()
{
    static const auto model = JobModel::Load();
    return model->FindGroup(u"G_WAVECOM", Band::Hf)->GetParameters();
}

// The combo box at the place of the mode (row 3) or of the mode type (row 4).
VCComboBoxClassic* ComboAt(const WavecomDlg& panel, int row)
{
    const Grid data(Grid(panel).Group(QStringLiteral("Data")));
    return qobject_cast<VCComboBoxClassic*>(data.At(row, 1));
}

} // namespace

class TestWavecom : public QObject
{
    Q_OBJECT

    bool m_dataNode = false;
    QString m_data; // the node of most values, by the form of the panel

    QString PathOf(const JOBXMLGENERATOR::Parameter& parameter) const
    {
        QString path = parameter.GetPlace() == Place::DataBeside ? basePath : m_data;
        if (parameter.GetPlace() == Place::Demodulator)
            path += WAVECOM_DEMODULATOR_HF + QStringLiteral("/");
        return path + parameter.GetUniqueParameterName();
    }
    ValueSelection* Mode() const
    {
        return static_cast<ValueSelection*>(Tree::Instance()->FindValue(m_data + WAVECOM_HF_MODE));
    }

private Q_SLOTS:
    void initTestCase_data() { WithAndWithout("dataNode"); }
    void init()
    {
        QFETCH_GLOBAL(bool, dataNode);
        m_dataNode = dataNode;
        m_data = basePath + (dataNode ? "Data/" : "");
        for (const auto& parameter : Parameters())
            Tree::Instance()->CreateValue(PathOf(*parameter), parameter->GetValueDescriptor());
    }
    void cleanup() { WidgetFixture::CleanUp(); }

    void dataKeysLieWhereTheirValuesDo()
    {
        struct Panel : WavecomDlg
        {
            using WavecomDlg::GetItemPath;
            using WavecomDlg::WavecomDlg;
        } panel(basePath, nullptr, m_dataNode, false);
        for (const auto& key :
             {WAVECOM_HF_WORKFLOW, WAVECOM_HF_SHOWEXPERTGUI, WAVECOM_HF_DISPLAYMETADATA, WAVECOM_HF_MODE})
            QCOMPARE(panel.GetItemPath(key), m_data + key);
        for (const auto& parameter : Parameters())
            if (const QString key = parameter->GetUniqueParameterName(); parameter->GetPlace() == Place::Demodulator)
                QCOMPARE(panel.GetItemPath(WAVECOM_DEMODULATOR_HF + QStringLiteral("/") + key), PathOf(*parameter));
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_OPTIONCLASSIFIER), basePath + WAVECOM_HF_OPTIONCLASSIFIER);
    }

    void theModeIsChosenByKeyboardWhileTheBoxesFollow()
    {
        WavecomDlg panel(basePath, nullptr, m_dataNode, false);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        const auto boxes = panel.findChildren<VCComboBoxClassic*>().size();
        VCComboBoxClassic* mode = ComboAt(panel, 3);
        mode->setFocus();
        int key = 0;
        for (const auto& parameter : Parameters()) // the mode types stand in the order of the modes
        {
            if (parameter->GetPlace() != Place::Demodulator)
                continue;
            QCOMPARE(Mode()->GetCurrentKey(), ++key);
            const QPointer<QWidget> box = ComboAt(panel, 4);
            QVERIFY(box->isVisible());
            QCOMPARE(Grid::PathOf(ComboAt(panel, 4)), PathOf(*parameter));
            QCOMPARE(panel.findChildren<VCComboBoxClassic*>().size(), boxes);
            QVERIFY(std::ranges::any_of(panel.findChildren<QLabel*>(),
                                        [&](const QLabel* label) { return label->buddy() == box; }));
            QTest::keyClick(mode, key < 13 ? Qt::Key_Down : Qt::Key_Home);
            QVERIFY(box.isNull());
        }
        QCOMPARE(Mode()->GetCurrentKey(), 1);
        const QPointer<QWidget> same = ComboAt(panel, 4); // only a change of the content replaces it
        Mode()->SetState(stDisabled);
        Mode()->SetState(stEnabled);
        Mode()->SetItems(Mode()->GetItems());
        QVERIFY(same && ComboAt(panel, 4) == same);
        mode->setFocus();

        QTest::keyClick(mode, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), ComboAt(panel, 4));
        QTest::keyClick(ComboAt(panel, 4), Qt::Key_Down);
        QCOMPARE(static_cast<ValueSelection*>(ComboAt(panel, 4)->GetBoundValue())->GetCurrentKey(), 1);
    }

    void aModeTypeBoxSurvivesItsOwnReplacementInTheMiddleOfAChoice()
    {
        WavecomDlg panel(basePath, nullptr, m_dataNode, false);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        const QPointer<VCComboBoxClassic> old = ComboAt(panel, 4);
        Hearer rule([&] { Mode()->SelectKey(2); }); // who hears of the mode type changes the mode
        old->GetBoundValue()->Attach(&rule);
        old->setFocus();
        old->showPopup();
        QTest::keyClick(old->view(), Qt::Key_Down);
        QTest::keyClick(old->view(), Qt::Key_Return);
        QTRY_VERIFY(old.isNull());
        QVERIFY(Grid::PathOf(ComboAt(panel, 4)).endsWith(WAVECOM_DEMODULATOR_HF_GRAPHIC_MODTYPE));
        QCOMPARE(panel.focusWidget(), ComboAt(panel, 4));
    }

    void aModeWithoutModeTypeGetsABoxThatIsBoundToNothing()
    {
        Mode()->SetItems({SelectionItem(1, QStringLiteral("FSK")), SelectionItem(2, QStringLiteral("selcal"))});
        const WavecomDlg panel(basePath, nullptr, m_dataNode, false);
        for (const char* key : {"2", "99"}) // a name in another case, or no name
        {
            Mode()->SelectKey(1);
            QVERIFY(ComboAt(panel, 4)->GetBoundValue());
            QVERIFY(Mode()->SetStored(key));
            const VCComboBoxClassic* box = ComboAt(panel, 4);
            QVERIFY(box && !box->GetBoundValue());
            QCOMPARE(box->count(), 0);
            QVERIFY(!box->isEnabled());
        }
    }

    void aReadOnlyPanelLocksEveryNewBox()
    {
        const WavecomDlg panel(basePath, nullptr, m_dataNode, true);
        for (const int mode : {1, 5, 13})
        {
            Mode()->SelectKey(mode);
            VCComboBoxClassic* box = ComboAt(panel, 4);
            box->GetBoundValue()->SetState(stDisabled);
            box->GetBoundValue()->SetState(stEnabled);
            QVERIFY(!box->isEnabled());
        }
    }

    void aPanelMayGoWhileTheModeTellsOfItsChange()
    {
        for (const bool isBeforeThePanelHears : {true, false})
        {
            Mode()->SelectKey(1);
            std::unique_ptr<WavecomDlg> panel;
            Hearer killer([&] { panel.reset(); });
            if (isBeforeThePanelHears)
                Mode()->Attach(&killer);
            panel = std::make_unique<WavecomDlg>(basePath, nullptr, m_dataNode, false);
            Mode()->Attach(&killer);
            QTest::keyClick(ComboAt(*panel, 3), Qt::Key_Down);
            QVERIFY(!panel);
            QCOMPARE(Mode()->GetCurrentKey(), 2);
        }
    }
};

QTEST_MAIN(TestWavecom)
#include "test_wavecom.moc"
