#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/alarmconditionsspdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/shorttimeprofileheaderdlg.h"
#include "ipcparam/sigtrackingcontroldlg.h"
#include "jobmodel/jobmodel.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <QTest>
#include <QtWidgets>

using namespace TKE;
using namespace Keys;

namespace
{

const QString node = QStringLiteral("/J/T/");
const QString panelPath = QStringLiteral("/J/T/P/");
const QString fullName = QStringLiteral("Full/");

using PanelPtr = std::unique_ptr<ParameterDlg>;

// A panel, the group of values it shows and the node that they lie at.
struct PanelKind
{
    const char* name;
    const char* group;
    const QString& valuesAt;
    PanelPtr (*make)(bool readOnly);
    QStringList absent = {}; // keys of the group that the panel does not show
};

const std::array<PanelKind, 6> kinds{{
    {"automatic recording",
     "G_AUTOREC",
     panelPath,
     [](bool readOnly) -> PanelPtr { return std::make_unique<AutoRecordingDlg>(panelPath, nullptr, false, readOnly); },
     {AUTORECORDING_RECORDRESULTS}},
    {"activity generation", "G_ACTIVITY", node,
     [](bool readOnly) -> PanelPtr
     { return std::make_unique<ActivityGenerationDlg>(panelPath, nullptr, true, true, true, readOnly); }},
    {"alarm conditions", "G_ALARM_SP", panelPath,
     [](bool) -> PanelPtr { return std::make_unique<AlarmConditionsSPDlg>(panelPath, nullptr); }},
    {"profile", "G_PROFILE", panelPath,
     [](bool readOnly) -> PanelPtr { return std::make_unique<ShorttimeProfileDlg>(panelPath, nullptr, readOnly); }},
    {"profile header", "G_PROFILE_HDR", panelPath,
     [](bool readOnly) -> PanelPtr
     { return std::make_unique<ShorttimeProfileHeaderDlg>(panelPath, nullptr, readOnly); }},
    {"signal tracking", "G_TRACKING", panelPath,
     [](bool) -> PanelPtr { return std::make_unique<SigTrackingControlDlg>(panelPath, nullptr); }},
}};

const PanelKind& KindOf(const char* group)
{
    return *std::ranges::find_if(kinds, [&](const PanelKind& kind) { return qstrcmp(kind.group, group) == 0; });
}

const std::vector<std::unique_ptr<JOBXMLGENERATOR::Parameter>>& ParametersOf(const PanelKind& kind)
{
    static const auto model = JobModel::Load();
    return model->FindGroup(QString::fromLatin1(kind.group), Band::Hf)->GetParameters();
}

void Fill(const PanelKind& kind, const QString& prefix = {})
{
    for (const auto& parameter : ParametersOf(kind))
        Tree::Instance()->CreateValue(kind.valuesAt + prefix + parameter->GetUniqueParameterName(),
                                      parameter->GetValueDescriptor());
}

// From now on the full name of a key of the group differs from the key, and both name a value.
void MapAndFill(const PanelKind& kind)
{
    Fill(kind);
    Fill(kind, fullName);
    for (const auto& parameter : ParametersOf(kind))
        KeyManager::Instance()->Register(parameter->GetUniqueParameterName(),
                                         fullName + parameter->GetUniqueParameterName());
}

ValueBase* ValueAt(const QString& path)
{
    return Tree::Instance()->FindValue(path);
}

// What is written while one of these lives: "path=content" each.
struct Writes
{
    Writes()
    {
        Tree::Instance()->SetJournal([this](const JournalEntry& entry)
                                     { list.append(entry.value.GetPathName() + u'=' + entry.after); });
    }
    ~Writes() { Tree::Instance()->SetJournal({}); }

    QStringList list;
};

// Deletes a panel when it hears of a change.
struct Killer : IObserver
{
    explicit Killer(PanelPtr& panel) : victim(panel) {}
    void Update(Observable*, TChangeCode code) override
    {
        if (code == ccContent)
            victim.reset();
    }
    PanelPtr& victim;
};

QGroupBox* GroupTitled(const QWidget& panel, const QString& title)
{
    for (QGroupBox* box : panel.findChildren<QGroupBox*>())
    {
        if (box->title() == title)
            return box;
    }
    return nullptr;
}

void Press(const QWidget& panel, const QString& button)
{
    QTest::mouseClick(panel.findChild<QPushButton*>(button), Qt::LeftButton);
}

} // namespace

Q_DECLARE_METATYPE(const PanelKind*)

class TestRecordingPanels : public QObject
{
    Q_OBJECT

