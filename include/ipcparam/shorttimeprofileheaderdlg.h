#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// How well (percent) signals have to match a short-time profile.
class IPCPARAM_EXPORT ShorttimeProfileHeaderDlg : public ParameterDlg
{
    Q_OBJECT

public:
    ShorttimeProfileHeaderDlg(const QString& basePath, QWidget* parent, bool readOnly);

private:
    void BuildPanel();
};

} // namespace TKE
