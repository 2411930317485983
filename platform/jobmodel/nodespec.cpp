#include "jobmodel/nodespec.h"

#include <QCoreApplication>

namespace TKE
{

QString NodeSpec::NameFault(bool top) const
{
    const auto fault = [&](const char* why) { return QCoreApplication::translate("TKE::NodeSpec", why).arg(name); };
    if (name.isEmpty())
        return QCoreApplication::translate("TKE::NodeSpec", "The name of the node is missing");
    QStringView path = name;
    if (top && path.startsWith(u'/'))
        path = path.mid(1);
    for (const QStringView segment : path.split(u'/'))
    {
        if (segment.isEmpty() || segment == u"." || segment == u"..")
            return fault(QT_TRANSLATE_NOOP("TKE::NodeSpec", "\"%1\" is no name for a node"));
    }
    if (!top && name.contains(QLatin1Char('/')))
        return fault(
            QT_TRANSLATE_NOOP("TKE::NodeSpec", "\"%1\" is more than one name, which only a top node may have"));
    return {};
}

} // namespace TKE
