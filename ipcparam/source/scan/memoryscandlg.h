#pragma once

#include "framework/panelrules.h"

namespace TKE
{

/// The tuner of a memory scan: timing, the gain that all channels share, and one line per memory channel. A channel can be prepared while it
/// is off.
class MemoryScanDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `channelCount` is fixed from now on; below 1 there are no channels. `jobContext` adds the start with the job.
    MemoryScanDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void BuildScan();
    void BuildTuner();
    void BuildChannels();
    void BuildChannel(QGridLayout& grid, int channel);
    void ApplyRules();

    int m_channelCount;
    bool m_jobContext;
    bool m_vuhf;
    QLatin1StringView m_prefix;
    PanelRules m_rules;
};

} // namespace TKE
