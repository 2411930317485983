#pragma once

#include "application/icfg.h"

#include <map>
#include <memory>
#include <tuple>

namespace TKE
{

/// Whose settings a configuration holds.
enum TCfgView : int
{
    cfgUser = 2,  ///< The user's settings of one application.
    cfgSystem = 4 ///< Settings that the applications of the system share.
};

/// Fetches configurations. They are INI files below the user's configuration directory, GenericConfigLocation +
/// "/ipcparam":
/// "<name>.ini" for view 2 and "system/<name>.ini" for view 4. Each is read once and cached. GUI thread only.
class CfgCenter
{
public:
    static CfgCenter* Instance();

    /// The configuration of the running application, by QCoreApplication::applicationName(). Null as in CreateCfg.
    std::shared_ptr<const ICfg> GetCfg(TCfgView view) { return CreateCfg(ApplicationName(), view, QString()); }

    /// The configuration `name`, or with a `group` that group of it. A missing file is an empty configuration. Null
    /// when the name is no file name or when the file cannot be read or is malformed; the reason is reported once, as a
    /// warning.
    std::shared_ptr<const ICfg> CreateCfg(const QString& name, TCfgView view, const QString& group);

    /// The file in which CreateCfg looks, whether it exists or not.
    QString GetFileName(const QString& name, TCfgView view) const;

    /// Looks in another directory from now on; the empty text goes back to the user's. Drops the cache.
    void SetDirectory(const QString& directory);
    /// The files are read anew when next asked for. Configurations handed out keep what they hold.
    void DropCache() { m_cache.clear(); }

private:
    static QString ApplicationName();

    using Id = std::tuple<QString, TCfgView, QString>; // name, view, group

    QString m_directory;                               // empty: the user's
    std::map<Id, std::shared_ptr<const ICfg>> m_cache; // null for what cannot be had
};

} // namespace TKE
