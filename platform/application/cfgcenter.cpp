#include "application/cfgcenter.h"

#include "application/errorhandler.h"
#include "application/inicfg.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace TKE
{

CfgCenter* CfgCenter::Instance()
{
    static CfgCenter center;
    return &center;
}

QString CfgCenter::ApplicationName()
{
    return QCoreApplication::applicationName();
}

std::shared_ptr<const ICfg> CfgCenter::CreateCfg(const QString& name, TCfgView view, const QString& group)
{
    // A name with a path in it would leave the configuration directory.
    if (name.isEmpty() || name.contains(u'/') || name.contains(u'\\'))
        return nullptr;
    const Id id{name, view, group};
    if (const auto known = m_cache.find(id); known != m_cache.end())
        return known->second;

    const QString fileName = GetFileName(name, view);
    QString error;
    std::shared_ptr<const ICfg> cfg = IniCfg::Read(fileName, group, &error);
    m_cache.emplace(id, cfg);
    if (!cfg)
    {
        const QString text = QCoreApplication::translate("TKE::CfgCenter", "The configuration %1 cannot be read.");
        ErrorHandler::Interface().Report(Severity::Warning, text.arg(QDir::toNativeSeparators(fileName)), error);
    }
    return cfg;
}

QString CfgCenter::GetFileName(const QString& name, TCfgView view) const
{
    const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QDir directory(m_directory.isEmpty() ? config + QLatin1String("/ipcparam") : m_directory);
    return directory.filePath(QLatin1String(view == cfgSystem ? "system/" : "") + name + QLatin1String(".ini"));
}

void CfgCenter::SetDirectory(const QString& directory)
{
    m_directory = directory;
    DropCache();
}

} // namespace TKE
