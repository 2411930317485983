#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// Short-time signal detection: what counts as a signal, the frequency ranges that are left out and the signal lengths
/// that are looked for.
class DetectionShortDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `megahertzRanges` shows the excluded ranges in MHz instead of kHz and takes signal lengths as stored in tenths
    /// of a millisecond. No row depends on `jobContext`.
    DetectionShortDlg(const QString& basePath, bool jobContext, bool megahertzRanges, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_jobContext;
    bool m_megahertzRanges;
};

} // namespace TKE
