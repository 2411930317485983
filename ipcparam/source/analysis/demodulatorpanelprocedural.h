#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// The demodulations that a procedure names (call systems, telex, picture and data procedures): few rows each.
class DemodulatorPanelProcedural final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return TagOf(Demodulation()); }
    bool HasModType() const override;
    bool HasSSTVMode() const override;
    bool HasVariant() const override { return false; }
    bool HasBaudRate() const override { return false; }
    bool HasBaudRateCaptureRange() const override { return false; }
    bool HasTrackingRanges() const override { return false; }
    bool HasSideband() const override { return false; }
    bool HasPrimaryModulation() const override { return false; }
    bool HasAFCenterFrequency() const override { return false; }
    int GetLineSpan() const override { return 10; }
    /// The count of rows, not of columns: nobody asks, and it has always been so.
    int GetColumnCount() const override;

    /// The tag of a demodulation that this class serves; empty for any other name.
    static QString TagOf(const QString& demodulation);
};

} // namespace TKE
