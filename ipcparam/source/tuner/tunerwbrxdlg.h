#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The tuner of a wideband monitoring receiver, which measures while it listens.
class TunerWBRXDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// In `jobContext`, where no panel of its own shows it, the antenna is a row here.
    TunerWBRXDlg(const QString& basePath, bool vuhf, bool jobContext, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_vuhf;
    bool m_jobContext;
    QString m_prefix;
};

} // namespace TKE
