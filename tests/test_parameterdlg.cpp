#include "application/arexception.h"
#include "application/cfgcenter.h"
#include "common.h"
#include "configuration.h"
#include "ipcparam/sigtrackingcontroldlg.h"
#include "ipcparam/tkeoptions.h"
#include "jobmodel/jobmodel.h"
#include "keys/keymanager.h"
#include "panelgrid.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vccheckbox.h"
#include "widgets/vclistboxnumeric.h"

#include <QTemporaryDir>
#include <QTest>
#include <map>

using namespace TKE;
using PanelTest::basePath;
using PanelTest::Place;

namespace
{

// A panel that opens the protected operations to the tests and counts what it hears.
class OpenPanel : public ParameterDlg
{
public:
    explicit OpenPanel(bool plainGrid = false)
        : ParameterDlg(basePath, nullptr, QStringLiteral("OpenPanel"), false, plainGrid)
    {
        SetTranslationNamespace("TKE::OpenPanel");
    }

    using ParameterDlg::AddCheckBoxFromVT;
    using ParameterDlg::AddCheckBoxFromVTParent;
    using ParameterDlg::AddFrequencyFromVT;
    using ParameterDlg::AddLabel;
    using ParameterDlg::AddObserver;
    using ParameterDlg::DeleteObserver;
    using ParameterDlg::Enable;
    using ParameterDlg::EnableUp;
    using ParameterDlg::GetItemPath;
    using ParameterDlg::GetSelectedValue;
    using ParameterDlg::GetValuePtr;
    using ParameterDlg::Grid;
    using ParameterDlg::IsChecked;
    using ParameterDlg::SetChecked;
    using ParameterDlg::SetDefaultStretchFactor;
    using ParameterDlg::SetSelection;
    using ParameterDlg::SetTitle;
    using ParameterDlg::ShareSizeHints;

    QString BuildFinalKey(const QString& key) const override { return m_rewrite.value(key, key); }
    void Update(Observable*, TChangeCode code) override { m_heard.append(code); }
    // The row lies at (1, 2).
    void Build(const Parameter& parameter, const BuildRowSettings& settings = {true, true, false, false})
    {
        BuildRow(Grid(), value, parameter, 1, 2, settings);
    }

    QHash<QString, QString> m_rewrite;
    QList<int> m_heard;
    ValueObservingPtr<ValueBase> value{this}; // of the row
};

// One parameter that a descriptor file with these attributes describes; the model stays.
const JOBXMLGENERATOR::Parameter& Describe(const QByteArray& attributes)
{
    static QTemporaryDir directory;
    static std::vector<std::shared_ptr<const JobModel>> models;
    const QString fileName = directory.filePath(QString::number(models.size()));
    WriteAll(fileName, "<JobModel version=\"1\"><Group name=\"G\"><Parameter name=\"Key\" at=\"U\" label=\"Label\" "
                       "description=\"Help\" " +
                           attributes + "/></Group></JobModel>");
    models.push_back(JobModel::LoadFiles({fileName}));
    return *models.back()->GetGroups().at(0)->GetParameters().at(0);
}

QByteArray Frequency(const QByteArray& subControl = {})
{
    return "kind=\"frequency\" default=\"5000000\" control=\"6\"" +
           (subControl.isEmpty() ? QByteArray() : " subControl=\"" + subControl + '"');
}

ValueBase* Create(const QString& path, const JOBXMLGENERATOR::Parameter& parameter)
{
    return Tree::Instance()->CreateValue(path, parameter.GetValueDescriptor());
}

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

    void aPathIsTheBaseAndTheFullNameOfTheRewrittenKey()
    {
        for (const auto& [path, parent] : {std::pair{"/A/B/", "/A/"}, {"/A/", "/"}, {"/", ""}, {"", ""}, {"A/", ""}})
            QCOMPARE(ParameterDlg::GetParentPath(QString::fromUtf8(path)), parent);
        OpenPanel panel;
        panel.m_rewrite.insert("SHORT", "LONG");
        KeyManager::Instance()->Register("LONG", "GROUP/FULL");
        QCOMPARE(panel.GetItemPath("SHORT"), basePath + "GROUP/FULL");
        QCOMPARE(panel.GetItemPath("OTHER"), basePath + "OTHER");
        QCOMPARE(panel.GetItemPath(""), basePath); // the key mechanism throws for it
    }

