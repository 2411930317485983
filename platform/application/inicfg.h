#pragma once

#include "application/icfg.h"

#include <QHash>

#include <memory>

namespace TKE
{

/// A configuration read from an INI file (UTF-8) at once; the file is not looked at again.
class IniCfg : public ICfg
{
public:
    /// A missing file gives an empty configuration; null when the file cannot be read or is malformed, `error` then
    /// says why. With a `group`, the keys are those of that group.
    static std::shared_ptr<const IniCfg> Read(const QString& fileName, const QString& group, QString* error);

    QString GetString(const QString& key, const QString& defaultValue) const override;

private:
    QHash<QString, QString> m_settings;
};

} // namespace TKE
