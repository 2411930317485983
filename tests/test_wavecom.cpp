#include "ipcparam/wavecomdlg.h"
#include "jobmodel/jobmodel.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"
#include "valuewidgets/vccomboboxclassic.h"

#include <QTest>
#include <QtWidgets>

using namespace TKE;
using namespace Keys;

namespace
{

const QString basePath = QStringLiteral("/J/T/WAVECOM/");

class OpenPanel : public WavecomDlg
{
public:
    explicit OpenPanel(bool dataNode, bool readOnly = false) : WavecomDlg(basePath, nullptr, dataNode, readOnly) {}
    using WavecomDlg::GetItemPath;
};

// Where the values lie, by the form of the panel.
QString PathOf(const JOBXMLGENERATOR::Parameter& parameter, bool dataNode)
{
    using JOBXMLGENERATOR::Place;
    QString path = basePath;
    if (dataNode && parameter.GetPlace() != Place::DataBeside)
        path += QStringLiteral("Data/");
    if (parameter.GetPlace() == Place::Demodulator)
        path += WAVECOM_DEMODULATOR_HF + QStringLiteral("/");
    return path + parameter.GetUniqueParameterName();
}

const std::vector<std::unique_ptr<JOBXMLGENERATOR::Parameter>>& Parameters()
{
    static const auto model = JobModel::Load();
    return model->FindGroup(u"G_WAVECOM", Band::Hf)->GetParameters();
}

// Runs a function when it hears that a content has changed.
struct Listener : IObserver
{
    void Update(Observable*, TChangeCode code) override
    {
        if (code == ccContent && reaction)
            reaction();
    }
    std::function<void()> reaction;
};

} // namespace

class TestWavecom : public QObject
{
    Q_OBJECT

    bool m_dataNode = false;

    ValueSelection* Mode() const
    {
        return static_cast<ValueSelection*>(
            Tree::Instance()->FindValue(basePath + (m_dataNode ? "Data/" : "") + WAVECOM_HF_MODE));
    }
    // The combo box at the place of the mode (row 3) or of the mode type (row 4).
    static VCComboBoxClassic* ComboAt(const QWidget& panel, int row)
    {
        for (const QGroupBox* box : panel.findChildren<QGroupBox*>())
        {
            auto* grid = qobject_cast<QGridLayout*>(box->layout());
            if (box->title() == QLatin1String("Data") && grid && grid->itemAtPosition(row, 1))
                return qobject_cast<VCComboBoxClassic*>(grid->itemAtPosition(row, 1)->widget());
        }
        return nullptr;
    }
    static QString BoundPath(const VCComboBoxClassic& combo)
    {
        return combo.GetBoundValue() ? combo.GetBoundValue()->GetPathName() : QString();
    }
    QString ModeTypePath(const QString& key) const
    {
        return basePath + (m_dataNode ? "Data/" : "") + WAVECOM_DEMODULATOR_HF + u'/' + key;
    }
    static int ComboCount(const QWidget& panel) { return int(panel.findChildren<VCComboBoxClassic*>().size()); }

