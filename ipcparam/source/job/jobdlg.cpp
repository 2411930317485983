#include "ipcparam/jobdlg.h"

#include "framework/panelrules.h"
#include "ipcparam/tkeoptions.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

JobDlg::JobDlg(const QString& basePath, const TKEOptions& options, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("JobDlg"), readOnly, false)
    , m_rules(std::make_unique<PanelRules>(*this, Binding::Raw))
{
    SetTranslationNamespace("TKE::JobDlg");
    BuildPanel(options);
    SetDefaultStretchFactor();
}

JobDlg::~JobDlg() = default;

void JobDlg::BuildPanel(const TKEOptions& options)
{
    BuildJob();
    BuildResources(options);
    if (options.Slot11())
        BuildWorkflow(options);

    // Shown, never edited.
    for (const QLatin1StringView key : {JOB_AUTHOR, JOB_CREATIONDATETIME, JOB_LASTEDITDATETIME})
        Enable(key, false, true);
    m_rules->Observe({JOB_WORKFLOW_STORE});
    ApplyRules();
}

void JobDlg::BuildJob()
{
    PanelRows job = PanelRows(*this, *Grid(), Binding::Raw).Group({0, 0, 1, 2}, QT_TR_NOOP("Job"));
    job.LineEdit({0, 0}, QT_TR_NOOP("Description :"), JOB_DESCRIPTION, nullptr, true, {1, 3});
    job.LineEdit({1, 0}, QT_TR_NOOP("Author :"), JOB_AUTHOR, nullptr, false, {1, 3});
    job.TimeEdit({2, 0}, QT_TR_NOOP("Date of creation :"), JOB_CREATIONDATETIME);
    job.TimeEdit({2, 2}, QT_TR_NOOP("Last modification :"), JOB_LASTEDITDATETIME);
    job.Combo({3, 0}, QT_TR_NOOP("Priority :"), JOB_PRIORITY);
    job.TextLabel({3, 2}, QT_TR_NOOP("State :"), JOB_STATE);
}

// What there is no resource for leaves its cell empty.
void JobDlg::BuildResources(const TKEOptions& options)
{
    const char* title = QT_TR_NOOP("Resources");
    PanelRows resources = PanelRows(*this, *Grid(), Binding::Raw).Group({1, 0}, title);
    resources.CheckList({0, 0}, nullptr, JOB_RESOURCES, {11, 1});
    resources.AccessibleName({0, 0}, title);
    const auto addUse = [&](bool isOffered, int row, const char* text, const QString& key)
    {
        if (isOffered)
            resources.CheckBox({row, 1}, text, key);
    };
    addUse(options.Slot2(), 0, QT_TR_NOOP("HF reception"), JOB_USE_HF);
    addUse(options.Slot3(), 1, QT_TR_NOOP("V/UHF reception"), JOB_USE_VUHF);
    addUse(options.Slot4(), 2, QT_TR_NOOP("HF wideband"), JOB_USE_HF_WB);
    addUse(options.Slot5(), 3, QT_TR_NOOP("V/UHF wideband"), JOB_USE_VUHF_WB);
    addUse(options.Slot0(), 4, QT_TR_NOOP("DDC channels"), JOB_USE_DDC);
    addUse(options.Slot6(), 5, QT_TR_NOOP("Direction finding"), JOB_USE_DF);
    addUse(options.Slot8(), 6, QT_TR_NOOP("Location"), JOB_USE_LOCATE);
    addUse(options.Slot7(), 7, QT_TR_NOOP("External decoder"), JOB_USE_EXTDECODER);
    addUse(options.Slot1(), 8, QT_TR_NOOP("Exciter"), JOB_USE_EXCITER);
    addUse(options.Slot9(), 9, QT_TR_NOOP("Recording"), JOB_USE_RECORDING);
    if (options.Slot10())
    {
        const char* count = QT_TR_NOOP("Number of receivers :");
        resources.Unit({10, 1}, count); // aligned with the check boxes above it
        resources.IntSpin({10, 2}, nullptr, JOB_RECEIVER_COUNT);
        resources.AccessibleName({10, 2}, count);
    }
}

void JobDlg::BuildWorkflow(const TKEOptions& options)
{
    PanelRows workflow = PanelRows(*this, *Grid(), Binding::Raw)
                             .CheckableGroup({1, 1}, QT_TR_NOOP("Automatic workflow"), JOB_AUTOMATICWORKFLOW);
    workflow.Combo({0, 0}, QT_TR_NOOP("Workflow :"), JOB_WORKFLOW);
    workflow.CheckBox({1, 0, 1, 2}, QT_TR_NOOP("Automatic classification"), JOB_WORKFLOW_CLASSIFICATION);
    workflow.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Automatic recording"), JOB_WORKFLOW_RECORDING);
    if (options.Slot12())
    {
        workflow.CheckBox({3, 0, 1, 2}, QT_TR_NOOP("Store results"), JOB_WORKFLOW_STORE);
        workflow.IntSpin({4, 0}, QT_TR_NOOP("Keep results for :"), JOB_WORKFLOW_KEEPTIME, QT_TR_NOOP("d"));
    }
}

void JobDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules->Concerns(source, code))
        ApplyRules();
}

void JobDlg::ApplyRules()
{
    m_rules->EnableWhile(m_rules->IsOn(JOB_WORKFLOW_STORE), {JOB_WORKFLOW_KEEPTIME});
    m_rules->Apply();
}

} // namespace TKE
