#pragma once

#include "ipcparam/exciterpanel.h"

namespace TKE
{

/// Settings of the wide-band unit that hold for all its channels. A scenario sets the centre frequency itself.
class ExciterWDEDlg : public ExciterPanel
{
    Q_OBJECT

public:
    ExciterWDEDlg(const QString& basePath, bool jobContext, bool vuhf, QWidget* parent, bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_centerFrequency{this};
    ValuePtr m_bandwidth{this};
    ValuePtr m_level{this};
    ValuePtr m_sampleRate{this};
    ValuePtr m_channelRaster{this};
    ValuePtr m_activeChannels{this};
    ValuePtr m_phaseMode{this};
    ValuePtr m_crestFactorReduction{this};
    ValuePtr m_reservedFrequencies{this};
};

} // namespace TKE
