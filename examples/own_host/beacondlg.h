#pragma once

#include "ipcparam/parameterdlg.h"

#include <deque>

/// The panel of this host: the beacon's rows as model/beacon.xml describes them, who operates the station, and a warning when the
/// power is more than the station may use.
class BeaconDlg : public TKE::ParameterDlg
{
    Q_OBJECT

public:
    BeaconDlg(const QString& basePath, QWidget* parent, bool readOnly);

private:
    void Update(TKE::Observable* source, TKE::TChangeCode code) override;
    void ShowWarning();

    std::deque<TKE::ValueObservingPtr<TKE::ValueBase>> m_rows; // deque: they must not move
    TKE::ValueObservingPtr<TKE::ValueBase> m_power{this};
    TKE::ValueObservingPtr<TKE::ValueBase> m_limit{this};
    QLabel* m_warning = nullptr;
};
