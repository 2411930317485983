#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The front end of a wideband tuner: centre frequency, real-time bandwidth and gain.
class TunerWBDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `secondChannel` adds the tuning of a second channel.
    TunerWBDlg(const QString& basePath, bool secondChannel, bool vuhf, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_secondChannel;
    bool m_vuhf;
    QString m_prefix;
};

} // namespace TKE
