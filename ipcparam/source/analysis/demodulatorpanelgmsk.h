#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Gaussian minimum shift keying.
class DemodulatorPanelGMSK final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override { return QStringLiteral("GMSK"); }
    bool HasModType() const override { return false; }
    bool HasVariant() const override { return false; }
    bool HasPrimaryModulation() const override { return false; }
    bool HasAFCenterFrequency() const override { return false; }
    int GetLineSpan() const override { return 10; }
    int GetColumnCount() const override { return 12; }
};

} // namespace TKE
