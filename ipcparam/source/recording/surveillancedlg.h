#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// The alarm conditions of a surveillance task: what counts as an alarm, what happens then, and when the alarm is armed.
class SurveillanceDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `ddc` adds the conditions that only a detection in a wideband signal can answer: surveyed ranges and bandwidth.
    SurveillanceDlg(const QString& basePath, bool ddc, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void BuildAlarm(PanelRows rows);
    void BuildSignal(PanelRows rows);
    void BuildText(PanelRows rows);
    void BuildDetection(PanelRows rows);
    void BuildPeriods(PanelRows rows);
    void ApplyRules();

    bool m_ddc;
    PanelRules m_rules;
};

} // namespace TKE