    void AddKinds()
    {
        QTest::addColumn<const PanelKind*>("kind");
        for (const PanelKind& kind : kinds)
            QTest::newRow(kind.name) << &kind;
    }

private Q_SLOTS:
    void cleanup()
    {
        Tree::Instance()->Clear();
        KeyManager::Instance()->Clear();
    }

    void everyEditorIsBoundToTheOneValueThatTheModelPutsThere_data() { AddKinds(); }
    void everyEditorIsBoundToTheOneValueThatTheModelPutsThere()
    {
        QFETCH(const PanelKind*, kind);
        MapAndFill(*kind);
        const PanelPtr panel = kind->make(false);
        for (const auto& parameter : ParametersOf(*kind))
        {
            const QString key = parameter->GetUniqueParameterName();
            const auto widgets = panel->findChildren<QWidget*>(key);
            QVERIFY2(widgets.size() == (kind->absent.contains(key) ? 0 : 1), qPrintable(key));
            if (widgets.isEmpty())
                continue;
            const bool isMapped = parameter->GetPlace() == JOBXMLGENERATOR::Place::Mapped;
            ValueBase* bound = ValueAt(kind->valuesAt + (isMapped ? fullName : QString()) + key);
            ValueBase* other = ValueAt(kind->valuesAt + (isMapped ? QString() : fullName) + key);
            bound->SetState(stEnabled); // some values are disabled by their panel
            other->SetState(stDisabled);
            QVERIFY2(widgets.first()->isEnabledTo(panel.get()), qPrintable(key));
            bound->SetState(stDisabled);
            QVERIFY2(!widgets.first()->isEnabledTo(panel.get()), qPrintable(key));
        }
    }

