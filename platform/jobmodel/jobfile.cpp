#include "jobmodel/jobfile.h"

#include "application/qtcompat.h"
#include "jobmodel/disksync.h"
#include "jobmodel/jobreader.h"
#include "jobmodel/jobstructure.h"
#include "jobmodel/jobwriter.h"
#include "jobmodel/journalpause.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QScopeGuard>
#include <QSet>
#include <filesystem>

namespace TKE
{

namespace
{

bool Fail(FileError* error, const QString& file, const QString& reason)
{
    if (error)
        *error = {.file = file, .reason = reason};
    return false;
}

// Opens it for reading, unless it is no file: to open a pipe would wait, and a device may go on for ever.
bool Open(QFile& file, FileError* error)
{
    const QFileInfo info(file.fileName());
    if (info.isDir())
        return Fail(error, file.fileName(), JobFile::tr("This is a directory"));
    if (info.exists() && !info.isFile())
        return Fail(error, file.fileName(), JobFile::tr("This is no file but a pipe or a device"));
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
           Fail(error, file.fileName(), QtCompat::ErrorText(file));
}

// Makes the current generation of `fileName` its backup, too. An older backup stays until the new one is whole.
bool BackUp(const QString& fileName, QString& reason)
{
    namespace fs = std::filesystem;
    const fs::path current(QFileInfo(fileName).canonicalFilePath().toStdU16String());
    const fs::path backup((fileName + QLatin1Char('~')).toStdU16String());
    const fs::path fresh((fileName + QLatin1String("~new")).toStdU16String());
    std::error_code code;
    fs::remove(fresh, code);
    fs::create_hard_link(current, fresh, code);
    if (code) // a file system without such links
    {
        fs::copy_file(current, fresh, code);
        QFile copy(fileName + QLatin1String("~new"));
        if (!code && copy.open(QIODevice::ReadOnly))
            DiskSync::File(copy.handle(), &reason);
    }
    if (!code && reason.isEmpty())
        fs::rename(fresh, backup, code);
    if (!code && reason.isEmpty())
        return true;
    if (code)
        reason = QString::fromStdString(code.message());
    fs::remove(fresh, code);
    return false;
}

} // namespace

JobFile::JobFile(Tree& tree) : m_tree(tree), m_layout(std::make_shared<JobLayout>()) {}

JobFile::~JobFile()
{
    JobLayout::DisposeLater(std::move(m_layout));
}

void JobFile::SetModel(std::shared_ptr<const JobModel> model)
{
    m_model = std::move(model);
}

const std::shared_ptr<const JobModel>& JobFile::GetModel()
{
    if (!m_model)
        m_model = JobModel::Load();
    return m_model;
}

JobFile::Stamp JobFile::StampOf(const QString& fileName)
{
    const QFileInfo info(fileName);
    return info.exists() ? Stamp{info.size(), info.lastModified()} : Stamp{};
}

bool JobFile::Load(const QString& fileName, FileError* error)
{
    const Stamp stamp = StampOf(fileName);
    QFile file(fileName);
    return Open(file, error) && Read(file, fileName, QFileInfo(fileName).absoluteFilePath(), stamp, error);
}

bool JobFile::LoadSample(FileError* error)
{
    GetModel(); // brings the resources
    QFile file(QStringLiteral(":/models/sample.job.xml"));
    if (!file.open(QIODevice::ReadOnly))
        return Fail(error, file.fileName(), QtCompat::ErrorText(file));
    return Read(file, file.fileName(), {}, {}, error);
}

bool JobFile::Read(QIODevice& device, const QString& shownName, const QString& fileName, const Stamp& stamp,
                   FileError* error)
{
    Tree fresh;
    auto layout = std::make_shared<JobLayout>();
    // What is replaced, or was begun in vain. The rules end before their values do: whoever hears of their end finds
    // the new job complete, and may load a further one.
    const auto dispose = qScopeGuard(
        [&]
        {
            layout->isReplaced = true;
            JobLayout::DisposeLater(std::move(layout));
            fresh.ClearLater();
        });
    {
        const JournalPause pause(m_tree);
        JobReader reader(fresh, m_tree, *layout, *GetModel(), shownName, JobReader::Purpose::Load);
        reader.SetProgress(m_progress);
        reader.SetMostValues(m_mostValues);
        reader.SetVisitor(m_readVisitor);
        if (!reader.Read(device))
        {
            const auto& errors = reader.GetErrors();
            const auto first =
                std::find_if(errors.begin(), errors.end(), [](const FileError& found) { return found.IsError(); });
            if (error)
                *error = *first;
            return false;
        }
        m_warnings = reader.GetErrors();
    }
    JobModel::KeepForValues(m_model);
    m_tree.Swap(fresh);
    m_layout.swap(layout);
    m_fileName = fileName;
    m_stamp = stamp;
    return true;
}

bool JobFile::Save(FileError* error)
{
    if (m_fileName.isEmpty())
        return Fail(error, {}, tr("The job has no file yet"));
    return SaveAs(m_fileName, error);
}

bool JobFile::SaveAs(const QString& fileName, FileError* error)
{
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile())
        return Fail(error, fileName, tr("There is something that is no file"));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Fail(error, fileName, QtCompat::ErrorText(file));
    JobWriter writer(m_tree, file,
                     [this](qint64 done) { return !m_progress || m_progress(done, m_layout->byPath.size()); });
    if (!writer.Write(*m_layout))
        return Fail(error, fileName, writer.WasCancelled() ? tr("Cancelled") : QtCompat::ErrorText(file));
    QString reason;
    // Some file systems tell only here that there is no room. QSaveFile would not look.
    if (!DiskSync::File(file.handle(), &reason))
        return Fail(error, fileName, reason);
    if (QFileInfo::exists(fileName) && !BackUp(fileName, reason))
        return Fail(error, fileName + QLatin1Char('~'), tr("The previous generation cannot be kept: %1").arg(reason));
    if (!file.commit())
        return Fail(error, fileName, QtCompat::ErrorText(file));
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_stamp = StampOf(m_fileName);
    // The names, of the backup as well, which stands beside a link.
    const QSet<QString> directories{QFileInfo(m_fileName).path(), QFileInfo(m_fileName).canonicalPath()};
    for (const QString& directory : directories)
        DiskSync::Directory(directory);
    return true;
}

