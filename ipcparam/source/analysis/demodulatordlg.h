#pragma once

#include "ipcparam/parameterdlg.h"
#include "value/valueobservingptr.h"

namespace TKE
{

class DemodulatorPanel;
class DemodulatorScroller;

/// Demodulation and frequency offset, and below them the panel with the parameters of the selected demodulation.
///
/// A new panel replaces the old one with every change of the selection, at once and within the notification; it keeps
/// nothing that is not in the value tree. A demodulation that nobody knows leaves the dialog without a panel.
class DemodulatorDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `vuhf` chooses between the V/UHF and the HF/DDC values. Call BuildPanel to fill the dialog.
    DemodulatorDlg(const QString& basePath, bool vuhf, QWidget* parent, bool readOnly);

    /// Builds the top row and the panel of the current demodulation.
    void BuildPanel();
    void Update(Observable* source, TChangeCode code) override;
    /// Room for the top row and the whole panel.
    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;

private:
    void CreatePanel();
    void PlacePanel();
    void ChainTabOrder();

    bool m_vuhf;
    QString m_modulationTypeKey;
    DemodulatorPanel* m_currentPanel = nullptr;
    ValueObservingPtr<ValueBase> m_modulationType;
    DemodulatorScroller* m_scroller;
};

} // namespace TKE