    void viewingAPanelWritesNothing_data() { AddKinds(); }
    void viewingAPanelWritesNothing()
    {
        QFETCH(const PanelKind*, kind);
        Fill(*kind);
        const Writes writes;
        PanelPtr panel = kind->make(false);
        panel->show();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : panel.get(), Qt::Key_Tab);
        panel.reset();
        QCOMPARE(writes.list, QStringList());
    }

    void aReadOnlyPanelStaysDisabledWhateverTheValuesSay_data()
    {
        QTest::addColumn<const PanelKind*>("kind");
        for (const char* group : {"G_AUTOREC", "G_ACTIVITY", "G_PROFILE", "G_PROFILE_HDR"})
            QTest::newRow(group) << &KindOf(group);
    }
    void aReadOnlyPanelStaysDisabledWhateverTheValuesSay()
    {
        QFETCH(const PanelKind*, kind);
        Fill(*kind);
        const PanelPtr panel = kind->make(true);
        for (const auto& parameter : ParametersOf(*kind))
        {
            const QString key = parameter->GetUniqueParameterName();
            ValueAt(kind->valuesAt + key)->SetState(stDisabled);
            ValueAt(kind->valuesAt + key)->SetState(stEnabled);
            if (const auto* widget = panel->findChild<QWidget*>(key))
                QVERIFY2(!widget->isEnabledTo(panel.get()), qPrintable(key));
        }
        if (const auto* button = panel->findChild<QWidget*>(AUTORECORDING_RECORD_ALL)) // no value is behind it
            QVERIFY(button->isEnabledTo(panel.get()));
    }

    void aPanelWithoutValuesIsBuiltAndOutlivesItsValues_data() { AddKinds(); }
    void aPanelWithoutValuesIsBuiltAndOutlivesItsValues()
    {
        QFETCH(const PanelKind*, kind);
        const PanelPtr unbound = kind->make(false);
        Fill(*kind);
        const PanelPtr bound = kind->make(false);
        Tree::Instance()->Clear();
        for (const PanelPtr& panel : {std::cref(unbound), std::cref(bound)})
        {
            panel->show();
            QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
        }
    }

    void everyEditorIsNamedForAssistiveTechnology_data() { AddKinds(); }
    void everyEditorIsNamedForAssistiveTechnology()
    {
        QFETCH(const PanelKind*, kind);
        Fill(*kind);
        const PanelPtr panel = kind->make(false);
        QSet<QWidget*> buddies;
        for (const QLabel* label : panel->findChildren<QLabel*>())
            buddies.insert(label->buddy());
        for (const auto& parameter : ParametersOf(*kind))
        {
            auto* widget = panel->findChild<QWidget*>(parameter->GetUniqueParameterName());
            const auto* box = qobject_cast<QCheckBox*>(widget);
            QVERIFY2(!widget || buddies.contains(widget) || !widget->accessibleName().isEmpty() ||
                         (box && !box->text().isEmpty()),
                     qPrintable(parameter->GetUniqueParameterName()));
        }
    }

    void nothingIsCutAtTheSizeOfTheHost_data() { AddKinds(); }
    void nothingIsCutAtTheSizeOfTheHost()
    {
        QFETCH(const PanelKind*, kind);
        Fill(*kind);
        const PanelPtr panel = kind->make(false);
        panel->resize(775, 480);
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
        QCOMPARE(panel->size(), QSize(775, 480));
        const QWidget* unplaced = GroupTitled(*panel, QStringLiteral("Detection Conventional"));
        for (const QLabel* label : panel->findChildren<QLabel*>())
        {
            if (unplaced && label->parentWidget() == unplaced)
                continue;
            const int height = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            QVERIFY2(label->height() >= height, qPrintable(label->text()));
            QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(), qPrintable(label->text()));
        }
    }

    void theReducedFormOffersTheResultsAndNoButton()
    {
        Fill(KindOf("G_AUTOREC"));
        const AutoRecordingDlg panel(panelPath, nullptr, true, false);
        const auto boxes = panel.findChildren<QCheckBox*>();
        QCOMPARE(boxes.size(), 1);
        QTest::mouseClick(boxes.first(), Qt::LeftButton, {}, QPoint(8, boxes.first()->height() / 2));
        QVERIFY(ValueAt(panelPath + AUTORECORDING_RECORDRESULTS)->GetBool());
        QVERIFY(panel.findChildren<QPushButton*>().isEmpty());
        QVERIFY(panel.findChildren<QComboBox*>().isEmpty());
    }

    void bothButtonsChooseFixedFrequencyMonitoringAndLeaveTheRestAlone_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("record");
        QTest::newRow("select all") << QString(AUTORECORDING_RECORD_ALL) << true;
        QTest::newRow("deselect all") << QString(AUTORECORDING_DESELECT_ALL) << false;
    }
    void bothButtonsChooseFixedFrequencyMonitoringAndLeaveTheRestAlone()
    {
        QFETCH(QString, button);
        QFETCH(bool, record);
        Fill(KindOf("G_AUTOREC"));
        const QStringList targets{AUTORECORDING_BITSTREAM, AUTORECORDING_DECODED_TEXT, AUTORECORDING_TRANSMISSION_SYS,
                                  AUTORECORDING_FAX,       AUTORECORDING_AUDIO,        AUTORECORDING_AMREC};
        ValueAt(panelPath + AUTORECORDING_FFM_OR_SCAN)->SetFromText(QStringLiteral("Scan"));
        QStringList expected{panelPath + AUTORECORDING_FFM_OR_SCAN + QStringLiteral("=0")};
        for (const QString& key : targets)
        {
            ValueAt(panelPath + key)->SetBool(!record);
            expected.append(panelPath + key + (record ? QStringLiteral("=true") : QStringLiteral("=false")));
        }
        const PanelPtr panel = KindOf("G_AUTOREC").make(false);
        const Writes writes;
        Press(*panel, button);
        QCOMPARE(writes.list, expected);
    }

    void selectAllAddressesTheChoiceByKeyAndDeselectAllByFullName()
    {
        MapAndFill(KindOf("G_AUTOREC"));
        ValueBase* raw = ValueAt(panelPath + AUTORECORDING_FFM_OR_SCAN);
        ValueBase* mapped = ValueAt(panelPath + fullName + AUTORECORDING_FFM_OR_SCAN);
        const auto scan = QStringLiteral("Scan");
        raw->SetFromText(scan);
        mapped->SetFromText(scan);
        const PanelPtr panel = KindOf("G_AUTOREC").make(false);
        Press(*panel, AUTORECORDING_RECORD_ALL);
        QCOMPARE(raw->GetText(), QStringLiteral("FFM"));
        QCOMPARE(mapped->GetText(), scan);
        raw->SetFromText(scan);
        Press(*panel, AUTORECORDING_DESELECT_ALL);
        QCOMPARE(raw->GetText(), scan);
        QCOMPARE(mapped->GetText(), QStringLiteral("FFM"));
    }

    void aPanelThatGoesDuringSelectAllWritesNoFurther()
    {
        Fill(KindOf("G_AUTOREC"));
        PanelPtr panel = KindOf("G_AUTOREC").make(false);
        Killer killer(panel);
        ValueAt(panelPath + AUTORECORDING_BITSTREAM)->Attach(&killer);
        Press(*panel, AUTORECORDING_RECORD_ALL);
        QVERIFY(!panel);
        QVERIFY(ValueAt(panelPath + AUTORECORDING_BITSTREAM)->GetBool());
        QVERIFY(!ValueAt(panelPath + AUTORECORDING_FAX)->GetBool());
    }

    void theFlagsChooseTheGroupsOfActivityGeneration_data()
    {
        // Group and its row in column 0 (detectors) or 1; rows of the database group.
        QTest::addColumn<bool>("energy");
        QTest::addColumn<bool>("level");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::addColumn<int>("databaseRows");
        QTest::newRow("none") << false << false << ""
                              << "Database,Database" << 3;
        QTest::newRow("level") << false << true << "Level"
                               << "Session,Database,Database" << 2;
        QTest::newRow("energy") << true << false << "Energy,DDem,Classifier"
                                << "Session,Database,Database" << 6;
        QTest::newRow("both") << true << true << "Level,Energy,DDem,Classifier"
                              << "Session,Database,Database" << 6;
    }
    void theFlagsChooseTheGroupsOfActivityGeneration()
    {
        QFETCH(bool, energy);
        QFETCH(bool, level);
        QFETCH(QString, left);
        QFETCH(QString, right);
        QFETCH(int, databaseRows);
        Fill(KindOf("G_ACTIVITY"));
        for (const bool conventional : {false, true})
        {
            const ActivityGenerationDlg panel(panelPath, nullptr, energy, level, conventional, false);
            auto* grid = qobject_cast<QGridLayout*>(panel.findChild<QGroupBox*>()->layout());
            const auto titlesOf = [&](int column)
            {
                QStringList titles;
                for (int row = 0; row < grid->rowCount(); ++row)
                {
                    if (QLayoutItem* item = grid->itemAtPosition(row, column))
                        titles.append(qobject_cast<QGroupBox*>(item->widget())->title());
                }
                return titles.join(u',');
            };
            QCOMPARE(titlesOf(0), left);
            QCOMPARE(titlesOf(1), right);
            auto* database = qobject_cast<QGridLayout*>(GroupTitled(panel, QStringLiteral("Database"))->layout());
            QCOMPARE(database->rowCount(), databaseRows);
            QCOMPARE(panel.findChildren<QWidget*>(SessionCloseTime).size(), 1);

            const QGroupBox* detection = GroupTitled(panel, QStringLiteral("Detection Conventional"));
            QCOMPARE(detection != nullptr, conventional);
            if (detection)
            {
                QCOMPARE(detection->parentWidget(), &panel);
                QCOMPARE(panel.layout()->indexOf(detection), -1);
            }
        }
    }

    void aProfileDisablesWhatIsShownOnlyAndNothingElse()
    {
        const PanelKind& kind = KindOf("G_PROFILE");
        Fill(kind);
        const PanelPtr panel = kind.make(false);
        for (const char* key : {"USEBANDWIDTH", "USEFREQUENCY", "USEHOPSTEP", "USEHOPPINGRATE", "USEFREQUENCYSETTBL"})
            ValueAt(panelPath + QLatin1String(key))->SetBool(false);
        QSet<QString> disabled;
        for (const auto& parameter : ParametersOf(kind))
        {
            if (ValueAt(panelPath + parameter->GetUniqueParameterName())->GetState() == stDisabled)
                disabled.insert(parameter->GetUniqueParameterName());
        }
        const QSet<QString> expected{FIRSTEDITDATETIME,  LASTEDITDATETIME, CREATINGOPERATOR,
                                     MODIFIYINGOPERATOR, NUMBEROFCHANNELS, MODULATIONTYPE};
        QCOMPARE(disabled, expected);
    }

    void aBandwidthOfAProfileIsEnteredInMegahertzAndItsListInKilohertz()
    {
        Fill(KindOf("G_PROFILE"));
        const PanelPtr panel = KindOf("G_PROFILE").make(false);
        auto* edit = panel->findChild<QLineEdit*>(MINBANDWIDTH);
        QCOMPARE(edit->text().toDouble(), 0.0125);
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("0.025"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(ValueAt(panelPath + MINBANDWIDTH)->GetText(), QStringLiteral("25000"));
        auto* table = panel->findChild<QTableWidget*>();
        QVERIFY(table);
        QCOMPARE(table->item(0, 0)->text().toDouble(), 30025.0);
    }

    void signalTrackingShowsOneValueAndDisablesTheOther()
    {
        const PanelKind& kind = KindOf("G_TRACKING");
        Fill(kind);
        const QString key = SIGNALTRACKINGCONTROL_FREQUENCYRANGE;
        {
            const PanelPtr panel = kind.make(false);
            QVERIFY(!panel->findChild<QComboBox*>(key)->isEnabledTo(panel.get()));
            ValueAt(panelPath + key)->SetState(stEnabled);
        }
        MapAndFill(kind);
        const PanelPtr panel = kind.make(false);
        QCOMPARE(ValueAt(panelPath + key)->GetState(), stEnabled);
        QCOMPARE(ValueAt(panelPath + fullName + key)->GetState(), stDisabled);
    }
};

QTEST_MAIN(TestRecordingPanels)
#include "test_recordingpanels.moc"