    void theUpwardSearchTakesTheNearestAndNeverTheRoot()
    {
        OpenPanel panel;
        ValueObservingPtr<ValueBase> value;
        Tree::Instance()->CreateValue<TextValue>(u"/K");
        panel.GetValuePtr(value, basePath, "K");
        QVERIFY(!value);
        for (const char* path : {"/J/K", "/J/T/K", "/J/T/P/K"})
        {
            Tree::Instance()->CreateValue<TextValue>(QString::fromUtf8(path));
            panel.GetValuePtr(value, basePath, "K");
            QCOMPARE(value->GetPathName(), path);
        }
        panel.GetValuePtr(value, "no/such/path/", "K");
        QVERIFY(!value);
    }

    void writingRespectsTheEnableState()
    {
        ValueBase* flag = Tree::Instance()->CreateValue<BoolValue>(basePath + "FLAG");
        auto* selection = Tree::Instance()->CreateValue<ValueSelection>(basePath + "CHOICE");
        selection->SetItems({{0, "Off"}, {7, "On"}});
        OpenPanel panel;
        panel.Enable("FLAG", false, true);
        QCOMPARE(flag->GetState(), stDisabled);
        panel.SetChecked("FLAG", true, true);
        QVERIFY(!panel.IsChecked("FLAG", false));
        panel.Enable("FLAG", true, false);
        panel.SetChecked("FLAG", true, false);
        QVERIFY(panel.IsChecked("FLAG", true));

        panel.SetSelection("CHOICE", "On", false);
        QCOMPARE(panel.GetSelectedValue("CHOICE"), QString("On"));
        panel.Enable("CHOICE", false, false);
        panel.SetSelection("CHOICE", "Off", false);
        QCOMPARE(selection->GetText(), QString("On"));
        QCOMPARE(panel.GetSelectedValue("FLAG"), QString());

        // Values that are missing are no trouble.
        QCOMPARE(panel.GetSelectedValue("NONE"), QString());
        QVERIFY(!panel.IsChecked("NONE", false) && !panel.AddObserver("NONE"));
        panel.Enable("NONE", true, false);
        panel.SetChecked("NONE", true, false);
        panel.DeleteObserver(nullptr);
    }

    void enablingOneLevelUpAlsoSwitchesBooleans()
    {
        ValueBase* flag = Tree::Instance()->CreateValue<BoolValue>(u"/J/T/FLAG");
        auto* number = Tree::Instance()->CreateValue<IntValue>(u"/J/T/NUMBER");
        number->SetValue(5);
        OpenPanel panel;
        panel.EnableUp("FLAG", true);
        QVERIFY(flag->GetBool());
        panel.EnableUp("FLAG", false);
        QVERIFY(!flag->GetBool());
        panel.EnableUp("NUMBER", false);
        QCOMPARE(number->GetState(), stDisabled);
        QCOMPARE(number->GetValue(), 5);
    }

    void anObserverHearsUntilItIsDeleted()
    {
        auto* value = Tree::Instance()->CreateValue<IntValue>(basePath + "NUMBER");
        {
            OpenPanel panel;
            QCOMPARE(panel.AddObserver("NUMBER"), value);
            value->SetValue(1);
            panel.DeleteObserver(value);
            value->SetValue(2);
            QCOMPARE(panel.m_heard, QList<int>{ccContent});
            panel.AddObserver("NUMBER");
        } // a panel that forgets to let go must not be called any more
        value->SetValue(3);
    }

