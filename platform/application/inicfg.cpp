#include "application/inicfg.h"

#include "application/qtcompat.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace TKE
{

std::shared_ptr<const IniCfg> IniCfg::Read(const QString& fileName, const QString& group, QString* error)
{
    auto cfg = std::make_shared<IniCfg>();
    if (!QFileInfo::exists(fileName))
        return cfg;

    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
    {
        *error = QtCompat::ErrorText(file);
        return nullptr;
    }
    QSettings settings(fileName, QSettings::IniFormat);
    QtCompat::UseUtf8(settings);
    if (!group.isEmpty())
        settings.beginGroup(group);
    // An unquoted value with commas comes as a list; it is one text here.
    for (const QString& key : settings.allKeys())
        cfg->m_settings.insert(key, settings.value(key).toStringList().join(u','));
    // Only now, since a group is parsed when it is first looked at.
    if (settings.status() != QSettings::NoError)
    {
        *error = QCoreApplication::translate("TKE::IniCfg", "not a well-formed INI file");
        return nullptr;
    }
    return cfg;
}

QString IniCfg::GetString(const QString& key, const QString& defaultValue) const
{
    return m_settings.value(key, defaultValue);
}

} // namespace TKE
