// Without a display Qt 5.15 writes with 17 pixels. With one, and with Qt 6 always, it is the nine points that the panels are laid out for.
#include <QApplication>
#include <QFont>

namespace
{

[[maybe_unused]] const bool hasDesktopDpi = qputenv("QT_FONT_DPI", "96");

void TakeDesktopFont()
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()))
        QApplication::setFont(QFont(QStringLiteral("Sans Serif"), 9));
}
Q_COREAPP_STARTUP_FUNCTION(TakeDesktopFont)

} // namespace
