#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The frequency range of signal tracking, which is shown and never edited.
class IPCPARAM_EXPORT SigTrackingControlDlg : public ParameterDlg
{
    Q_OBJECT

public:
    SigTrackingControlDlg(const QString& basePath, QWidget* parent);

private:
    void BuildPanel();
    void SetEnabledDisabled();
};

} // namespace TKE
