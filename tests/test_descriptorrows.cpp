#include "common.h"
#include "jobmodel/jobmodel.h"
#include "keys/keymanager.h"
#include "panelgrid.h"
#include "valuewidgets/guicentral.h"
#include "widgets/vclistboxnumeric.h"

#include <QTemporaryDir>

using namespace TKE;
using PanelTest::basePath;
using PanelTest::Place;

namespace
{

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

class RowPanel : public ParameterDlg
{
public:
    RowPanel() : ParameterDlg(basePath, nullptr, QStringLiteral("RowPanel"), false, false)
    {
        SetTranslationNamespace("TKE::RowPanel");
    }
    // The row lies at (1, 2).
    void Build(const Parameter& parameter, const BuildRowSettings& settings = {true, true, false, false})
    {
        BuildRow(Grid(), value, parameter, 1, 2, settings);
    }
    ValueObservingPtr<ValueBase> value{this};
};

ValueBase* Create(const QString& path, const JOBXMLGENERATOR::Parameter& parameter)
{
    return Tree::Instance()->CreateValue(path, parameter.GetValueDescriptor());
}

} // namespace

class TestDescriptorRows : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Tree::Instance()->Clear();
        KeyManager::Instance()->Clear();
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
        RowPanel panel;
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
            RowPanel panel;
            panel.Build(text, {true, true, false, kiloHertz});
            QCOMPARE(QLocale().toDouble(qobject_cast<QLineEdit*>(PanelTest::Grid(panel).At(1, 3))->text()), 5 * factor);
            Tree::Instance()->Clear();

            const auto& list = Describe("kind=\"list\" default=\"3000000;5000000\" control=\"6\" rows=\"3\"");
            Create(basePath + "Key", list);
            RowPanel listPanel;
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
            RowPanel panel;
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
        RowPanel panel;
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
            RowPanel panel;
            panel.Build(Describe(attributes + " panelUnit=\"unit\""));
            const PanelTest::Grid grid(panel);
            QCOMPARE(grid.TextAt(1, 2), "TKE::RowPanel|Label");
            QCOMPARE(grid.At(1, 2)->toolTip(), toolTip);
            QCOMPARE(grid.TextAt(1, 4), "TKE::RowPanel|unit");
        };
        check("kind=\"int\" default=\"1\" control=\"2\"", "Help");
        check("kind=\"text\" default=\"\" control=\"4\"", "Help");
        check(Frequency("1"), "TKE::RowPanel|Help");
    }

    void aStandInMakesAnEmptyRow()
    {
        RowPanel panel;
        panel.Build(JOBXMLGENERATOR::Parameter(QStringLiteral("Key")));
        const PanelTest::Grid grid(panel);
        QCOMPARE(grid.TextAt(1, 2), QString());
        QVERIFY(!grid.At(1, 3));
    }
};

QTEST_MAIN(TestDescriptorRows)
#include "test_descriptorrows.moc"