    // The keys of the mode types in the order of the modes, whose own keys count from 1.
    static QStringList ModeTypeKeys()
    {
        QStringList keys;
        for (const auto& parameter : Parameters())
        {
            if (parameter->GetPlace() == JOBXMLGENERATOR::Place::Demodulator)
                keys.append(parameter->GetUniqueParameterName());
        }
        return keys;
    }

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<bool>("dataNode");
        QTest::newRow("plain") << false;
        QTest::newRow("data node") << true;
    }
    void init()
    {
        QFETCH_GLOBAL(bool, dataNode);
        m_dataNode = dataNode;
        for (const auto& parameter : Parameters())
            Tree::Instance()->CreateValue(PathOf(*parameter, dataNode), parameter->GetValueDescriptor());
    }
    void cleanup()
    {
        Tree::Instance()->Clear();
        KeyManager::Instance()->Clear();
    }

    void everyEditorIsBoundToTheOneValueThatTheModelPutsThere()
    {
        const OpenPanel panel(m_dataNode);
        for (const auto& parameter : Parameters())
        {
            if (parameter->GetPlace() == JOBXMLGENERATOR::Place::Demodulator)
                continue;
            ValueBase* value = Tree::Instance()->FindValue(PathOf(*parameter, m_dataNode));
            const auto stateOfAll = [&]
            {
                QList<bool> enabled;
                for (const QWidget* widget : panel.findChildren<QWidget*>())
                    enabled.append(widget->isEnabledTo(&panel));
                return enabled;
            };
            const auto before = stateOfAll();
            value->SetState(stDisabled);
            const auto after = stateOfAll();
            QCOMPARE(before.count(true) - after.count(true), 1);
        }
    }

    void eachModeOfTheTreeBringsItsModeTypeAndDestroysTheOldBox()
    {
        const OpenPanel panel(m_dataNode);
        const int boxes = ComboCount(panel);
        Mode()->SelectKey(13);
        int mode = 0;
        for (const QString& key : ModeTypeKeys())
        {
            const QPointer<QWidget> old = ComboAt(panel, 4);
            QVERIFY(Mode()->SelectKey(++mode));
            QVERIFY(old.isNull());
            QCOMPARE(BoundPath(*ComboAt(panel, 4)), ModeTypePath(key));
            QCOMPARE(ComboCount(panel), boxes);
            const auto labels = panel.findChildren<QLabel*>();
            QVERIFY(
                std::ranges::any_of(labels, [&](const QLabel* label) { return label->buddy() == ComboAt(panel, 4); }));
        }
    }

    void theModeIsChosenByKeyboardWhileTheBoxesFollow()
    {
        OpenPanel panel(m_dataNode);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        VCComboBoxClassic* mode = ComboAt(panel, 3);
        mode->setFocus();
        int key = 0;
        for (const QString& modeType : ModeTypeKeys())
        {
            QCOMPARE(Mode()->GetCurrentKey(), ++key);
            QCOMPARE(BoundPath(*ComboAt(panel, 4)), ModeTypePath(modeType));
            QVERIFY(ComboAt(panel, 4)->isVisible());
            QTest::keyClick(mode, Qt::Key_Down);
        }
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(mode, Qt::Key_Up);
        QCOMPARE(Mode()->GetCurrentKey(), 1);

        QTest::keyClick(mode, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), ComboAt(panel, 4));
        QTest::keyClick(ComboAt(panel, 4), Qt::Key_Down);
        QCOMPARE(static_cast<ValueSelection*>(ComboAt(panel, 4)->GetBoundValue())->GetCurrentKey(), 1);
    }

    void aModeTypeBoxSurvivesItsOwnReplacementInTheMiddleOfAChoice_data()
    {
        QTest::addColumn<bool>("byList");
        QTest::newRow("by key") << false;
        QTest::newRow("by list") << true;
    }
    void aModeTypeBoxSurvivesItsOwnReplacementInTheMiddleOfAChoice()
    {
        QFETCH(bool, byList);
        OpenPanel panel(m_dataNode);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        const QPointer<VCComboBoxClassic> old = ComboAt(panel, 4);
        Listener rule; // who hears of the mode type changes the mode
        rule.reaction = [&] { Mode()->SelectKey(2); };
        old->GetBoundValue()->Attach(&rule);
        old->setFocus();
        if (byList)
        {
            old->showPopup();
            QTest::keyClick(old->view(), Qt::Key_Down);
            QTest::keyClick(old->view(), Qt::Key_Return);
        }
        else
            QTest::keyClick(old, Qt::Key_Down);
        QTRY_VERIFY(old.isNull());
        QCOMPARE(BoundPath(*ComboAt(panel, 4)), ModeTypePath(WAVECOM_DEMODULATOR_HF_GRAPHIC_MODTYPE));
        QCOMPARE(panel.focusWidget(), ComboAt(panel, 4));
    }

    void onlyAChangeOfTheContentReplacesTheBox()
    {
        const OpenPanel panel(m_dataNode);
        const QPointer<QWidget> box = ComboAt(panel, 4);
        Mode()->SetState(stDisabled);
        Mode()->SetState(stEnabled);
        Mode()->SetItems(Mode()->GetItems());
        QVERIFY(box);
        QCOMPARE(ComboAt(panel, 4), box);
    }

    void aModeWithoutModeTypeGetsABoxThatIsBoundToNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("other name") << "Pager";
        QTest::newRow("other case") << "selcal";
        QTest::newRow("unknown key") << QString();
    }
    void aModeWithoutModeTypeGetsABoxThatIsBoundToNothing()
    {
        QFETCH(QString, name);
        if (!name.isNull())
            Mode()->SetItems({SelectionItem(1, QStringLiteral("FSK")), SelectionItem(99, name)});
        const OpenPanel panel(m_dataNode);
        QVERIFY(Mode()->SetStored("99"));
        const VCComboBoxClassic* box = ComboAt(panel, 4);
        QVERIFY(box);
        QCOMPARE(box->GetBoundValue(), nullptr);
        QCOMPARE(box->count(), 0);
        QVERIFY(!box->isEnabled());
        Mode()->SelectKey(1);
        QVERIFY(ComboAt(panel, 4)->GetBoundValue());
    }

    void theDataFormKeepsTwoValuesBesideItsNodeAndLooksUpTheRestInIt()
    {
        OpenPanel panel(m_dataNode);
        const QString data = m_dataNode ? QStringLiteral("Data/") : QString();
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_MODE), basePath + data + WAVECOM_HF_MODE);
        const QString composite = WAVECOM_DEMODULATOR_HF + u'/' + WAVECOM_DEMODULATOR_VUHF_DIRECT_MODTYPE;
        QCOMPARE(panel.GetItemPath(composite), basePath + data + composite);
        // The box is bound beside the node, the look-up goes into it.
        QCOMPARE(BoundPath(*ComboAt(panel, 0)), basePath + WAVECOM_HF_WORKFLOW);
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_WORKFLOW), basePath + data + WAVECOM_HF_WORKFLOW);
        // The check box is bound in the node, the look-up goes beside it.
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_OPTIONCLASSIFIER), basePath + WAVECOM_HF_OPTIONCLASSIFIER);
    }

    void onlyThePlainFormMapsItsKeys()
    {
        for (const QLatin1StringView key : {WAVECOM_HF_MODE, WAVECOM_HF_WORKFLOW, WAVECOM_HF_OPTIONCLASSIFIER})
            KeyManager::Instance()->Register(key, QStringLiteral("Full/") + key);
        OpenPanel panel(m_dataNode);
        const QString full = basePath + QStringLiteral("Full/");
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_MODE).startsWith(full), !m_dataNode);
        QCOMPARE(BoundPath(*ComboAt(panel, 3)).isEmpty(), !m_dataNode);
        QCOMPARE(panel.GetItemPath(WAVECOM_HF_OPTIONCLASSIFIER), full + WAVECOM_HF_OPTIONCLASSIFIER);
    }

    void aReadOnlyPanelLocksEveryNewBox()
    {
        const OpenPanel panel(m_dataNode, true);
        for (const int mode : {1, 5, 13})
        {
            Mode()->SelectKey(mode);
            VCComboBoxClassic* box = ComboAt(panel, 4);
            box->GetBoundValue()->SetState(stDisabled);
            box->GetBoundValue()->SetState(stEnabled);
            QVERIFY(!box->isEnabled());
        }
        for (const auto* box : panel.findChildren<QCheckBox*>())
            QVERIFY(!box->isEnabled());
    }

    void aPanelMayGoWhileTheModeTellsOfItsChange_data()
    {
        QTest::addColumn<bool>("first");
        QTest::newRow("before the panel hears") << true;
        QTest::newRow("after it heard") << false;
    }
    void aPanelMayGoWhileTheModeTellsOfItsChange()
    {
        QFETCH(bool, first);
        std::unique_ptr<OpenPanel> panel;
        Listener killer;
        killer.reaction = [&] { panel.reset(); };
        if (first)
            Mode()->Attach(&killer);
        panel = std::make_unique<OpenPanel>(m_dataNode);
        Mode()->Attach(&killer);
        panel->show();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        QTest::keyClick(ComboAt(*panel, 3), Qt::Key_Down);
        QVERIFY(!panel);
        QCOMPARE(Mode()->GetCurrentKey(), 2);
    }

    void panelAndModeGoInEitherOrder()
    {
        {
            const OpenPanel panel(m_dataNode);
            QVERIFY(Mode()->IsObserved());
        }
        QVERIFY(!Mode()->IsObserved());

        auto panel = std::make_unique<OpenPanel>(m_dataNode);
        Tree::Instance()->RemoveBranch(QStringLiteral("/J"));
        QCOMPARE(ComboAt(*panel, 3)->GetBoundValue(), nullptr);
        panel.reset();
    }

    void viewingWritesNothing()
    {
        int writes = 0;
        Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
        {
            OpenPanel panel(m_dataNode);
            panel.show();
            QVERIFY(QTest::qWaitForWindowActive(&panel));
            for (int i = 0; i < 20; ++i)
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        Tree::Instance()->SetJournal({});
        QCOMPARE(writes, 0);
    }
};

QTEST_MAIN(TestWavecom)
#include "test_wavecom.moc"