    void aTitleNeedsAGroupBoxAndTheStretchLiesOneBeyondTheFirstFreeRowAndColumn()
    {
        for (const bool plain : {false, true})
        {
            OpenPanel panel(plain);
            panel.SetTitle("Title");
            QCOMPARE(panel.GetTitle(), QString(plain ? "" : "Title"));
            QCOMPARE(panel.layout() == panel.Grid(), plain);
            panel.AddLabel(panel.Grid(), 2, 3, 1, 1, "x");
            panel.SetDefaultStretchFactor();
            for (const int further : {0, 1})
            {
                QCOMPARE(panel.Grid()->rowStretch(3 + further), further);
                QCOMPARE(panel.Grid()->columnStretch(4 + further), further);
            }
        }
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
        // Without a grid, it stands nowhere.
        const std::unique_ptr<VCCheckBox> box(panel.AddCheckBoxFromVT(nullptr, 0, 0, 1, 1, "KEY", "mapped", false));
        QVERIFY(box->isChecked() && !box->parent());
        QCOMPARE(box->objectName(), QString("KEY"));
    }

    void theFrequencyUnitSuitsTheValue()
    {
        auto* value = Tree::Instance()->CreateValue<FrequencyValue>(basePath + "F");
        OpenPanel panel;
        for (const auto& [hertz, unit] :
             {std::pair{20'000'000, 2}, {20'000'001, 3}, {1'000'000'000, 3}, {1'000'000'001, 4}})
        {
            value->SetValue(hertz);
            panel.AddFrequencyFromVT(panel.Grid(), 0, 0, 1, 1, "F", true, false);
            panel.AddFrequencyFromVT(panel.Grid(), 1, 0, 1, 1, "NONE", true, false); // has no say
            QCOMPARE(int(GuiCentral::Instance().GetFrequencyUnit()), unit);
        }
    }

    void hiddenPanelsThatShareAnswerWithTheSizeOfTheirLike()
    {
        const auto build = [](OpenPanel& panel, const QString& text)
        {
            panel.ShareSizeHints();
            panel.AddLabel(panel.Grid(), 0, 0, 1, 1, text);
        };
        OpenPanel shown;
        build(shown, "Some label :");
        shown.show();
        const QSize size = shown.sizeHint();
        OpenPanel like;
        build(like, "Some label :");
        like.findChild<QLabel*>()->setText("what no builder was told of, and is not looked at"); // breaks the promise
        QCOMPARE(like.sizeHint(), size);
        OpenPanel wider;
        build(wider, "Some label that is a good deal longer :");
        QVERIFY(wider.sizeHint().width() > size.width());
        // One with widgets of its own measures itself.
        const auto height = [](int own)
        {
            OpenPanel panel;
            panel.AddLabel(panel.Grid(), 0, 0, 1, 1, "Some label :");
            auto* widget = new QWidget;
            widget->setMinimumHeight(own);
            panel.Grid()->addWidget(widget, 1, 0);
            return panel.minimumSizeHint().height();
        };
        QCOMPARE(height(300), height(100) + 200);

        // Also one that is derived from a panel that shares.
        struct Extended : SigTrackingControlDlg
        {
            Extended() : SigTrackingControlDlg("/J/", nullptr)
            {
                auto* own = new QWidget;
                own->setMinimumHeight(300);
                Grid()->addWidget(own, 1, 0);
            }
        };
        const int plain = SigTrackingControlDlg("/J/", nullptr).minimumSizeHint().height();
        QVERIFY(Extended().minimumSizeHint().height() >= plain + 300);
    }

