#pragma once

#include "analysis/demodulatorpanel.h"

namespace TKE
{

/// Phase shift keying, offset QPSK and 16-QAM.
class DemodulatorPanelPSK final : public DemodulatorPanel
{
    Q_OBJECT

public:
    using DemodulatorPanel::DemodulatorPanel;

    void BuildSpecificRows() override;
    QString GetModulationTag() const override;
    bool HasModType() const override { return !IsOffsetOrQAM(); }
    bool HasVariant() const override { return IsPlain(); }
    bool HasPrimaryModulation() const override { return IsVUHF() && !IsOffsetOrQAM(); }
    bool HasAFCenterFrequency() const override { return HasPrimaryModulation(); }
    int GetLineSpan() const override { return 10; }
    int GetColumnCount() const override { return 12; }

private:
    bool IsPlain() const;
    bool IsOffsetOrQAM() const;
};

} // namespace TKE
