#include "recoveryfile.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <algorithm>
#include <array>

namespace JOBEDIT
{

namespace
{

using ChangeKind = RecoveryChange::Kind;

constexpr std::array<std::pair<ChangeKind, const char*>, 7> kindNames{{{ChangeKind::Value, "value"},
                                                                       {ChangeKind::Add, "add"},
                                                                       {ChangeKind::Remove, "remove"},
                                                                       {ChangeKind::Rename, "rename"},
                                                                       {ChangeKind::Duplicate, "duplicate"},
                                                                       {ChangeKind::Undo, "undo"},
                                                                       {ChangeKind::Redo, "redo"}}};
constexpr qsizetype checksumSize = 4;
constexpr qint64 hashedBytes = 64LL * 1024;
constexpr qint64 longestFile = qint64(1) << 30;

QByteArray ChecksumOf(const QByteArray& json)
{
    return QByteArray::number(qChecksum(json), 16).rightJustified(checksumSize, '0');
}

QByteArray LineOfObject(const QJsonObject& object)
{
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    return ChecksumOf(json) + ' ' + json + '\n';
}

std::optional<QJsonObject> ObjectOfLine(const QByteArray& line)
{
    if (line.size() < checksumSize + 3 || line.at(checksumSize) != ' ' || !line.endsWith('\n'))
        return {};
    const QByteArray json = line.mid(checksumSize + 1, line.size() - checksumSize - 2);
    if (ChecksumOf(json) != line.left(checksumSize))
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

QJsonObject ObjectOf(const TKE::NodeSpec& spec)
{
    return {{"name", spec.name},   {"type", spec.type},     {"groups", QJsonArray::fromStringList(spec.groups)},
            {"count", spec.count}, {"data", spec.dataForm}, {"vuhf", spec.band == TKE::Band::Vuhf}};
}

TKE::NodeSpec SpecOf(const QJsonObject& object)
{
    TKE::NodeSpec spec;
    spec.name = object["name"].toString();
    spec.type = object["type"].toString();
    const QJsonArray groups = object["groups"].toArray();
    for (const auto group : groups)
        spec.groups << group.toString();
    spec.count = object["count"].toInt();
    spec.dataForm = object["data"].toBool();
    spec.band = object["vuhf"].toBool() ? TKE::Band::Vuhf : TKE::Band::Hf;
    return spec;
}

std::optional<RecoveryBase> BaseOf(const QJsonObject& object)
{
    if (object["recovery"].toInt() != 1)
        return {};
    return RecoveryBase{object["file"].toString(), object["size"].toVariant().toLongLong(),
                        object["changed"].toString(), object["hash"].toString(), object["begun"].toString()};
}

std::optional<RecoveryChange> ChangeOf(const QJsonObject& object)
{
    const QString name = object["kind"].toString();
    const auto found =
        std::ranges::find_if(kindNames, [&](const auto& each) { return name == QLatin1String(each.second); });
    if (found == kindNames.end())
        return {};
    return RecoveryChange{found->first, object["step"].toVariant().toLongLong(), object["path"].toString(),
                          object["text"].toString(), SpecOf(object["spec"].toObject())};
}

} // namespace

RecoveryBase RecoveryBase::Of(const QString& fileName)
{
    RecoveryBase base{.file = fileName};
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) // to open a pipe would wait
        return base;
    base.size = file.size();
    base.changed = QFileInfo(fileName).lastModified().toString(Qt::ISODateWithMs);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(file.read(hashedBytes));
    file.seek(std::max<qint64>(file.pos(), base.size - hashedBytes));
    hash.addData(file.read(hashedBytes));
    base.hash = QString::fromLatin1(hash.result().toHex());
    return base;
}

bool RecoveryBase::HasChanged() const
{
    // A copy that was put back in its place is the same file.
    const RecoveryBase now = Of(file);
    return now.size != size || now.hash != hash || (now.changed != changed && size > 2 * hashedBytes);
}

RecoveryFile RecoveryFile::Read(const QString& fileName)
{
    QFile file(fileName);
    if (QFileInfo(fileName).isFile() && file.open(QIODevice::ReadOnly) && file.size() <= longestFile)
        return Read(file);
    RecoveryFile unreadable;
    unreadable.damaged = 1;
    return unreadable;
}

RecoveryFile RecoveryFile::Read(QIODevice& device)
{
    RecoveryFile read;
    QSet<qint64> undone;
    while (!device.atEnd())
    {
        const auto object = ObjectOfLine(device.readLine());
        if (const auto base = object ? BaseOf(*object) : std::nullopt)
        {
            read.base = base;
            continue;
        }
        const auto change = object ? ChangeOf(*object) : std::nullopt;
        if (!change)
            ++read.damaged;
        else if (change->kind == ChangeKind::Undo)
            undone.insert(change->step);
        else if (change->kind == ChangeKind::Redo)
            undone.remove(change->step);
        else
            read.changes.push_back(*change);
    }
    std::erase_if(read.changes, [&](const RecoveryChange& change) { return undone.contains(change.step); });
    return read;
}

QByteArray RecoveryFile::LineOf(const RecoveryBase& base)
{
    return LineOfObject({{"recovery", 1},
                         {"file", base.file},
                         {"size", base.size},
                         {"changed", base.changed},
                         {"hash", base.hash},
                         {"begun", base.begun}});
}

QByteArray RecoveryFile::LineOf(const RecoveryChange& change)
{
    const auto name = std::ranges::find(kindNames, change.kind, &std::pair<ChangeKind, const char*>::first);
    QJsonObject object{{"kind", name->second}, {"step", change.step}};
    if (!change.path.isNull())
        object["path"] = change.path;
    if (!change.text.isNull())
        object["text"] = change.text;
    if (change.kind == ChangeKind::Add)
        object["spec"] = ObjectOf(change.spec);
    return LineOfObject(object);
}

} // namespace JOBEDIT
