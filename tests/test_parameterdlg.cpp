#include "application/arexception.h"
#include "application/cfgcenter.h"
#include "configuration.h"
#include "framework/panelrows.h"
#include "ipcparam/parameterdlg.h"
#include "ipcparam/tkeoptions.h"
#include "keys/keymanager.h"
#include "value/tree.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgets/vccheckablegroupbox.h"

#include <QTest>
#include <QtWidgets>

using namespace TKE;

namespace
{

const QString basePath = QStringLiteral("/J/T/P/");

ValueDescriptor Described(ValueKind kind, std::vector<SelectionItem> items = {})
{
    ValueDescriptor descriptor;
    descriptor.kind = kind;
    descriptor.items = std::move(items);
    return descriptor;
}

// A panel that opens the protected operations to the tests and counts what it hears.
class OpenPanel : public ParameterDlg
{
public:
    explicit OpenPanel(const QString& path = basePath, bool readOnly = false, bool plainGrid = false)
        : ParameterDlg(path, nullptr, QStringLiteral("OpenPanel"), readOnly, plainGrid)
    {
    }

    using ParameterDlg::AddCheckBoxFromVT;
    using ParameterDlg::AddCheckBoxFromVTParent;
    using ParameterDlg::AddComboFromVT;
    using ParameterDlg::AddFloatSpinFromVT;
    using ParameterDlg::AddFrequencyFromVT;
    using ParameterDlg::AddIntSpinFromVT;
    using ParameterDlg::AddLabel;
    using ParameterDlg::AddLabelToHBoxLayout;
    using ParameterDlg::AddLeftLabel;
    using ParameterDlg::AddLine;
    using ParameterDlg::AddLineEditFromVT;
    using ParameterDlg::AddObserver;
    using ParameterDlg::AddSpacerItem;
    using ParameterDlg::AddVerticalButtonGroupFromVT;
    using ParameterDlg::AddVerticalLine;
    using ParameterDlg::CreateCheckableGroupBoxFromVT;
    using ParameterDlg::DeleteObserver;
    using ParameterDlg::Enable;
    using ParameterDlg::EnableUp;
    using ParameterDlg::GetItemPath;
    using ParameterDlg::GetSelectedValue;
    using ParameterDlg::GetTranslation;
    using ParameterDlg::GetValuePtr;
    using ParameterDlg::Grid;
    using ParameterDlg::IsChecked;
    using ParameterDlg::SetChecked;
    using ParameterDlg::SetDefaultStretchFactor;
    using ParameterDlg::SetSelection;
    using ParameterDlg::SetTitle;
    using ParameterDlg::SetTranslationNamespace;

    QString BuildFinalKey(const QString& key) const override { return m_rewrite.value(key, key); }
    void Update(Observable*, TChangeCode code) override { m_heard.append(code); }

    QHash<QString, QString> m_rewrite;
    QList<int> m_heard;
};

} // namespace

