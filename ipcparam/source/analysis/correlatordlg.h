#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The correlator's four patterns.
class CorrelatorDlg : public ParameterDlg
{
    Q_OBJECT

public:
    CorrelatorDlg(const QString& basePath, QWidget* parent, bool readOnly);

    /// Disables the symbol valencies of the patterns, which no widget shows.
    void DisableUnusedValues();

private:
    void BuildPanel();
};

} // namespace TKE
