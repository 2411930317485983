#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The header of a memory scan: its channel count, which is shown but never edited.
class TdsHeaderMSDlg : public ParameterDlg
{
    Q_OBJECT

public:
    TdsHeaderMSDlg(const QString& basePath, QWidget* parent, bool readOnly);

private:
    void BuildPanel();
};

} // namespace TKE
