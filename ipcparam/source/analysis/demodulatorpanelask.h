#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Amplitude shift keying.
class DemodulatorPanelASK final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("ASK"); }
    bool HasVariant() const override { return false; }
    bool HasSideband() const override { return false; }
    bool HasPrimaryModulation() const override { return IsVUHF(); }
    bool HasAFCenterFrequency() const override { return IsVUHF(); }
    int GetLineSpan() const override { return 10; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
