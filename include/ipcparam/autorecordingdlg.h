#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// What a job records automatically, and what triggers a recording. The reduced form offers the recording of the
/// results only.
class IPCPARAM_EXPORT AutoRecordingDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `recordResultsOnly` picks the reduced form.
    AutoRecordingDlg(const QString& basePath, QWidget* parent, bool recordResultsOnly, bool readOnly);

protected Q_SLOTS:
    /// Selects all six recording targets and fixed-frequency monitoring.
    virtual void Slot_OnRecordAllPressed();
    /// Deselects all six recording targets; selects fixed-frequency monitoring, too.
    virtual void Slot_OnDeselectAllPressed();

private:
    void BuildPanel();
    void BuildTargets();
    void BuildTrigger();
    void SetEnabledDisabled();
    void SetAll(bool record, bool fromBase);

    bool m_recordResultsOnly;
};

} // namespace TKE