    void theJobModelDirectoryComesFromJobManagementFirstAndThrowsWhereItCannotBeHad()
    {
        QTemporaryDir directory;
        CfgCenter& center = *CfgCenter::Instance();
        center.SetDirectory(directory.path());
        const auto write = [&](const QString& fileName, const QString& text)
        {
            QSettings(fileName, QSettings::IniFormat).setValue("JobModelXMLDir", text);
            center.DropCache();
        };
        QVERIFY(QDir(directory.path()).mkpath("system"));
        QCOMPARE(IPCParamConfiguration("editor").GetJobModelXMLDirectory(), QString());
        write(center.GetFileName("editor", cfgUser), "a");
        QCOMPARE(IPCParamConfiguration("editor").GetJobModelXMLDirectory(), QString("a"));
        write(center.GetFileName("JobManagement", cfgSystem), "j");
        QCOMPARE(IPCParamConfiguration("editor").GetJobModelXMLDirectory(), QString("j"));
        QCOMPARE(IPCParamConfiguration("").GetJobModelXMLDirectory(), QString());
        QDir().mkpath(center.GetFileName("broken", cfgUser)); // a directory where a file should be
        try
        {
            IPCParamConfiguration configuration("broken");
            QFAIL("nothing thrown");
        }
        catch (const ARException& exception)
        {
            QCOMPARE(exception.what(), "no configuration available (Configuration, ipcparam/source/configuration:62)");
        }
    }

    void optionsLetThroughWhatTheirSwitchesAllow()
    {
        const auto answers = [](const AvailableResources& o)
        {
            const bool slotList[] = {o.Slot0(), o.Slot1(), o.Slot2(), o.Slot3(),  o.Slot4(),  o.Slot5(), o.Slot6(),
                                     o.Slot7(), o.Slot8(), o.Slot9(), o.Slot10(), o.Slot11(), o.Slot12()};
            QList<int> numbers;
            for (int slot = 0; slot < 13; ++slot)
                if (slotList[slot])
                    numbers << slot;
            return numbers;
        };
        // The slots that single resources answer, the last two of them without switches only.
        const std::map<int, QList<int>> slotsOf{{5, {2, 4, 11}}, {8, {9, 12}}, {10, {7}}, {13, {6, 8}},
                                                {18, {3, 5}},    {20, {}},     {34, {1}}, {38, {0, 2, 11}},
                                                {39, {2, 11}},   {41, {0}}};
        for (const auto& [resource, slotNumbers] : slotsOf)
        {
            AvailableResources resources;
            resources.SetResource(resource, true);
            QCOMPARE(answers(resources), slotNumbers);
            TKEOptions options;
            options.SetResource(resource, true);
            QCOMPARE(answers(options), QList<int>()); // every gate is closed
            for (int gate = 1; gate <= TKEOptions::GateCount; ++gate)
                options.SetGate(gate, true);
            options.SetSwitch(4, true);
            QList<int> gated = slotNumbers;
            gated.erase(std::remove_if(gated.begin(), gated.end(), [](int slot) { return slot > 9; }), gated.end());
            QCOMPARE(answers(options), gated);
        }
        TKEOptions options;
        options.SetCounts(1, 2);
        QCOMPARE(answers(options), QList<int>());
        options.SetSwitch(5, true);
        options.SetGate(2, true);
        options.SetSwitch(3, true);
        QCOMPARE(answers(options), (QList<int>{2, 10}));
    }

