#pragma once

namespace JOBEDIT
{

/// Dark colours for a dark room, for all windows of the application; kept in its settings. Off, the colours are the
/// desktop's.
class NightColours
{
public:
    static bool AreOn();
    static void Switch(bool on);
    /// Puts the setting into effect, when the program starts.
    static void Restore();
};

} // namespace JOBEDIT
