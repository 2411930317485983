#include "planscale.h"

#include <QLocale>
#include <cmath>

namespace JOBEDIT
{

std::vector<PlanScale::Tick> PlanScale::Ticks(double distance) const
{
    if (!(to > from) || !(width > 0.0))
        return {};
    const double least = HertzPerPixel() * distance;
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    const double step = power * (least <= power ? 1.0 : least <= 2.0 * power ? 2.0 : least <= 5.0 * power ? 5.0 : 10.0);
    const int parts = std::lround(step / std::pow(10.0, std::floor(std::log10(step) + 1e-9))) == 2 ? 4 : 5;

    // The unit is one for the whole axis, as coarse as its end suggests and no coarser than its steps bear.
    const double end = std::max(std::abs(from), std::abs(to));
    double unit = end >= 1e9 && step >= 1e7 ? 1e9 : end >= 1e6 && (step >= 1e4 || end > 3e7) ? 1e6 : 1e3;
    if (end < 1e3)
        unit = 1.0;
    const char* name = unit == 1e9 ? "GHz" : unit == 1e6 ? "MHz" : unit == 1e3 ? "kHz" : "Hz";
    const int decimals = std::max(0, int(std::ceil(-std::log10(step / unit) - 1e-9)));
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);

    std::vector<Tick> ticks;
    for (double number = std::ceil(from / step * parts - 1e-9); number * step / parts <= to; ++number)
    {
        const double hertz = number * step / parts;
        const bool major = std::fmod(std::abs(number), parts) < 0.5;
        ticks.push_back(
            {hertz, major ? locale.toString(hertz / unit, 'f', decimals) + ' ' + QLatin1StringView(name) : QString()});
    }
    return ticks;
}

} // namespace JOBEDIT
