#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Multi-tone signals: one tone at a time.
class DemodulatorPanelMT final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("MULTITONE"); }
    bool HasModType() const override { return false; }
    bool HasVariant() const override { return false; }
    bool HasBaudRate() const override { return false; }
    bool HasBaudRateCaptureRange() const override { return false; }
    bool HasTrackingRanges() const override { return false; }
    bool HasPrimaryModulation() const override { return IsVUHF(); }
    bool HasAFCenterFrequency() const override { return IsVUHF(); }
    int GetLineSpan() const override { return 8; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
