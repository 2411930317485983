#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// A receiver outside the system whose IF or AF signal is fed in: what it is tuned to, where its signal enters and how its IF is read.
class TunerExternalDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `secondChannel` adds the input of a second channel. In `jobContext` the job may tune the receiver; otherwise there is a remark.
    TunerExternalDlg(const QString& basePath, bool secondChannel, bool jobContext, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void ApplyRules();

    bool m_secondChannel;
    bool m_jobContext;
    PanelRules m_rules;
};

} // namespace TKE
