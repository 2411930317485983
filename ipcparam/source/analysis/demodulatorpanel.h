#pragma once

#include "framework/panelrows.h"
#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// Parameters of one demodulation: the rows that all demodulations share on the left, those of its own on the right.
///
/// A subclass answers which of the common rows it has and adds its own rows. Its rows are fixed once Init has run;
/// another demodulation means another panel (CreateDemodulatorPanel). It observes nothing, so that it can be deleted in
/// any notification.
class DemodulatorPanel : public ParameterDlg
{
    Q_OBJECT

public:
    /// `demodulation` is the name that the selection gives, for example "PSK" or "PACKET RADIO".
    DemodulatorPanel(const QString& basePath, QWidget* parent, bool readOnly, const QString& demodulation);

    /// Chooses between the V/UHF and the HF/DDC values. To be called before Init.
    void SetVUHF(bool vuhf) { m_vuhf = vuhf; }
    /// Builds the panel. The flag goes to BuildCommonRows; the one that counts is that of SetVUHF.
    void Init(bool vuhf);

    /// Lays out the rows that the answers below ask for.
    virtual void BuildCommonRows(bool vuhf);
    /// Adds the rows of the subclass, from row 4 and column 5.
    virtual void BuildSpecificRows() = 0;
    /// Part of every key of the panel, between the receiver's prefix and the key of the row.
    virtual QString GetModulationTag() const = 0;
    virtual bool HasModType() const { return true; }
    /// Only asked when HasModType is false.
    virtual bool HasSSTVMode() const { return false; }
    virtual bool HasVariant() const { return true; }
    virtual bool HasBaudRate() const { return true; }
    virtual bool HasBaudRateCaptureRange() const { return true; }
    virtual bool HasTrackingRanges() const { return true; }
    virtual bool HasSideband() const { return true; }
    virtual bool HasPrimaryModulation() const { return true; }
    virtual bool HasAFCenterFrequency() const { return true; }
    /// Columns that a horizontal line covers; the column after the next one takes the room that is left.
    virtual int GetLineSpan() const = 0;
    /// Nothing here asks for it.
    virtual int GetColumnCount() const = 0;

protected:
    QString BuildFinalKey(const QString& key) const override;
    void SetDefaultStretchFactor() override;

    bool IsVUHF() const { return m_vuhf; }
    const QString& Demodulation() const { return m_demodulation; }

    /// A list of spacings in one column without a header, a square of `side` pixels; returns the list.
    QWidget* AddSpacingList(Cell cell, const QString& key, int minRows, int maxRows, FactorType factor, int side);

private:
    bool m_vuhf = false;
    QString m_demodulation;
};

/// The panel for the demodulation of that name, built and ready; null when the name is unknown. `parent` owns it.
DemodulatorPanel* CreateDemodulatorPanel(const QString& demodulation, const QString& basePath, bool vuhf,
                                         QWidget* parent, bool readOnly);

} // namespace TKE
