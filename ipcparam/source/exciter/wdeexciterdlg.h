#pragma once

#include "exciter/wdepanel.h"

namespace TKE
{

/// The channels of the wide-band unit and what they share. A scenario decides itself whether it is repeated.
class WDEExciterDlg : public WDEPanel
{
    Q_OBJECT

public:
    /// `channelCount` is the number of exciter channels.
    WDEExciterDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                  bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_levelReference{this};
    ValuePtr m_burstLength{this};
    ValuePtr m_burstPause{this};
    ValuePtr m_startTime{this};
    ValuePtr m_repeat{this};
};

} // namespace TKE
