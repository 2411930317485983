#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// Continuous signal detection: what counts as a signal, and the frequency ranges that are left out.
class DetectionDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `megahertzRanges` shows the excluded ranges in MHz instead of kHz.
    DetectionDlg(const QString& basePath, bool megahertzRanges, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_megahertzRanges;
};

} // namespace TKE
