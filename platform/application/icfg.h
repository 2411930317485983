#pragma once

#include <QString>

namespace TKE
{

/// One configuration: string settings by key. A group's key is "Group/Key"; keys are case-sensitive. What was read
/// stays as it is.
class ICfg
{
public:
    virtual ~ICfg() = default;

    /// `defaultValue` when the configuration does not hold the key.
    virtual QString GetString(const QString& key, const QString& defaultValue) const = 0;
};

} // namespace TKE
