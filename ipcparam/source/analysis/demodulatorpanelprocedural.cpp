#include "analysis/demodulatorpanelprocedural.h"

#include "keys/keys.h"

#include <QGridLayout>
#include <algorithm>

namespace TKE
{

namespace
{

struct Procedure
{
    QLatin1StringView name;
    QLatin1StringView tag;
    bool hasType = false;
};

constexpr Procedure procedures[] = {
    {QLatin1StringView("SELECTIVE CALL"), QLatin1StringView("SELCAL"), true},
    {QLatin1StringView("POCSAG"), QLatin1StringView("POCSAG")},
    {QLatin1StringView("PACKET RADIO"), QLatin1StringView("PR"), true},
    {QLatin1StringView("MPT1327"), QLatin1StringView("MPT")},
    {QLatin1StringView("FAX"), QLatin1StringView("FAX"), true},
    {QLatin1StringView("SSTV"), QLatin1StringView("SSTV")},
    {QLatin1StringView("HELLSCHREIBER"), QLatin1StringView("HELLSCHREIBER"), true},
    {QLatin1StringView("PACTOR"), QLatin1StringView("PACTOR"), true},
    {QLatin1StringView("CLOVER"), QLatin1StringView("CLOVER"), true},
    {QLatin1StringView("ACARS"), QLatin1StringView("ACARS")},
    {QLatin1StringView("ACARS HF"), QLatin1StringView("ACARS")}, // one set of values for both
    {QLatin1StringView("HC-ARQ"), QLatin1StringView("HCARQ")},
    {QLatin1StringView("MIL-STD"), QLatin1StringView("MILSTD"), true},
    {QLatin1StringView("STANAG"), QLatin1StringView("STANAG"), true},
    {QLatin1StringView("ICAO SELCAL"), QLatin1StringView("ICAO")},
    {QLatin1StringView("FLEX"), QLatin1StringView("FLEX")},
    {QLatin1StringView("AIS"), QLatin1StringView("AIS")},
    {QLatin1StringView("FMS-BOS"), QLatin1StringView("FMSBOS")},
    {QLatin1StringView("DTMF"), QLatin1StringView("DTMF")},
    {QLatin1StringView("ATIS"), QLatin1StringView("ATIS")},
    {QLatin1StringView("ZVEI-VDEW"), QLatin1StringView("ZVEI_VDEW")},
    {QLatin1StringView("METEOSAT-WEFAX"), QLatin1StringView("WEFAX")},
    {QLatin1StringView("PSK31"), QLatin1StringView("PSK31"), true},
    {QLatin1StringView("GMDSS"), QLatin1StringView("GMDSS")},
};

const Procedure* Find(const QString& name)
{
    const auto* found = std::ranges::find(procedures, name, &Procedure::name);
    return found == std::end(procedures) ? nullptr : found;
}

} // namespace

QString DemodulatorPanelProcedural::TagOf(const QString& demodulation)
{
    const Procedure* procedure = Find(demodulation);
    return procedure ? QString(procedure->tag) : QString();
}

bool DemodulatorPanelProcedural::HasModType() const
{
    const Procedure* procedure = Find(Demodulation());
    return procedure && procedure->hasType;
}

bool DemodulatorPanelProcedural::HasSSTVMode() const
{
    return Demodulation() == QLatin1String("SSTV");
}

int DemodulatorPanelProcedural::GetColumnCount() const
{
    return Grid()->rowCount();
}

void DemodulatorPanelProcedural::BuildSpecificRows()
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    const QString& name = Demodulation();

    if (name == QLatin1String("MPT1327"))
        rows.Combo({4, 5}, QT_TR_NOOP("Channel spacing :"), CHANNELSPACING);
    else if (name == QLatin1String("POCSAG"))
        rows.Combo({4, 5}, QT_TR_NOOP("Baudrate:"), BAUDRATE);
    else if (name == QLatin1String("FAX"))
    {
        rows.Combo({4, 5}, QT_TR_NOOP("Drum speed:"), DRUMSPEED);
        rows.Label({4, 7}, QT_TR_NOOP("lpm"));
        rows.Combo({5, 5}, QT_TR_NOOP("Cooperation index:"), IOC);
        rows.FloatSpin({6, 5}, QT_TR_NOOP("Shift :"), SHIFT, 2);
        rows.Label({6, 7}, QT_TR_NOOP("Hz"));
    }
    else if (name == QLatin1String("CLOVER"))
        rows.Combo({4, 5}, QT_TR_NOOP("Speedlevel:"), SPEEDLEVEL);
    else if (name == QLatin1String("MIL-STD"))
    {
        // The one row of its own that stands among the common rows.
        rows.CheckBox({4, 2}, QT_TR_NOOP("Use Automatic Mode"), AUTOMODE);
        rows.Combo({4, 5}, QT_TR_NOOP("Dataformat:"), DATAFORMAT);
        rows.Combo({5, 5}, QT_TR_NOOP("Diversity:"), DIVERSITY);
        rows.Combo({6, 5}, QT_TR_NOOP("Speedlevel :"), SPEEDLEVEL);
        rows.Label({6, 7}, QT_TR_NOOP("bps"));
        rows.Combo({7, 5}, QT_TR_NOOP("Interleaverlength :"), INTERLEAVERLENGTH);
        rows.Combo({8, 5}, QT_TR_NOOP("Super Blocks :"), SUPERBLOCKS);
    }
    else if (name == QLatin1String("STANAG"))
    {
        rows.Combo({4, 5}, QT_TR_NOOP("UserDataRate:"), DATARATE);
        rows.Label({4, 7}, QT_TR_NOOP("bps"));
        rows.Combo({5, 5}, QT_TR_NOOP("InterleaverMode:"), INTERLEAVERMODE);
    }
    else if (name == QLatin1String("PSK31"))
    {
        rows.Combo({4, 5}, QT_TR_NOOP("Predefined Baudrate:"), PREDEFINEDRATE);
        rows.Label({4, 7}, QT_TR_NOOP("Baud"));
        rows.FloatSpin({5, 5}, QT_TR_NOOP("Custom Baudrate :"), CUSTOMRATE, 2);
        rows.Label({5, 7}, QT_TR_NOOP("Baud"));
    }
}

} // namespace TKE
