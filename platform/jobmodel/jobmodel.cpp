#include "jobmodel/jobmodel.h"

#include "application/qtcompat.h"
#include "jobmodel/jobmodelreader.h"
#include "jobmodel/journalpause.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <map>

// The descriptor files are compiled into this static library, whose resources need a call from outside any namespace.
static void InitModelResources()
{
    Q_INIT_RESOURCE(models);
}

namespace TKE
{

namespace
{

// What tells one state of the files from another.
QString StampOf(const QStringList& files)
{
    QString stamp;
    for (const QString& file : files)
    {
        const QFileInfo info(file);
        stamp += QStringLiteral("%1|%2|%3\n")
                     .arg(info.absoluteFilePath())
                     .arg(info.size())
                     .arg(info.lastModified().toMSecsSinceEpoch());
    }
    return stamp;
}

} // namespace

JobModel::JobModel() = default;
JobModel::~JobModel() = default;

std::shared_ptr<const JobModel> JobModel::Load(const QString& directory)
{
    InitModelResources();
    const QDir files(directory.isEmpty() ? QStringLiteral(":/models") : directory);
    QStringList names;
    for (const QString& name : files.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name))
    {
        if (!name.endsWith(QLatin1String(".job.xml")))
            names.append(files.filePath(name));
    }
    if (!names.isEmpty())
        return LoadFiles(names);
    auto model = std::make_shared<JobModel>();
    model->m_errors.append({.file = directory,
                            .reason = files.exists() ? JobModelReader::tr("The directory holds no descriptor file")
                                                     : JobModelReader::tr("There is no such directory")});
    return model;
}

std::shared_ptr<const JobModel> JobModel::LoadFiles(const QStringList& files)
{
    InitModelResources();
    static std::map<QString, std::weak_ptr<const JobModel>> loaded;
    std::weak_ptr<const JobModel>& known = loaded[StampOf(files)];
    if (auto model = known.lock())
        return model;

    const JournalPause pause(*Tree::Instance());
    auto model = std::make_shared<JobModel>();
    for (const QString& name : files)
    {
        QFile file(name);
        if (file.open(QIODevice::ReadOnly))
            JobModelReader(*model, name).ReadInto(file);
        else
            model->m_errors.append({.file = name, .reason = QtCompat::ErrorText(file)});
    }
    known = model;
    return model;
}

const ParameterGroup* JobModel::FindGroup(QStringView name, Band band) const
{
    const ParameterGroup* found = nullptr;
    for (const auto& group : m_groups)
    {
        if (group->GetName() != name)
            continue;
        if (group->GetBand() == band)
            return group.get();
        if (group->GetBand() == Band::Both)
            found = group.get();
    }
    return found;
}

void JobModel::KeepForValues(std::shared_ptr<const JobModel> model)
{
    // Never destroyed: the tree's values may live until the very end.
    static auto& kept = *new std::vector<std::shared_ptr<const JobModel>>;
    if (std::find(kept.begin(), kept.end(), model) == kept.end())
        kept.push_back(std::move(model));
}

} // namespace TKE
