#include "exciter/exciterscudlg.h"

#include "jobmodel/exciterparameter.h"

#include <QPointer>

namespace TKE
{

ExciterSCUDlg::ExciterSCUDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly)
    : ExciterPanel(basePath, vuhf, jobContext, 3, parent, QStringLiteral("ExciterSCUDlg"), readOnly)
{
    SetTranslationNamespace("TKE::ExciterSCUDlg");
    InitPanel();
    SetDefaultStretchFactor();
}

void ExciterSCUDlg::BuildSpecialPanel()
{
    const SCUParameter& scu = Parameters().SCU();
    Row(0, 0, m_outputPath, scu.OutputPath());
    Row(1, 0, m_attenuation, scu.Attenuation());
    Row(2, 0, m_filter, scu.Filter());
    Row(3, 0, m_levelLimit, scu.LevelLimit());
    Row(4, 0, m_amplifier, scu.Amplifier());
    AddVerticalLine(Grid(), 0, 3, 5, 1);
    Row(0, 4, m_triggerSource, scu.TriggerSource());
    Row(1, 4, m_settlingTime, scu.SettlingTime());
    Row(2, 4, m_blanking, scu.Blanking());
    Row(3, 4, m_blankingTime, scu.BlankingTime());
    Row(4, 4, m_remark, scu.Remark());
    ExciterModeChanged();
}

void ExciterSCUDlg::ExciterModeChanged()
{
    if (!m_exciterModePtr)
        return;
    UpdateTitle();
    ApplyRules();
}

void ExciterSCUDlg::Update(Observable* source, TChangeCode code)
{
    const QPointer<ExciterSCUDlg> self(this);
    ExciterPanel::Update(source, code);
    if (self && code == ccContent && source == m_blanking.Get())
        ApplyRules();
}

void ExciterSCUDlg::ApplyRules()
{
    if (m_blanking)
        ApplyRule({{m_blankingTime, m_blanking->GetBool()}});
}

} // namespace TKE
