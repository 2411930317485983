#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// A short-time profile: who made it and when, burst parameters, limits of bandwidth and frequency, and the list of
/// frequencies (shown in kHz). The origin, the number of channels and the modulation type are shown and never edited.
class IPCPARAM_EXPORT ShorttimeProfileDlg : public ParameterDlg
{
    Q_OBJECT

public:
    ShorttimeProfileDlg(const QString& basePath, QWidget* parent, bool readOnly);

private:
    void BuildPanel();
    void BuildRequiredParameters();
    void BuildBandwidth();
    void BuildFrequencies();
    void SetEnabledDisabled();
};

} // namespace TKE
