#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The decoder that follows the demodulation selected on the demodulator tab: its module and its alphabet. It follows
/// that selection: the group is titled after it, and Morse has an alphabet of its own.
class DecoderDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `vuhf` chooses the demodulation that is followed, nothing else; no row depends on `jobContext`.
    DecoderDlg(const QString& basePath, QWidget* parent, bool vuhf, bool jobContext, bool readOnly);

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void FixDecoderWidth();
    QString AlphabetKey() const;

    QString m_modulationTypeKey;
    bool m_vuhf;
    bool m_jobContext;
    ValueObservingPtr<ValueBase> m_modulationType{this};
    QGroupBox* m_decoderBox = nullptr;
    VCComboBoxClassic* m_alphabet = nullptr;
};

} // namespace TKE
