#include "jobdocument.h"

#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "keys/keys.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

namespace JOBEDIT
{

JobDocument::JobDocument(std::shared_ptr<const TKE::JobModel> model, QObject* parent) : QObject(parent)
{
    m_file.SetModel(std::move(model));
    m_otherJournal = TKE::Tree::Instance()->SetJournal(
        [this](const TKE::JournalEntry& entry)
        {
            if (m_otherJournal)
                m_otherJournal(entry);
            SetModified(true);
            emit ContentChanged(entry.value);
        });
}

JobDocument::~JobDocument()
{
    TKE::Tree::Instance()->SetJournal(m_otherJournal);
}

std::shared_ptr<const TKE::JobModel> JobDocument::ConfiguredModel()
{
    TKE::CfgCenter& center = *TKE::CfgCenter::Instance();
    QString directory;
    // The system's setting goes before that of the editor. A configuration that cannot be read is reported where it is
    // read.
    if (const auto system = center.CreateCfg(QStringLiteral("JobManagement"), TKE::cfgSystem, QString()))
        directory = system->GetString(TKE::Keys::JobModelXMLDir, QString());
    if (directory.isEmpty())
        if (const auto own = center.GetCfg(TKE::cfgUser))
            directory = own->GetString(TKE::Keys::JobModelXMLDir, QString());
    auto model = TKE::JobModel::Load(directory);
    for (const TKE::FileError& error : model->GetErrors())
        TKE::ErrorHandler::Interface().Report(TKE::Severity::Error, error.ToText());
    return model;
}

bool JobDocument::NewFromSample(TKE::FileError& error)
{
    if (!m_file.LoadSample(&error))
        return false;
    m_file.ReleaseLock();
    Loaded(false);
    return true;
}

bool JobDocument::Open(const QString& fileName, Access access, TKE::FileError& error)
{
    // A name that does not depend on the working directory: it goes into the list of recent files and the lock.
    if (!m_file.Load(QFileInfo(fileName).absoluteFilePath(), &error))
        return false;
    if (access == Access::ReadWrite)
        Lock();
    else
        m_file.ReleaseLock();
    Loaded(access == Access::ReadOnly);
    return true;
}

bool JobDocument::Save(TKE::FileError& error)
{
    if (!m_file.Save(&error))
        return false;
    SetModified(false);
    return true;
}

bool JobDocument::SaveAs(const QString& fileName, TKE::FileError& error)
{
    if (!m_file.SaveAs(QFileInfo(fileName).absoluteFilePath(), &error))
        return false;
    Lock();
    m_readOnly = false;
    SetModified(false);
    emit FileNameChanged();
    return true;
}

QString JobDocument::LockedBy(const QString& fileName) const
{
    if (IsOwnFile(fileName) && !m_readOnly)
        return {};
    QLockFile probe(QFileInfo(fileName).absoluteFilePath() + ".lock");
    probe.setStaleLockTime(0); // a lock is stale only when its holder is gone, however long it has been there
    if (probe.tryLock(0) || probe.error() != QLockFile::LockFailedError)
        return {};
    qint64 process = 0;
    QString host, application;
    if (!probe.getLockInfo(&process, &host, &application))
        return tr("another editor");
    return tr("%1 on %2, process %3").arg(application, host).arg(process);
}

std::vector<JobNode> JobDocument::GetNodes() const
{
    std::vector<JobNode> nodes;
    for (const TKE::Node* top : TKE::Tree::Instance()->GetTopNodes())
        Collect(*top, -1, nodes);
    return nodes;
}

void JobDocument::Collect(const TKE::Node& node, int parent, std::vector<JobNode>& nodes) const
{
    // Nodes between the root and the job, and those of channels, are not the job's own; what stands below them moves
    // up.
    if (const TKE::NodeSpec* spec = m_file.FindNodeSpec(node.GetPathName()))
    {
        const QString name = node.GetName().isEmpty() ? spec->name : node.GetName().toString();
        nodes.push_back({node.GetBasePath(), name, node.GetTypeText(), spec->band, spec->dataForm, parent});
        parent = int(nodes.size()) - 1;
    }
    for (const auto& child : node.GetNodes())
        Collect(*child, parent, nodes);
}

void JobDocument::SetModified(bool modified)
{
    if (m_modified == modified)
        return;
    m_modified = modified;
    emit ModifiedChanged(modified);
}

void JobDocument::Loaded(bool readOnly)
{
    m_readOnly = readOnly;
    SetModified(false);
    emit FileNameChanged();
    emit Replaced();
}

void JobDocument::Lock()
{
    QString holder;
    if (m_file.TakeLock(&holder))
        return;
    TKE::ErrorHandler::Interface().Report(
        TKE::Severity::Warning, holder.isEmpty()
                                    ? tr("%1 could not be locked against other editors.").arg(GetFileName())
                                    : tr("%1 is open in another editor as well: %2.").arg(GetFileName(), holder));
}

bool JobDocument::IsOwnFile(const QString& fileName) const
{
    return !GetFileName().isEmpty() && QFileInfo(fileName) == QFileInfo(GetFileName());
}

} // namespace JOBEDIT
