#include "nightcolours.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStyle>

namespace JOBEDIT
{

namespace
{

const char* const nightColoursKey = "nightColours";

QPalette NightPalette()
{
    const QColor text(0xc8, 0xcc, 0xd0);
    const QColor faint(0x8c, 0x92, 0x98);
    QPalette palette(QColor(0x33, 0x37, 0x3c), QColor(0x26, 0x29, 0x2d)); // buttons, windows; shades follow
    palette.setColor(QPalette::Base, QColor(0x16, 0x18, 0x1b));
    palette.setColor(QPalette::AlternateBase, QColor(0x1b, 0x1e, 0x21));
    palette.setColor(QPalette::ToolTipBase, QColor(0x33, 0x37, 0x3c));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x5d, 0x8a));
    palette.setColor(QPalette::Link, QColor(0x6f, 0xa8, 0xdc));
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::HighlightedText, QPalette::BrightText})
    {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(0x6a, 0x70, 0x76));
    }
    return palette;
}

} // namespace

bool NightColours::AreOn()
{
    return QSettings().value(nightColoursKey, false).toBool();
}

void NightColours::Switch(bool on)
{
    QSettings().setValue(nightColoursKey, on);
    // Native styles draw their own colours; this one takes those it is given.
    if (on)
        QApplication::setStyle("Fusion");
    QApplication::setPalette(on ? NightPalette() : QApplication::style()->standardPalette());
}

void NightColours::Restore()
{
    if (AreOn())
        Switch(true);
}

} // namespace JOBEDIT
