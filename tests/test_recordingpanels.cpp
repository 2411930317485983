#include "common.h"
#include "ipcparam/activitygenerationdlg.h"
#include "ipcparam/alarmconditionsspdlg.h"
#include "ipcparam/autorecordingdlg.h"
#include "ipcparam/shorttimeprofiledlg.h"
#include "ipcparam/shorttimeprofileheaderdlg.h"
#include "ipcparam/sigtrackingcontroldlg.h"
#include "keys/keymanager.h"
#include "keys/keys.h"
#include "panelgrid.h"
#include "widgetfixture.h"

using namespace TKE;
using namespace Keys;
using namespace PanelTest;

namespace
{

const QString node = QStringLiteral("/J/T/");
const QString fullName = QStringLiteral("Full/");

using PanelPtr = std::unique_ptr<ParameterDlg>;

// `options` are what the constructor takes before the flag for read-only, which not every panel has.
template <class Dlg, auto... options> PanelPtr Make(bool readOnly)
{
    if constexpr (std::is_constructible_v<Dlg, QString, QWidget*, decltype(options)..., bool>)
        return std::make_unique<Dlg>(basePath, nullptr, options..., readOnly);
    else
        return std::make_unique<Dlg>(basePath, nullptr);
}

// A panel, the group of values it shows and the node that they lie at.
struct PanelKind
{
    QString group;
    PanelPtr (*make)(bool readOnly);
    const QString& valuesAt = basePath;
};

const PanelKind autoRecording{"G_AUTOREC", Make<AutoRecordingDlg, false>};
const PanelKind activity{"G_ACTIVITY", Make<ActivityGenerationDlg, true, true, true>, node};
const PanelKind alarmConditions{"G_ALARM_SP", Make<AlarmConditionsSPDlg>};
const PanelKind profile{"G_PROFILE", Make<ShorttimeProfileDlg>};
const PanelKind profileHeader{"G_PROFILE_HDR", Make<ShorttimeProfileHeaderDlg>};
const PanelKind tracking{"G_TRACKING", Make<SigTrackingControlDlg>};

const std::vector<std::unique_ptr<JOBXMLGENERATOR::Parameter>>& ParametersOf(const PanelKind& kind)
{
    static const auto model = JobModel::Load();
    return model->FindGroup(kind.group, Band::Hf)->GetParameters();
}

// From now on the full name of a key of the group differs from the key, and both name a value.
void MapAndFill(const PanelKind& kind)
{
    Fill(kind.group, kind.valuesAt);
    Fill(kind.group, kind.valuesAt + fullName);
    for (const auto& parameter : ParametersOf(kind))
        KeyManager::Instance()->Register(parameter->GetUniqueParameterName(),
                                         fullName + parameter->GetUniqueParameterName());
}

} // namespace

Q_DECLARE_METATYPE(const PanelKind*)

class TestRecordingPanels : public QObject
{
    Q_OBJECT

    QStringList m_written; // "path=content" each

    void StartJournal()
    {
        m_written.clear();
        Tree::Instance()->SetJournal([this](const JournalEntry& entry)
                                     { m_written.append(entry.value.GetPathName() + u'=' + entry.after); });
    }
    void AddKinds(const QList<const PanelKind*>& kinds = {&autoRecording, &activity, &alarmConditions, &profile,
                                                          &profileHeader, &tracking})
    {
        QTest::addColumn<const PanelKind*>("kind");
        for (const PanelKind* kind : kinds)
            QTest::newRow(qPrintable(kind->group)) << kind;
    }

private Q_SLOTS:
    void cleanup()
    {
        WidgetFixture::CleanUp();
        KeyManager::Instance()->Clear();
    }

    void aReadOnlyPanelThatIsOpenedDirectlyStaysDisabledWhateverTheValuesSay_data()
    {
        AddKinds({&profile, &profileHeader});
    }
    void aReadOnlyPanelThatIsOpenedDirectlyStaysDisabledWhateverTheValuesSay()
    {
        QFETCH(const PanelKind*, kind);
        Fill(kind->group, kind->valuesAt);
        const PanelPtr panel = kind->make(true);
        for (const auto& parameter : ParametersOf(*kind))
        {
            ValueBase* value = ValueOf(parameter->GetUniqueParameterName());
            value->SetState(stDisabled);
            value->SetState(stEnabled);
            if (const auto* widget = panel->findChild<QWidget*>(value->GetName()))
                QVERIFY2(!widget->isEnabledTo(panel.get()), qPrintable(value->GetName()));
        }
        const PanelPtr buttons = autoRecording.make(true); // no value is behind a button
        QVERIFY(buttons->findChild<QWidget*>(AUTORECORDING_RECORD_ALL)->isEnabledTo(buttons.get()));
    }