    void theControlTypePicksTheWidget_data()
    {
        const Table<QByteArray, QString, bool, int, int> table("attributes", "widget", "hasLabel", "rows", "columns");
        const auto row = [&](const char* name, const QByteArray& attributes, const char* widget, bool hasLabel = true,
                             int rows = 1, int columns = 1)
        { table(name, attributes, widget, hasLabel, rows, columns); };

        const QByteArray whole = "kind=\"int\" default=\"1\" ";
        const QByteArray real = "kind=\"double\" default=\"1\" precision=\"2\" ";
        const QByteArray time = "kind=\"datetime\" default=\"2024-01-15T08:00:00\" ";
        row("combo", "kind=\"selection\" default=\"0\" control=\"0\"", "TKE::VCComboBoxClassic");
        row("check box", "kind=\"bool\" default=\"true\" control=\"1\"", "TKE::VCCheckBox", false);
        row("integer", whole + "control=\"2\"", "TKE::VCNumericFloatSpin");
        row("integer, other sub-type", whole + "control=\"2\" subControl=\"2\"", "TKE::VCNumericFloatSpin");
        row("integer as time", time + "control=\"2\" subControl=\"3\"", "TKE::VCDateTimeEdit");
        row("float", real + "control=\"3\" number=\"float\"", "TKE::VCNumericFloatSpin");
        row("double", real + "control=\"3\" number=\"double\"", "TKE::VCNumericFloatSpin");
        row("real, neither float nor double", real + "control=\"3\" number=\"long\"", "");
        row("text", "kind=\"text\" default=\"\" control=\"4\"", "TKE::VCLineEdit");
        row("long", whole + "control=\"5\" number=\"long\"", "TKE::VCNumericFloatSpin");
        row("number, integer", whole + "control=\"5\" number=\"integer\"", "TKE::VCNumericFloatSpin");
        row("number as time", time + "control=\"5\" subControl=\"3\"", "TKE::VCDateTimeEdit");
        row("number, neither long nor integer", real + "control=\"5\"", "");
        row("frequency", Frequency(), "TKE::VCFrequency", true, 2, 3);
        row("frequency 0", Frequency("0"), "TKE::VCFrequency", true, 2, 3);
        row("frequency as plain text", Frequency("1"), "TKE::VCLineEdit");
        row("frequency as text", Frequency("2"), "TKE::VCLineEdit", true, 1, 2);
        row("frequency, other sub-type", Frequency("5"), "");
    }
    void theControlTypePicksTheWidget()
    {
        QFETCH(QByteArray, attributes);
        QFETCH(QString, widget);
        QFETCH(bool, hasLabel);
        QFETCH(int, rows);
        QFETCH(int, columns);
        const auto& parameter = Describe(attributes + " panelUnit=\"unit\"");
        Create(basePath + "Key", parameter);
        OpenPanel panel;
        panel.Build(parameter);
        const PanelTest::Grid grid(panel);

        QCOMPARE(grid.TextAt(1, 2), hasLabel ? "Label" : "");
        if (hasLabel)
            QCOMPARE(grid.At(1, 2)->toolTip(), "Help");
        QWidget* made = grid.At(1, 3);
        QCOMPARE(made ? QString::fromUtf8(made->metaObject()->className()) : QString(), widget);
        if (made)
        {
            QCOMPARE(grid.PlaceOf(made), (Place{1, 3, rows, columns}));
            QCOMPARE(made->objectName(), "Key");
            if (!hasLabel)
                QCOMPARE(grid.TextAt(1, 3), "Label");
        }
        if (columns == 1)
            QCOMPARE(grid.TextAt(1, 4), "unit"); // whatever became of the widget
        QCOMPARE(panel.value.Get(), PanelTest::ValueOf("Key"));
    }

    void frequenciesInTextsAndListsFollowTheUnitOfTheSettings()
    {
        for (const bool kiloHertz : {true, false})
        {
            const double factor = kiloHertz ? 1000 : 1;
            const auto& text = Describe(Frequency("2"));
            Create(basePath + "Key", text);
            OpenPanel panel;
            panel.Build(text, {true, true, false, kiloHertz});
            QCOMPARE(QLocale().toDouble(qobject_cast<QLineEdit*>(PanelTest::Grid(panel).At(1, 3))->text()), 5 * factor);
            Tree::Instance()->Clear();

            const auto& list = Describe("kind=\"list\" default=\"3000000;5000000\" control=\"6\" rows=\"3\"");
            Create(basePath + "Key", list);
            OpenPanel listPanel;
            listPanel.Build(list, {true, true, false, kiloHertz});
            const PanelTest::Grid grid(listPanel);
            auto* table = qobject_cast<VCListBoxNumeric*>(grid.At(1, 2)); // in place of the label
            QVERIFY(table);
            QCOMPARE(grid.PlaceOf(table), (Place{1, 2, 5, 2}));
            QCOMPARE(table->horizontalHeaderItem(0)->text(), kiloHertz ? "Label [kHz]" : "Label [MHz]");
            QCOMPARE(table->accessibleName(), table->horizontalHeaderItem(0)->text());
            QCOMPARE(table->columnWidth(0), 200);
            QCOMPARE(QLocale().toDouble(table->item(0, 0)->text()), 3 * factor);
            QCOMPARE(grid.PathAt(1, 2), basePath + "Key");
            Tree::Instance()->Clear();
        }
    }

