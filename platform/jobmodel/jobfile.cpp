#include "jobmodel/jobfile.h"

#include "jobmodel/jobreader.h"
#include "jobmodel/jobwriter.h"
#include "jobmodel/journalpause.h"
#include "jobmodel/xmltext.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QScopeGuard>
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
        fs::copy_file(current, fresh, code);
    if (!code)
        fs::rename(fresh, backup, code);
    if (!code)
        return true;
    reason = QString::fromStdString(code.message());
    fs::remove(fresh, code);
    return false;
}

void AppendAttribute(std::string& out, const char* name, const QString& text)
{
    out += ' ';
    out += name;
    out += "=\"";
    XmlText::AppendAttribute(out, text.toStdString());
    out += '"';
}

std::string StartTagOf(const NodeSpec& spec)
{
    std::string tag = "<Node";
    AppendAttribute(tag, "name", spec.name);
    AppendAttribute(tag, "type", spec.type);
    if (!spec.groups.isEmpty())
        AppendAttribute(tag, "groups", spec.groups.join(QLatin1Char(' ')));
    if (spec.count > 0)
        AppendAttribute(tag, "count", QString::number(spec.count));
    if (spec.dataForm)
        AppendAttribute(tag, "form", QStringLiteral("data"));
    if (spec.band == Band::Vuhf)
        AppendAttribute(tag, "band", QStringLiteral("VUHF"));
    return tag + "/>";
}

} // namespace

JobFile::JobFile(Tree& tree) : m_tree(tree), m_layout(std::make_unique<JobLayout>()) {}

JobFile::~JobFile() = default;

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
    if (QFileInfo(fileName).isDir())
        return Fail(error, fileName, tr("This is a directory"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return Fail(error, fileName, file.errorString());
    if (!Read(file, fileName, error))
        return false;
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_stamp = stamp;
    return true;
}

bool JobFile::LoadSample(FileError* error)
{
    GetModel(); // brings the resources
    QFile file(QStringLiteral(":/models/sample.job.xml"));
    if (!file.open(QIODevice::ReadOnly))
        return Fail(error, file.fileName(), file.errorString());
    if (!Read(file, file.fileName(), error))
        return false;
    m_fileName.clear();
    m_stamp = {};
    return true;
}

bool JobFile::Read(QIODevice& device, const QString& shownName, FileError* error)
{
    Tree fresh;
    auto layout = std::make_unique<JobLayout>();
    // What is replaced, or was begun in vain. The rules end before their values do: whoever hears of their end finds
    // the new job complete.
    const auto dispose = qScopeGuard(
        [&]
        {
            JobLayout::DisposeLater(std::move(layout));
            fresh.ClearLater();
        });
    {
        const JournalPause pause(m_tree);
        JobReader reader(fresh, m_tree, *layout, *GetModel(), shownName, JobReader::Purpose::Load);
        reader.SetProgress(m_progress);
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
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return Fail(error, fileName, file.errorString());
    JobWriter writer(m_tree, file,
                     [this](qint64 done) { return !m_progress || m_progress(done, m_layout->byPath.size()); });
    if (!writer.Write(*m_layout))
        return Fail(error, fileName, writer.WasCancelled() ? tr("Cancelled") : file.errorString());
    QString reason;
    if (QFileInfo::exists(fileName) && !BackUp(fileName, reason))
        return Fail(error, fileName + QLatin1Char('~'), tr("The previous generation cannot be kept: %1").arg(reason));
    if (!file.commit())
        return Fail(error, fileName, file.errorString());
    m_fileName = QFileInfo(fileName).absoluteFilePath();
    m_stamp = StampOf(m_fileName);
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
    if (QFileInfo(fileName).isDir())
        Fail(&error, fileName, tr("This is a directory"));
    else if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        Fail(&error, fileName, file.errorString());
    if (!error.reason.isEmpty())
        return {error};

    Tree tree;
    auto layout = std::make_unique<JobLayout>();
    FileErrors errors;
    {
        const JournalPause pause(tree);
        JobReader reader(tree, tree, *layout, *model, fileName, JobReader::Purpose::Check);
        reader.SetProgress(progress);
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

namespace
{

QString NodePath(QStringView path)
{
    return path.isEmpty() || path.endsWith(u'/') ? path.toString() : path.toString() + QLatin1Char('/');
}

} // namespace

const NodeSpec* JobFile::FindNodeSpec(QStringView path) const
{
    const JobNode* node = m_layout->byPath.value(NodePath(path));
    return node ? &node->spec : nullptr;
}

Node* JobFile::AddNode(QStringView parentPath, const NodeSpec& spec, QString* reason)
{
    const auto refuse = [&](const QString& why) -> Node*
    {
        if (reason)
            *reason = why;
        return nullptr;
    };
    JobNode* parent = parentPath.isEmpty() ? &m_layout->root : m_layout->byPath.value(NodePath(parentPath));
    if (!parent)
        return refuse(tr("The job holds no node \"%1\"").arg(parentPath));
    if (const QString fault = spec.NameFault(parent == &m_layout->root); !fault.isEmpty())
        return refuse(fault);
    auto node = std::make_unique<JobNode>();
    node->spec = spec;
    node->path = parent->path + spec.name + QLatin1Char('/');
    if (m_layout->byPath.contains(node->path))
        return refuse(tr("The node occurs twice"));
    if (spec.count < 0 || spec.count > NodeSpec::maximumCount)
        return refuse(tr("\"%1\" is no count of channels (1 to %2)").arg(spec.count).arg(NodeSpec::maximumCount));
    node->values = m_layout->TemplateFor(*GetModel(), spec);
    if (!node->values->GetUnknownGroups().isEmpty())
        return refuse(tr("The group \"%1\" is unknown").arg(node->values->GetUnknownGroups().first()));

    JobModel::KeepForValues(m_model);
    const JournalPause pause(m_tree);
    node->parent = parent;
    node->lead = parent->NewLead();
    node->startTag = StartTagOf(spec);
    std::vector<ValueBase*> values;
    Node* made = node->Create(m_tree, values);
    node->rules = std::make_unique<NodeRules>(m_tree, node->path, node->values);
    node->rules->Begin(m_tree);
    m_layout->byPath.insert(node->path, node.get());
    parent->Add(JobNode::Piece::Node, parent->nodes.size());
    parent->nodes.push_back(std::move(node));
    return made;
}

void JobFile::RemoveNode(QStringView path)
{
    const QString nodePath = NodePath(path);
    if (JobNode* node = m_layout->byPath.value(nodePath))
    {
        m_layout->Forget(*node);
        // Its rules end with it, before the values do.
        for (auto& sibling : node->parent->nodes)
        {
            if (sibling.get() == node)
            {
                sibling.reset();
                break;
            }
        }
    }
    m_tree.RemoveBranch(nodePath);
}

} // namespace TKE
