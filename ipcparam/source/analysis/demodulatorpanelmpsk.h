#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Phase shift keying on several channels.
class DemodulatorPanelMPSK final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("MPSK"); }
    bool HasPrimaryModulation() const override { return false; }
    bool HasAFCenterFrequency() const override { return false; }
    int GetLineSpan() const override { return 8; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
