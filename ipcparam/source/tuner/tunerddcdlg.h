#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The tuner of one channel that is cut out of a wideband signal (digital down-converter). HF and V/UHF share their keys; the value tree
/// supplies the range of the band and the enable states.
class TunerDDCDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `secondChannel` adds the tuning of a classifier's second channel, `alarmConditions` the level that alarm conditions refer to.
    TunerDDCDlg(const QString& basePath, bool secondChannel, bool alarmConditions, bool vuhf, QWidget* parent, bool readOnly);

private:
    void BuildPanel();

    bool m_secondChannel;
    bool m_alarmConditions;
    bool m_vuhf;
};

} // namespace TKE
