#include "analysis/demodulatorpanelask.h"
#include "analysis/demodulatorpanelf7w.h"
#include "analysis/demodulatorpanelfsk.h"
#include "analysis/demodulatorpanelgmsk.h"
#include "analysis/demodulatorpanelmfsk.h"
#include "analysis/demodulatorpanelmorse.h"
#include "analysis/demodulatorpanelmpsk.h"
#include "analysis/demodulatorpanelmt.h"
#include "analysis/demodulatorpanelprocedural.h"
#include "analysis/demodulatorpanelpsk.h"

#include <algorithm>

namespace TKE
{

namespace
{

using Constructor = DemodulatorPanel* (*)(const QString& basePath, QWidget* parent, bool readOnly, const QString& name);

template <class Panel>
DemodulatorPanel* Construct(const QString& basePath, QWidget* parent, bool readOnly, const QString& name)
{
    return new Panel(basePath, parent, readOnly, name);
}

struct Entry
{
    QLatin1StringView name;
    Constructor construct;
};

constexpr Entry entries[] = {
    {QLatin1StringView("ASK"), Construct<DemodulatorPanelASK>},
    {QLatin1StringView("PSK"), Construct<DemodulatorPanelPSK>},
    {QLatin1StringView("OQPSK"), Construct<DemodulatorPanelPSK>},
    {QLatin1StringView("QAM16"), Construct<DemodulatorPanelPSK>},
    {QLatin1StringView("FSK"), Construct<DemodulatorPanelFSK>},
    {QLatin1StringView("McFSK"), Construct<DemodulatorPanelMFSK>},
    {QLatin1StringView("McPSK"), Construct<DemodulatorPanelMPSK>},
    {QLatin1StringView("MTONE"), Construct<DemodulatorPanelMT>},
    {QLatin1StringView("MORSE"), Construct<DemodulatorPanelMORSE>},
    {QLatin1StringView("GMSK"), Construct<DemodulatorPanelGMSK>},
    {QLatin1StringView("F7W"), Construct<DemodulatorPanelF7W>},
};

Constructor ConstructorFor(const QString& name)
{
    const auto* found = std::ranges::find(entries, name, &Entry::name);
    if (found != std::end(entries))
        return found->construct;
    return DemodulatorPanelProcedural::TagOf(name).isEmpty() ? nullptr : Construct<DemodulatorPanelProcedural>;
}

} // namespace

DemodulatorPanel* CreateDemodulatorPanel(const QString& demodulation, const QString& basePath, bool vuhf,
                                         QWidget* parent, bool readOnly)
{
    const Constructor construct = ConstructorFor(demodulation);
    if (!construct)
        return nullptr;
    DemodulatorPanel* panel = construct(basePath, parent, readOnly, demodulation);
    panel->SetVUHF(vuhf);
    panel->Init(vuhf);
    return panel;
}

} // namespace TKE
