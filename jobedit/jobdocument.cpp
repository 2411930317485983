#include "jobdocument.h"

#include "application/cfgcenter.h"
#include "application/errorhandler.h"
#include "dialogpane.h"
#include "keys/keys.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace JOBEDIT
{

namespace
{

// A plain name takes the place of the last segment of the name of a top node, which may be a path.
QString WholeName(const TKE::NodeSpec* spec, const QString& name)
{
    const QString own = spec ? spec->name : QString();
    return name.contains('/') ? name : own.left(own.lastIndexOf('/') + 1) + name;
}

} // namespace

JobDocument::JobDocument(std::shared_ptr<const TKE::JobModel> model, QObject* parent)
    : QObject(parent), m_history(new EditHistory(m_file, this))
{
    m_file.SetModel(std::move(model));
    m_otherJournal = TKE::Tree::Instance()->SetJournal(
        [this](const TKE::JournalEntry& entry)
        {
            if (m_otherJournal)
                m_otherJournal(entry);
            Record(entry);
        });
    connect(m_history, &EditHistory::Changed, this, [this] { SetModified(m_history->IsModified()); });
    connect(m_history, &EditHistory::NodesChanged, this, &JobDocument::NodesChanged);
    connect(m_history, &EditHistory::NodeMoved, this, &JobDocument::Slot_OnNodeMoved);
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
    if (!Read([&] { return m_file.LoadSample(&error); }))
        return false;
    m_file.ReleaseLock();
    Loaded(false);
    return true;
}

bool JobDocument::Open(const QString& fileName, Access access, TKE::FileError& error)
{
    // A name that does not depend on the working directory: it goes into the list of recent files and the lock.
    if (!Read([&] { return m_file.Load(QFileInfo(fileName).absoluteFilePath(), &error); }))
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
    NowSaved();
    return true;
}

bool JobDocument::SaveAs(const QString& fileName, TKE::FileError& error)
{
    if (!m_file.SaveAs(QFileInfo(fileName).absoluteFilePath(), &error))
        return false;
    Lock();
    m_readOnly = false;
    emit FileNameChanged();
    NowSaved();
    return true;
}

std::optional<JobLock> JobDocument::LockOf(const QString& fileName) const
{
    return IsOwnFile(fileName) && !m_readOnly ? std::nullopt : JobLock::Of(fileName);
}

std::vector<JobNode> JobDocument::GetNodes() const
{
    // Nodes between the root and the job, and those of channels, are not the job's own; what stands below them moves
    // up.
    NodeLister nodes;
    m_file.VisitNodes([&](const QString& path, const TKE::NodeSpec& spec, const QString& parentPath)
                      { nodes.Add(path, spec, parentPath); });
    return nodes.Take();
}

std::vector<JobNode> JobDocument::TakeNodes()
{
    return m_readNodes.empty() ? GetNodes() : std::exchange(m_readNodes, {});
}

bool JobDocument::Read(const std::function<bool()>& load)
{
    NodeLister nodes;
    m_file.SetReadVisitor([&](const QString& path, const TKE::NodeSpec& spec, const QString& parentPath)
                          { nodes.Add(path, spec, parentPath); });
    const bool isLoaded = load();
    m_file.SetReadVisitor({});
    if (isLoaded)
        m_readNodes = nodes.Take();
    return isLoaded;
}

TKE::Node* JobDocument::AddNode(const QString& parentPath, const TKE::NodeSpec& spec, QString* reason)
{
    CommitPendingEdit();
    const EditHistory::Step step(*m_history, {});
    TKE::Node* node = m_file.AddNode(parentPath, spec, reason);
    if (!node)
        return nullptr;
    const QString path = node->GetBasePath();
    auto edit = std::make_shared<StructureEdit>(StructureEdit::Kind::Add, path);
    edit->other = StructureEdit::WithoutSlash(parentPath);
    edit->spec = spec;
    m_history->Record(edit);
    return TKE::Tree::Instance()->FindNode(path); // who heard of it may have removed it again
}

bool JobDocument::RemoveNode(const QString& path, QString* reason)
{
    CommitPendingEdit();
    const EditHistory::Step step(*m_history, {});
    auto taken = m_file.TakeNode(path, reason);
    if (!taken)
        return false;
    auto edit = std::make_shared<StructureEdit>(StructureEdit::Kind::Remove, path);
    edit->taken = std::move(taken);
    m_history->Record(edit);
    return true;
}

bool JobDocument::RenameNode(const QString& path, const QString& name, QString* reason)
{
    CommitPendingEdit();
    const EditHistory::Step step(*m_history, {});
    auto edit = std::make_shared<StructureEdit>(StructureEdit::Kind::Rename, path);
    const TKE::NodeSpec* spec = m_file.FindNodeSpec(path);
    edit->oldName = spec ? spec->name : QString();
    edit->name = WholeName(spec, name);
    edit->other = edit->path.chopped(edit->oldName.size()) + edit->name;
    if (spec && edit->name == edit->oldName)
        return true;
    if (!m_file.RenameNode(path, edit->name, reason))
        return false;
    m_history->Record(edit);
    return true;
}

bool JobDocument::DuplicateNode(const QString& path, const QString& name, QString* reason)
{
    CommitPendingEdit();
    const EditHistory::Step step(*m_history, {});
    const TKE::Node* copy = m_file.DuplicateNode(path, WholeName(m_file.FindNodeSpec(path), name), reason);
    if (!copy)
        return false;
    auto edit = std::make_shared<StructureEdit>(StructureEdit::Kind::Duplicate, copy->GetBasePath());
    edit->other = StructureEdit::WithoutSlash(path);
    edit->name = name;
    m_history->Record(edit);
    return true;
}

QString JobDocument::SavedText(const TKE::ValueBase& value) const
{
    const auto found = m_savedTexts.constFind(value.GetPathName());
    return found != m_savedTexts.constEnd() ? *found : value.GetStoredText();
}

bool JobDocument::DiffersFromSaved(const TKE::ValueBase& value) const
{
    const auto found = m_savedTexts.constFind(value.GetPathName());
    return found != m_savedTexts.constEnd() && *found != value.GetStoredText();
}

void JobDocument::Record(const TKE::JournalEntry& entry)
{
    if (const QString path = entry.value.GetPathName(); !m_savedTexts.contains(path))
        m_savedTexts.insert(path, entry.before);
    m_history->Record(entry);
    emit ContentChanged(entry.value);
}

void JobDocument::Slot_OnNodeMoved(const QString& from, const QString& to)
{
    QHash<QString, QString> moved;
    for (auto each = m_savedTexts.begin(); each != m_savedTexts.end(); ++each)
        moved.insert(each.key().startsWith(from) ? to + each.key().mid(from.size()) : each.key(), each.value());
    m_savedTexts = std::move(moved);
}

void JobDocument::NowSaved()
{
    m_savedTexts.clear();
    m_history->SetSaved();
    emit Saved();
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
    m_savedTexts.clear();
    m_history->Clear();
    emit FileNameChanged();
    emit Replaced();
    m_readNodes.clear();
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