class TestParameterDlg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Tree::Instance()->Clear();
        KeyManager::Instance()->Clear();
        CfgCenter::Instance()->SetDirectory(QString());
    }

    void aParentPathIsOneLevelUp_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("parent");
        QTest::newRow("two levels") << "/A/B/" << "/A/";
        QTest::newRow("one level") << "/A/" << "/";
        QTest::newRow("root") << "/" << "";
        QTest::newRow("empty") << "" << "";
        QTest::newRow("relative") << "A/" << "";
    }
    void aParentPathIsOneLevelUp()
    {
        QFETCH(QString, path);
        QTEST(ParameterDlg::GetParentPath(path), "parent");
    }

    void aPathIsTheBaseAndTheFullNameOfTheRewrittenKey()
    {
        OpenPanel panel;
        panel.m_rewrite.insert("SHORT", "LONG");
        KeyManager::Instance()->Register("LONG", "GROUP/FULL");
        QCOMPARE(panel.GetItemPath("SHORT"), basePath + "GROUP/FULL");
        QCOMPARE(panel.GetItemPath("OTHER"), basePath + "OTHER");
        QCOMPARE(panel.GetItemPath(""), basePath); // the key mechanism throws for it
    }

    void theUpwardSearchTakesTheNearestAndNeverTheRoot_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<QString>("found");
        QTest::newRow("at the base") << QStringList{"/J/T/P/K", "/J/T/K"} << "/J/T/P/K";
        QTest::newRow("one level up") << QStringList{"/J/T/K", "/J/K"} << "/J/T/K";
        QTest::newRow("top") << QStringList{"/J/K", "/K"} << "/J/K";
        QTest::newRow("not directly below the root") << QStringList{"/K"} << "";
    }
    void theUpwardSearchTakesTheNearestAndNeverTheRoot()
    {
        QFETCH(QStringList, values);
        for (const QString& path : values)
            Tree::Instance()->CreateValue<TextValue>(path);
        OpenPanel panel;
        ValueObservingPtr<ValueBase> value;
        panel.GetValuePtr(value, basePath, "K");
        QTEST(value ? value->GetPathName() : QString(), "found");
        panel.GetValuePtr(value, "no/such/path/", "K");
        QVERIFY(!value);
        panel.GetValuePtr(value, "", "K");
        QVERIFY(!value);
    }

    void writingRespectsTheEnableState()
    {
        Tree& tree = *Tree::Instance();
        const ValueDescriptor choice = Described(ValueKind::Selection, {{0, "Off"}, {7, "On"}});
        ValueBase* flag = tree.CreateValue<BoolValue>(basePath + "FLAG");
        ValueBase* selection = tree.CreateValue(basePath + "CHOICE", choice);
        OpenPanel panel;
        QVERIFY(!panel.IsChecked("FLAG", false));
        panel.Enable("FLAG", false, true);
        QCOMPARE(flag->GetState(), stDisabled);
        panel.SetChecked("FLAG", true, true);
        QVERIFY(!flag->GetBool());
        panel.Enable("FLAG", true, false);
        panel.SetChecked("FLAG", true, false);
        QVERIFY(panel.IsChecked("FLAG", true));

        panel.SetSelection("CHOICE", "On", false);
        QCOMPARE(panel.GetSelectedValue("CHOICE"), QString("On"));
        panel.Enable("CHOICE", false, false);
        panel.SetSelection("CHOICE", "Off", false);
        QCOMPARE(selection->GetText(), QString("On"));
        QCOMPARE(panel.GetSelectedValue("FLAG"), QString());
        QCOMPARE(panel.GetSelectedValue("NONE"), QString());
        QVERIFY(!panel.IsChecked("NONE", false));
        panel.Enable("NONE", true, false);
        panel.SetChecked("NONE", true, false);
    }

    void enablingOneLevelUpAlsoSwitchesBooleans()
    {
        Tree& tree = *Tree::Instance();
        ValueBase* flag = tree.CreateValue<BoolValue>(u"/J/T/FLAG");
        auto* number = tree.CreateValue<IntValue>(u"/J/T/NUMBER");
        number->SetValue(5);
        OpenPanel panel;
        panel.EnableUp("FLAG", true);
        QVERIFY(flag->GetBool());
        panel.EnableUp("FLAG", false);
        QVERIFY(!flag->GetBool());
        QCOMPARE(flag->GetState(), stDisabled);
        panel.EnableUp("NUMBER", false);
        QCOMPARE(number->GetState(), stDisabled);
        QCOMPARE(number->GetValue(), 5);
    }

    void anObserverHearsUntilItIsDeleted()
    {
        auto* value = Tree::Instance()->CreateValue<IntValue>(basePath + "NUMBER");
        {
            OpenPanel panel;
            ValueBase* observed = panel.AddObserver("NUMBER");
            QCOMPARE(observed, value);
            QVERIFY(!panel.AddObserver("NONE"));
            value->SetValue(1);
            panel.DeleteObserver(observed);
            panel.DeleteObserver(nullptr);
            value->SetValue(2);
            QCOMPARE(panel.m_heard, QList<int>{ccContent});
            panel.AddObserver("NUMBER");
        } // a panel that forgets to let go must not be called any more
        value->SetValue(3);
    }

    void aTitleNeedsAGroupBox()
    {
        OpenPanel framed;
        framed.SetTitle("Title");
        QCOMPARE(framed.GetTitle(), QString("Title"));
        QVERIFY(framed.findChild<QGroupBox*>());
        OpenPanel plain(basePath, false, true);
        plain.SetTitle("Title");
        QCOMPARE(plain.GetTitle(), QString());
        QVERIFY(!plain.findChild<QGroupBox*>());
        QCOMPARE(plain.layout(), plain.Grid());
    }

    void theStretchLiesOneBeyondTheFirstFreeRowAndColumn()
    {
        OpenPanel panel;
        panel.AddLabel(panel.Grid(), 2, 3, 1, 1, "x");
        panel.SetDefaultStretchFactor();
        QCOMPARE(panel.Grid()->rowStretch(3), 0);
        QCOMPARE(panel.Grid()->rowStretch(4), 1);
        QCOMPARE(panel.Grid()->columnStretch(4), 0);
        QCOMPARE(panel.Grid()->columnStretch(5), 1);
    }

    void plainBuildersAlignAndFrame()
    {
        OpenPanel panel;
        QCOMPARE(int(panel.AddLabel(panel.Grid(), 0, 0, 1, 1, "a")->alignment()), 0x82);
        QCOMPARE(int(panel.AddLeftLabel(panel.Grid(), 0, 1, 1, 1, "b")->alignment()), 0x81);
        panel.AddLine(panel.Grid(), 1, 0, 1, 2);
        panel.AddVerticalLine(panel.Grid(), 0, 2, 2, 1);
        const auto frameStyleAt = [&](int row, int column)
        { return qobject_cast<QLabel*>(panel.Grid()->itemAtPosition(row, column)->widget())->frameStyle(); };
        QCOMPARE(frameStyleAt(1, 1), 0x34);
        QCOMPARE(frameStyleAt(1, 2), 0x35);
        panel.AddSpacerItem(10, 4, panel.Grid(), 3, 0);
        QCOMPARE(panel.Grid()->itemAtPosition(3, 0)->spacerItem()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
        QHBoxLayout box;
        const std::unique_ptr<QLabel> label(panel.AddLabelToHBoxLayout(&box, "text"));
        QCOMPARE(label->objectName(), QString("text"));
        QCOMPARE(box.count(), 1);
        delete box.takeAt(0);
    }

    void fromBaseSkipsTheMapping()
    {
        KeyManager::Instance()->Register("KEY", "MAPPED");
        auto* mapped = Tree::Instance()->CreateValue<BoolValue>(basePath + "MAPPED");
        auto* raw = Tree::Instance()->CreateValue<BoolValue>(basePath + "KEY");
        auto* above = Tree::Instance()->CreateValue<BoolValue>(u"/J/T/KEY");
        OpenPanel panel;
        panel.AddCheckBoxFromVT(panel.Grid(), 0, 0, 1, 1, "KEY", "mapped", false)->click();
        QVERIFY(mapped->GetValue() && !raw->GetValue() && !above->GetValue());
        panel.AddCheckBoxFromVT(panel.Grid(), 1, 0, 1, 1, "KEY", "raw", true)->click();
        QVERIFY(raw->GetValue() && !above->GetValue());
        panel.AddCheckBoxFromVTParent(panel.Grid(), 2, 0, 1, 1, "KEY", "above")->click();
        QVERIFY(above->GetValue());
    }

    void aWidgetWithoutGridIsBoundAndPlacedNowhere()
    {
        Tree::Instance()->CreateValue<BoolValue>(basePath + "FLAG")->SetValue(true);
        OpenPanel panel;
        const std::unique_ptr<VCCheckBox> box(panel.AddCheckBoxFromVT(nullptr, 0, 0, 1, 1, "FLAG", "flag", false));
        QVERIFY(box->isChecked());
        QVERIFY(!box->parent());
        QCOMPARE(box->objectName(), QString("FLAG"));
    }

    void aReadOnlyPanelStaysDisabledWhateverTheValueSays()
    {
        Tree& tree = *Tree::Instance();
        const ValueDescriptor choice = Described(ValueKind::Selection, {{0, "Off"}, {1, "On"}});
        const QList<ValueBase*> values{
            tree.CreateValue<BoolValue>(basePath + "BOOL"),     tree.CreateValue<IntValue>(basePath + "INT"),
            tree.CreateValue<DoubleValue>(basePath + "DOUBLE"), tree.CreateValue<FrequencyValue>(basePath + "FREQUENCY"),
            tree.CreateValue<TextValue>(basePath + "TEXT"),     tree.CreateValue(basePath + "CHOICE", choice)};
        OpenPanel panel(basePath, true);
        QGridLayout* grid = panel.Grid();
        panel.AddCheckBoxFromVT(grid, 0, 0, 1, 1, "BOOL", "b", false);
        panel.AddIntSpinFromVT(grid, 1, 0, 1, 1, "INT", false, 1.0);
        panel.AddFloatSpinFromVT(grid, 2, 0, 1, 1, "DOUBLE", 1, false, 1.0);
        panel.AddFrequencyFromVT(grid, 3, 0, 1, 1, "FREQUENCY", false, false);
        panel.AddLineEditFromVT(grid, 4, 0, 1, 1, "TEXT", true, false);
        panel.AddComboFromVT(grid, 5, 0, 1, 1, "CHOICE", false);
        panel.AddVerticalButtonGroupFromVT(grid, 6, 0, 1, 1, "CHOICE", "t", false);
        grid->addWidget(panel.CreateCheckableGroupBoxFromVT("BOOL", "title", "", false), 7, 0);
        panel.show();
        for (ValueBase* value : values)
        {
            value->SetState(stDisabled);
            value->SetState(stEnabled);
        }
        for (int row = 0; row < 8; ++row)
            QVERIFY2(!grid->itemAtPosition(row, 0)->widget()->isEnabled(), qPrintable(QString::number(row)));
    }

    void theFrequencyUnitSuitsTheValue_data()
    {
        QTest::addColumn<qint64>("hertz");
        QTest::addColumn<int>("unit");
        QTest::newRow("20 MHz") << qint64(20000000) << 2;
        QTest::newRow("above 20 MHz") << qint64(20000001) << 3;
        QTest::newRow("1 GHz") << qint64(1000000000) << 3;
        QTest::newRow("above 1 GHz") << qint64(1000000001) << 4;
    }
    void theFrequencyUnitSuitsTheValue()
    {
        QFETCH(qint64, hertz);
        Tree::Instance()->CreateValue<FrequencyValue>(basePath + "F")->SetValue(hertz);
        OpenPanel panel;
        panel.AddFrequencyFromVT(panel.Grid(), 0, 0, 1, 1, "F", true, false);
        QTEST(int(GuiCentral::Instance().GetFrequencyUnit()), "unit");
        panel.AddFrequencyFromVT(panel.Grid(), 1, 0, 1, 1, "NONE", true, false);
        QTEST(int(GuiCentral::Instance().GetFrequencyUnit()), "unit");
    }

    void aRowsLabelIsItsWidgetsBuddy()
    {
        Tree::Instance()->CreateValue<IntValue>(basePath + "INT");
        OpenPanel panel;
        PanelRows(panel, *panel.Grid()).IntSpin({1, 4, 1, 2}, "Replay :", "INT", "Hz");
        const auto at = [&](int column) { return panel.Grid()->itemAtPosition(1, column)->widget(); };
        QCOMPARE(qobject_cast<QLabel*>(at(4))->buddy(), at(6));
        QCOMPARE(at(5), at(4));
        QCOMPARE(qobject_cast<QLabel*>(at(7))->text(), QString("Hz"));
    }

    void hiddenPanelsAnswerWithTheSizeOfTheirLike()
    {
        OpenPanel shown;
        shown.AddLabel(shown.Grid(), 0, 0, 1, 1, "Some label :");
        shown.show();
        const QSize size = shown.sizeHint();
        OpenPanel like;
        like.AddLabel(like.Grid(), 0, 0, 1, 1, "Some label :");
        QCOMPARE(like.sizeHint(), size);
        OpenPanel wider;
        wider.AddLabel(wider.Grid(), 0, 0, 1, 1, "Some label that is a good deal longer :");
        QVERIFY(wider.sizeHint().width() > size.width());
    }

    void theJobModelDirectoryComesFromJobManagementFirst_data()
    {
        QTest::addColumn<QString>("jobManagement");
        QTest::addColumn<QString>("application");
        QTest::addColumn<QString>("directory");
        QTest::newRow("none") << "" << "" << "";
        QTest::newRow("application") << "" << "a" << "a";
        QTest::newRow("job management") << "j" << "a" << "j";
    }
    void theJobModelDirectoryComesFromJobManagementFirst()
    {
        QFETCH(QString, jobManagement);
        QFETCH(QString, application);
        QTemporaryDir directory;
        CfgCenter& center = *CfgCenter::Instance();
        center.SetDirectory(directory.path());
        const auto write = [](const QString& fileName, const QString& text)
        {
            QDir().mkpath(QFileInfo(fileName).path());
            QSettings(fileName, QSettings::IniFormat).setValue("JobModelXMLDir", text);
        };
        if (!jobManagement.isEmpty())
            write(center.GetFileName("JobManagement", cfgSystem), jobManagement);
        if (!application.isEmpty())
            write(center.GetFileName("editor", cfgUser), application);
        QTEST(IPCParamConfiguration("editor").GetJobModelXMLDirectory(), "directory");
        QCOMPARE(IPCParamConfiguration("").GetJobModelXMLDirectory(), QString());
    }

    void aConfigurationThatCannotBeHadThrows()
    {
        QTemporaryDir directory;
        CfgCenter& center = *CfgCenter::Instance();
        center.SetDirectory(directory.path());
        QDir().mkpath(center.GetFileName("editor", cfgUser)); // a directory where a file should be
        try
        {
            IPCParamConfiguration configuration("editor");
            QFAIL("nothing thrown");
        }
        catch (const ARException& exception)
        {
            QCOMPARE(exception.GetText(), QString("no configuration available"));
            QCOMPARE(exception.GetSourceFile(), QString("ipcparam/source/configuration"));
            QCOMPARE(exception.GetFunctionName(), QString("Configuration"));
            QCOMPARE(exception.GetLine(), 62);
        }
    }

    void optionsLetThroughWhatTheirSwitchesAllow()
    {
        const auto answers = [](const AvailableResources& options)
        {
            return QList<bool>{options.Slot0(), options.Slot1(), options.Slot2(),  options.Slot3(),  options.Slot4(),
                               options.Slot5(), options.Slot6(), options.Slot7(),  options.Slot8(),  options.Slot9(),
                               options.Slot10(), options.Slot11(), options.Slot12()};
        };
        // The slots that each single resource answers.
        const QHash<int, QList<int>> slotsOf{{0, {2, 11}},  {1, {2, 4, 11}}, {5, {2, 4, 11}}, {8, {9, 12}},     {10, {7}},
                                             {12, {6, 8}},  {13, {6, 8}},    {15, {3, 5}},    {18, {3, 5}},     {19, {3}},
                                             {20, {}},      {31, {}},        {32, {0, 2, 11}}, {33, {1}},       {34, {1}},
                                             {38, {0, 2, 11}}, {39, {2, 11}}, {40, {0, 2, 11}}, {41, {0}}};
        for (auto it = slotsOf.begin(); it != slotsOf.end(); ++it)
        {
            TKEOptions options;
            options.SetResource(it.key(), true);
            QVERIFY(!answers(options).contains(true)); // every gate is closed
            AvailableResources resources;
            resources.SetResource(it.key(), true);
            for (int slot = 0; slot < 13; ++slot)
                QVERIFY2(answers(resources)[slot] == it.value().contains(slot), qPrintable(QString("R%1").arg(it.key())));
            for (int gate = 1; gate <= TKEOptions::GateCount; ++gate)
                options.SetGate(gate, true);
            options.SetSwitch(4, true);
            for (int slot = 0; slot < 10; ++slot)
                QCOMPARE(answers(options)[slot], it.value().contains(slot));
            QVERIFY(!options.Slot10() && !options.Slot11() && !options.Slot12());
        }
        TKEOptions options;
        options.SetCounts(1, 2);
        QVERIFY(static_cast<AvailableResources&>(options).AvailableResources::Slot10());
        QVERIFY(!options.Slot10());
        options.SetSwitch(5, true);
        QVERIFY(options.Slot10());
        options.SetGate(2, true);
        options.SetSwitch(3, true);
        QVERIFY(options.Slot2());
    }
};

QTEST_MAIN(TestParameterDlg)
#include "test_parameterdlg.moc"