QByteArray JobFile::ToUtf8() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    JobWriter(m_tree, buffer).Write(*m_layout);
    return buffer.data();
}

JobFile::DiskState JobFile::GetDiskState() const
{
    const Stamp stamp = m_fileName.isEmpty() ? m_stamp : StampOf(m_fileName);
    if (stamp == m_stamp)
        return DiskState::Unchanged;
    return stamp == Stamp{} ? DiskState::Vanished : DiskState::Changed;
}

bool JobFile::TakeLock(QString* holder)
{
    ReleaseLock();
    if (m_fileName.isEmpty())
        return false;
    auto lock = std::make_unique<QLockFile>(m_fileName + QLatin1String(".lock"));
    lock->setStaleLockTime(0); // an editor may be open for days; a lock whose process is gone is stale anyway
    if (lock->tryLock(0))
    {
        m_lock = std::move(lock);
        return true;
    }
    qint64 process = 0;
    QString host;
    QString program;
    if (holder && lock->getLockInfo(&process, &host, &program))
        *holder = tr("%1 (process %2 on %3)").arg(program).arg(process).arg(host);
    return false;
}

void JobFile::ReleaseLock()
{
    m_lock.reset();
}

FileErrors JobFile::Check(const QString& fileName, std::shared_ptr<const JobModel> model, const Progress& progress)
{
    if (!model)
        model = JobModel::Load();
    FileError error;
    QFile file(fileName);
    if (!Open(file, &error))
        return {error};

    Tree tree;
    auto layout = std::make_shared<JobLayout>();
    FileErrors errors;
    {
        const JournalPause pause(tree);
        JobReader reader(tree, tree, *layout, *model, fileName, JobReader::Purpose::Check);
        reader.SetProgress(progress);
        reader.SetMostValues(mostValues);
        reader.Read(file);
        errors = reader.GetErrors();
    }
    if (progress) // somebody looks on
    {
        JobLayout::DisposeLater(std::move(layout));
        tree.ClearLater();
    }
    return errors;
}

FileErrors JobFile::Locate(FileErrors findings, const QString& fileName, const JobModel& model)
{
    QFile file(fileName);
    if (findings.isEmpty() || !Open(file, nullptr))
        return findings;
    QMultiHash<QString, FileError> sought;
    for (const FileError& finding : std::as_const(findings))
        sought.insert(finding.itemPath, finding);

    Tree tree;
    JobLayout layout;
    const JournalPause pause(tree);
    JobReader reader(tree, tree, layout, model, fileName, JobReader::Purpose::Check);
    reader.SetFindings(std::move(sought));
    reader.Read(file);
    for (const FileError& placed : reader.GetErrors())
        for (FileError& finding : findings)
            if (finding.itemPath == placed.itemPath && finding.reason == placed.reason)
                finding = placed;
    return findings;
}

const NodeSpec* JobFile::FindNodeSpec(QStringView path) const
{
    const JobNode* node = JobStructure(m_tree, m_layout).Find(path);
    return node ? &node->spec : nullptr;
}

void JobFile::VisitNodes(const NodeVisitor& visit) const
{
    const std::function<void(const JobNode&)> descend = [&](const JobNode& above)
    {
        // The pieces stand in the order of the file.
        for (const JobNode::Piece& piece : above.content)
        {
            if (piece.kind != JobNode::Piece::Node || !above.nodes[piece.index])
                continue;
            const JobNode& node = *above.nodes[piece.index];
            visit(node.path, node.spec, above.path);
            descend(node);
        }
    };
    descend(m_layout->root);
}

Node* JobFile::AddNode(QStringView parentPath, const NodeSpec& spec, QString* reason)
{
    GetModel();
    JobModel::KeepForValues(m_model);
    return JobStructure(m_tree, m_layout).Add(parentPath, spec, *m_model, reason);
}

void JobFile::RemoveNode(QStringView path)
{
    // Who hears of it may delete this job.
    Tree& tree = m_tree;
    JobStructure structure(tree, m_layout);
    const QString branch = path.toString();
    if (structure.Take(branch, nullptr))
        return;
    for (const QString& below : structure.PathsBelow(branch))
        structure.Take(below, nullptr);
    tree.RemoveBranch(branch);
}

std::shared_ptr<TakenNode> JobFile::TakeNode(QStringView path, QString* reason)
{
    return JobStructure(m_tree, m_layout).Take(path, reason);
}

bool JobFile::PutBackNode(TakenNode& taken, QString* reason)
{
    return JobStructure(m_tree, m_layout).PutBack(taken, reason);
}

bool JobFile::RenameNode(QStringView path, const QString& name, QString* reason)
{
    return JobStructure(m_tree, m_layout).Rename(path, name, reason);
}

Node* JobFile::DuplicateNode(QStringView path, const QString& name, QString* reason)
{
    return JobStructure(m_tree, m_layout).Duplicate(path, name, reason);
}

} // namespace TKE
