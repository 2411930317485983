#include "keys/keymanager.h"

#include "application/arexception.h"

namespace TKE
{

KeyManager* KeyManager::Instance()
{
    static KeyManager manager;
    return &manager;
}

QString KeyManager::GetFullNameByKey(const QString& key) const
{
    if (key.isEmpty())
    {
        const QString function = QStringLiteral("GetFullNameByKey");
        throw ARException(QStringLiteral("empty key"), QStringLiteral("platform/keys/keymanager"), function, function,
                          __LINE__);
    }
    // Mostly nothing is registered, and hashing the key would be the dearest part of forming a path.
    return m_fullNames.isEmpty() ? key : m_fullNames.value(key, key);
}

} // namespace TKE
