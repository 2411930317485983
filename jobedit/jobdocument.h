#pragma once

#include "edithistory.h"
#include "joblock.h"
#include "jobnode.h"

#include <QHash>
#include <QObject>

namespace JOBEDIT
{

/// The job that the editor has open, in the value tree of the application, and whether it differs from its file.
///
/// A job is modified while undo and redo would have to be used to come back to what is saved. Enable states are no
/// content. One at a time: it listens to the journal of all values.
class JobDocument : public QObject
{
    Q_OBJECT

public:
    enum class Access
    {
        ReadWrite, ///< locks the file against other editors
        ReadOnly,  ///< may be saved under another name only
    };

    explicit JobDocument(std::shared_ptr<const TKE::JobModel> model, QObject* parent = nullptr);
    ~JobDocument() override;

    /// The model that the configuration names. What is wrong with it is reported; the compiled-in one serves where
    /// there is none.
    static std::shared_ptr<const TKE::JobModel> ConfiguredModel();
    const std::shared_ptr<const TKE::JobModel>& GetModel() { return m_file.GetModel(); }

    // Where these fail, nothing has changed and `error` says why.
    bool NewFromSample(TKE::FileError& error);
    bool Open(const QString& fileName, Access access, TKE::FileError& error);
    bool Save(TKE::FileError& error);
    bool SaveAs(const QString& fileName, TKE::FileError& error);
    /// Told while a job is opened or saved; may cancel that. Empty: nobody.
    void SetProgress(TKE::JobFile::Progress progress) { m_file.SetProgress(std::move(progress)); }

    /// The lock of somebody else who has the file open in an editor.
    std::optional<JobLock> LockOf(const QString& fileName) const;

    EditHistory& History() { return *m_history; }

    // One step of undo each. An edit that is being typed is committed first. Null or false with the reason when it is
    // not possible.
    TKE::Node* AddNode(const QString& parentPath, const TKE::NodeSpec& spec, QString* reason);
    bool RemoveNode(const QString& path, QString* reason);
    /// A name without a "/" takes the place of the last segment of a top node's name.
    bool RenameNode(const QString& path, const QString& name, QString* reason);
    bool DuplicateNode(const QString& path, const QString& name, QString* reason);

    /// Stored text of the value in the saved file (of a new job: as it was made), and whether the content differs.
    QString SavedText(const TKE::ValueBase& value) const;
    bool DiffersFromSaved(const TKE::ValueBase& value) const;

    const QString& GetFileName() const { return m_file.GetFileName(); }
    bool IsModified() const { return m_modified; }
    bool IsReadOnly() const { return m_readOnly; }
    const TKE::JobFile& File() const { return m_file; }
    TKE::JobFile::DiskState GetDiskState() const { return m_file.GetDiskState(); }
    const TKE::FileErrors& GetWarnings() const { return m_file.GetWarnings(); }
    /// The nodes that the job names, each before those below it.
    std::vector<JobNode> GetNodes() const;
    /// The same, ready to take while a job has just been Replaced: they were listed as it was read.
    std::vector<JobNode> TakeNodes();

signals:
    /// Another job has taken the place of the one so far; all its nodes and values are gone.
    void Replaced();
    void ModifiedChanged(bool modified);
    void FileNameChanged();
    void Saved();
    /// The content of the value has changed, by whomever.
    void ContentChanged(const TKE::ValueBase& value);
    /// Nodes have come, gone or changed their names, and their values with them.
    void NodesChanged();

private:
    void SetModified(bool modified);
    bool Read(const std::function<bool()>& load);
    void Loaded(bool readOnly);
    void Lock();
    bool IsOwnFile(const QString& fileName) const;
    void Slot_OnNodeMoved(const QString& from, const QString& to);
    void Record(const TKE::JournalEntry& entry);
    void NowSaved();

    TKE::JobFile m_file;
    TKE::JournalHook m_otherJournal;
    EditHistory* m_history;
    QHash<QString, QString> m_savedTexts; // by path, of the values that have changed since
    std::vector<JobNode> m_readNodes;
    bool m_modified = false;
    bool m_readOnly = false;
};

} // namespace JOBEDIT