    void theDisplayUnitAdjustsUnlessItIsKept()
    {
        const auto& parameter = Describe(Frequency());
        Create(basePath + "Key", parameter);
        for (const bool keep : {true, false})
        {
            GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Giga);
            OpenPanel panel;
            panel.Build(parameter, {true, keep, false, false});
            QCOMPARE(GuiCentral::Instance().GetFrequencyUnit(), keep ? SuffixedDouble::Giga : SuffixedDouble::Kilo);
        }
    }

    void valuesAreFoundAtTheBasePathAndAbove_data()
    {
        // isHeld: by the row; isBound: by the widget
        const Table<QString, bool, bool, bool, bool> row("where", "search", "rebase", "isHeld", "isBound");
        row("here", "/J/T/P/Key", true, false, true, true);
        row("here, rebased", "/J/T/P/Key", true, true, true, true);
        row("above", "/J/T/Key", true, false, true, false);
        row("above, rebased", "/J/T/Key", true, true, true, true);
        row("two levels above, rebased", "/J/Key", true, true, true, true);
        row("below the root", "/Key", true, true, false, false);
        row("mapped", "/J/T/P/Full/Key", false, false, true, true);
        row("mapped, searched raw", "/J/T/P/Full/Key", true, false, false, false);
        row("raw, looked up mapped", "/J/T/P/Key", false, false, false, false);
        row("nowhere, rebased", "/X/Key", true, true, false, false);
    }
    void valuesAreFoundAtTheBasePathAndAbove()
    {
        QFETCH(QString, where);
        QFETCH(bool, search);
        QFETCH(bool, rebase);
        QFETCH(bool, isHeld);
        QFETCH(bool, isBound);
        KeyManager::Instance()->Register(QStringLiteral("Key"), QStringLiteral("Full/Key"));
        const auto& parameter = Describe("kind=\"int\" default=\"1\" control=\"2\"");
        ValueBase* value = Create(where, parameter);
        OpenPanel panel;
        panel.value = Tree::Instance()->CreateValue<BoolValue>(QStringLiteral("/X/Other")); // let go of
        panel.Build(parameter, {search, true, rebase, false});
        QCOMPARE(panel.value.Get(), isHeld ? value : nullptr);
        QCOMPARE(PanelTest::Grid(panel).PathAt(1, 3), isBound ? where : QString());
        QCOMPARE(panel.GetBasePath(), basePath);
    }

    void onlyTheToolTipOfAFrequencyIsTranslated()
    {
        const ContextTranslator translator;
        const auto check = [](const QByteArray& attributes, const QString& toolTip)
        {
            OpenPanel panel;
            panel.Build(Describe(attributes + " panelUnit=\"unit\""));
            const PanelTest::Grid grid(panel);
            QCOMPARE(grid.TextAt(1, 2), "TKE::OpenPanel|Label");
            QCOMPARE(grid.At(1, 2)->toolTip(), toolTip);
            QCOMPARE(grid.TextAt(1, 4), "TKE::OpenPanel|unit");
        };
        check("kind=\"int\" default=\"1\" control=\"2\"", "Help");
        check("kind=\"text\" default=\"\" control=\"4\"", "Help");
        check(Frequency("1"), "TKE::OpenPanel|Help");
    }

    void aStandInMakesAnEmptyRow()
    {
        OpenPanel panel;
        panel.Build(JOBXMLGENERATOR::Parameter(QStringLiteral("Key")));
        const PanelTest::Grid grid(panel);
        QCOMPARE(grid.TextAt(1, 2), QString());
        QVERIFY(!grid.At(1, 3));
    }
};

QTEST_MAIN(TestParameterDlg)
#include "test_parameterdlg.moc"
