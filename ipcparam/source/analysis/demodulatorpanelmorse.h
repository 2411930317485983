#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Morse telegraphy.
class DemodulatorPanelMORSE final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("MORSE"); }
    bool HasModType() const override { return false; }
    bool HasVariant() const override { return false; }
    bool HasBaudRate() const override { return false; }
    bool HasBaudRateCaptureRange() const override { return false; }
    bool HasTrackingRanges() const override { return false; }
    bool HasSideband() const override { return false; }
    bool HasPrimaryModulation() const override { return false; }
    bool HasAFCenterFrequency() const override { return false; }
    int GetLineSpan() const override { return 12; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
