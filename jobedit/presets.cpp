#include "presets.h"

#include "application/qtcompat.h"

#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

namespace JOBEDIT
{

namespace
{

const QLatin1String presetSuffix(".json");

} // namespace

Presets::Presets(const QString& directory)
    : m_directory(directory.isEmpty()
                      ? QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1String("/presets")
                      : directory)
{
}

QStringList Presets::GetNames() const
{
    QStringList names;
    for (const QString& file : m_directory.entryList({u'*' + presetSuffix}, QDir::Files))
        names << QUrl::fromPercentEncoding(file.chopped(presetSuffix.size()).toUtf8());
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString Presets::NameFault(const QString& name) const
{
    if (name.trimmed().isEmpty())
        return tr("A preset needs a name.");
    // Longest name of a file on the usual file systems.
    if (QFileInfo(FileOf(name)).fileName().toUtf8().size() > 250)
        return tr("The name is too long.");
    return {};
}

QString Presets::FileOf(const QString& name) const
{
    // What file systems or shells take for something else is escaped; the rest stays readable.
    QString file = name.trimmed();
    file.replace(u'%', QLatin1String("%25"));
    for (const char16_t special : u"/\\:*?\"<>|")
        if (special)
            file.replace(QChar(special), u'%' + QString::number(special, 16).toUpper());
    if (file.startsWith(u'.'))
        file.replace(0, 1, QLatin1String("%2E"));
    return m_directory.filePath(file + presetSuffix);
}

std::optional<ParameterSet> Presets::Load(const QString& name, QString& reason) const
{
    QFile file(FileOf(name));
    if (!file.open(QIODevice::ReadOnly))
    {
        reason = tr("%1: %2").arg(file.fileName(), QtCompat::ErrorText(file));
        return {};
    }
    auto set = ParameterSet::FromJson(file.readAll(), reason);
    if (!set)
        reason = tr("%1: %2").arg(file.fileName(), reason);
    return set;
}

bool Presets::Save(const QString& name, const ParameterSet& set, QString& reason)
{
    m_directory.mkpath(QStringLiteral("."));
    QSaveFile file(FileOf(name));
    const QByteArray json = QJsonDocument(set.ToJson()).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(json) == json.size() && file.commit())
        return true;
    reason = tr("%1: %2").arg(file.fileName(), QtCompat::ErrorText(file));
    return false;
}

bool Presets::Rename(const QString& name, const QString& newName, QString& reason)
{
    QFile file(FileOf(name));
    if (file.rename(FileOf(newName))) // refuses a name that is taken
        return true;
    reason = tr("%1: %2").arg(file.fileName(), QtCompat::ErrorText(file));
    return false;
}

bool Presets::Remove(const QString& name, QString& reason)
{
    QFile file(FileOf(name));
    if (file.remove())
        return true;
    reason = tr("%1: %2").arg(file.fileName(), QtCompat::ErrorText(file));
    return false;
}

} // namespace JOBEDIT
