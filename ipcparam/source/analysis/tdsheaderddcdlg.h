#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The DDC header: frequency lock and delayed signal modes.
class TdsHeaderDDCDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `noFrequencyLock` leaves the lock out; no row depends on `classifierHeader`.
    TdsHeaderDDCDlg(const QString& basePath, QWidget* parent, bool classifierHeader, bool noFrequencyLock,
                    bool readOnly);

private:
    void BuildPanel();

    bool m_classifierHeader;
    bool m_noFrequencyLock;
};

} // namespace TKE
