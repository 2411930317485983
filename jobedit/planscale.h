#pragma once

#include <QString>
#include <QtGlobal>
#include <vector>

namespace JOBEDIT
{

/// The part of a frequency axis that is shown, and where on the picture: from `left` on, `width` wide.
struct PlanScale
{
    struct Tick
    {
        double hertz;
        QString text; ///< empty for the ticks between
    };

    double from = 0.0;
    double to = 30e6;
    double left = 0.0;
    double width = 100.0;

    double HertzPerPixel() const { return (to - from) / width; }
    double XOf(double hertz) const { return left + (hertz - from) / HertzPerPixel(); }
    double HertzAt(double x) const { return from + (x - left) * HertzPerPixel(); }

    /// Ticks at round frequencies; those with a text are at least `distance` pixels apart.
    std::vector<Tick> Ticks(double distance) const;
};

} // namespace JOBEDIT