    void everyEditorIsNamedAndHasRoomAtTheSizeOfTheHost_data() { AddKinds(); }
    void everyEditorIsNamedAndHasRoomAtTheSizeOfTheHost()
    {
        QFETCH(const PanelKind*, kind);
        Fill(kind->group, kind->valuesAt);
        const PanelPtr panel = kind->make(false);
        panel->resize(775, 480);
        panel->show();
        QCOMPARE(panel->size(), QSize(775, 480)); // a window cannot be smaller than its layout needs
        QSet<QWidget*> buddies;
        for (const QLabel* label : panel->findChildren<QLabel*>())
        {
            buddies.insert(label->buddy());
            QVERIFY2(!label->wordWrap() || label->height() >= label->heightForWidth(label->width()),
                     qPrintable(label->text()));
        }
        for (const auto& parameter : ParametersOf(*kind))
        {
            auto* widget = panel->findChild<QWidget*>(parameter->GetUniqueParameterName());
            QVERIFY2(!widget || buddies.contains(widget) || !widget->accessibleName().isEmpty() ||
                         qobject_cast<QCheckBox*>(widget),
                     qPrintable(parameter->GetUniqueParameterName()));
        }
    }

    void bothButtonsChooseFixedFrequencyMonitoringButOnlyDeselectAllByFullName_data() { WithAndWithout("record"); }
    void bothButtonsChooseFixedFrequencyMonitoringButOnlyDeselectAllByFullName()
    {
        QFETCH(bool, record);
        MapAndFill(autoRecording);
        const QString button = record ? AUTORECORDING_RECORD_ALL : AUTORECORDING_DESELECT_ALL;
        QStringList expected{basePath + (record ? QString() : fullName) + AUTORECORDING_FFM_OR_SCAN + "=0"};
        for (const QString& at : {QString(), fullName})
            ValueOf(at + AUTORECORDING_FFM_OR_SCAN)->SetFromText(QStringLiteral("Scan"));
        for (const QString key : {AUTORECORDING_BITSTREAM, AUTORECORDING_DECODED_TEXT, AUTORECORDING_TRANSMISSION_SYS,
                                  AUTORECORDING_FAX, AUTORECORDING_AUDIO, AUTORECORDING_AMREC})
        {
            ValueOf(key)->SetBool(!record);
            expected.append(basePath + key + (record ? "=true" : "=false"));
        }
        const PanelPtr panel = autoRecording.make(false);
        StartJournal();
        QTest::mouseClick(panel->findChild<QPushButton*>(button), Qt::LeftButton);
        QCOMPARE(m_written, expected);
    }

    void aPanelThatGoesDuringSelectAllWritesNoFurther()
    {
        Fill(autoRecording.group);
        PanelPtr panel = autoRecording.make(false);
        WidgetFixture::Counter killer([&] { panel.reset(); });
        ValueOf(AUTORECORDING_BITSTREAM)->Attach(&killer);
        QTest::mouseClick(panel->findChild<QPushButton*>(AUTORECORDING_RECORD_ALL), Qt::LeftButton);
        QVERIFY(!panel);
        QVERIFY(ValueOf(AUTORECORDING_BITSTREAM)->GetBool());
        QVERIFY(!ValueOf(AUTORECORDING_FAX)->GetBool());
    }

    void aProfileDisablesWhatIsShownOnlyAndNothingElse()
    {
        Fill(profile.group);
        const PanelPtr panel = profile.make(false);
        for (const char* key : {"USEBANDWIDTH", "USEFREQUENCY", "USEHOPSTEP", "USEHOPPINGRATE", "USEFREQUENCYSETTBL"})
            ValueOf(QLatin1String(key))->SetBool(false);
        QSet<QString> disabled;
        for (const auto& parameter : ParametersOf(profile))
        {
            if (ValueOf(parameter->GetUniqueParameterName())->GetState() == stDisabled)
                disabled.insert(parameter->GetUniqueParameterName());
        }
        const QSet<QString> expected{FIRSTEDITDATETIME,  LASTEDITDATETIME, CREATINGOPERATOR,
                                     MODIFIYINGOPERATOR, NUMBEROFCHANNELS, MODULATIONTYPE};
        QCOMPARE(disabled, expected);
    }

    void aBandwidthOfAProfileIsEnteredInMegahertzAndItsListInKilohertz()
    {
        Fill(profile.group);
        const PanelPtr panel = profile.make(false);
        auto* edit = panel->findChild<QLineEdit*>(MINBANDWIDTH);
        QCOMPARE(edit->text().toDouble(), 0.0125);
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("0.025"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(ValueOf(MINBANDWIDTH)->GetText(), QStringLiteral("25000"));
        QCOMPARE(panel->findChild<QTableWidget*>()->item(0, 0)->text().toDouble(), 30025.0);
    }

    void signalTrackingShowsOneValueAndDisablesTheOther()
    {
        MapAndFill(tracking);
        const PanelPtr panel = tracking.make(false);
        const QString key = SIGNALTRACKINGCONTROL_FREQUENCYRANGE;
        QCOMPARE(ValueOf(key)->GetState(), stEnabled);
        QCOMPARE(ValueOf(fullName + key)->GetState(), stDisabled);
    }
};

QTEST_MAIN(TestRecordingPanels)
#include "test_recordingpanels.moc"
