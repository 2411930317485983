#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The frequency lock of the spectral zoom. Its value lies below the node "TDSSpectralZoom" of the path that the panel
/// is given.
class SpectralZoomDlg : public ParameterDlg
{
    Q_OBJECT

public:
    SpectralZoomDlg(const QString& basePath, QWidget* parent, bool readOnly);

private:
    void BuildPanel();
};

} // namespace TKE
