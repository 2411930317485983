#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Frequency shift keying.
class DemodulatorPanelFSK final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("FSK"); }
    bool HasPrimaryModulation() const override { return IsVUHF(); }
    bool HasAFCenterFrequency() const override { return IsVUHF(); }
    int GetLineSpan() const override { return 8; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
