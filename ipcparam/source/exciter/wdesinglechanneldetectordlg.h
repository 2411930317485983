#pragma once

#include "exciter/wdepanel.h"

namespace TKE
{

/// The detector that checks single channels, and its channels.
class WDESingleChannelDetectorDlg : public WDEPanel
{
    Q_OBJECT

public:
    /// `channelCount` is the number of channels.
    WDESingleChannelDetectorDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                                bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_integrationTime{this};
    ValuePtr m_minDuration{this};
    ValuePtr m_holdTime{this};
    ValuePtr m_reportLevel{this};
};

} // namespace TKE
