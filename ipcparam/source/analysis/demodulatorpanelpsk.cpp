#include "analysis/demodulatorpanelpsk.h"

#include "keys/keys.h"

namespace TKE
{

QString DemodulatorPanelPSK::GetModulationTag() const
{
    return IsPlain() || IsOffsetOrQAM() ? Demodulation() : QString();
}

bool DemodulatorPanelPSK::IsPlain() const
{
    return Demodulation() == QLatin1String("PSK");
}

bool DemodulatorPanelPSK::IsOffsetOrQAM() const
{
    return Demodulation() == QLatin1String("OQPSK") || Demodulation() == QLatin1String("QAM16");
}

void DemodulatorPanelPSK::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    if (!IsPlain())
        return;
    PanelRows rows(*this, *Grid());
    rows.IntSpin({4, 5}, QT_TR_NOOP("FFE filter order :"), FFE_FILTERORDER);
    rows.CheckBox({4, 7}, QT_TR_NOOP("Equalizer"), EQUALIZERMODE);
    rows.FloatSpin({5, 5}, QT_TR_NOOP("FFE Convergence Factor :"), FFE_CONVERGENCEFACTOR, 2);
}

} // namespace TKE
