#pragma once

#include <QHash>
#include <QString>

namespace TKE
{

/// Maps a key to the name under which its value sits below a panel's base path. A key is its own name unless another
/// was registered.
class KeyManager
{
public:
    static KeyManager* Instance();

    /// Throws ARException when the key is empty, since the path made of it would name the node and no value.
    QString GetFullNameByKey(const QString& key) const;

    /// From now on the value of `key` sits under `fullName`, which may hold "/". Paths formed before are not followed
    /// up.
    void Register(const QString& key, const QString& fullName) { m_fullNames.insert(key, fullName); }
    /// Every key is its own name again.
    void Clear() { m_fullNames.clear(); }

private:
    QHash<QString, QString> m_fullNames;
};

} // namespace TKE
