#pragma once

#include "jobmodel/jobfile.h"
#include "jobnode.h"

#include <QObject>

namespace JOBEDIT
{

/// The job that the editor has open, in the value tree of the application, and whether it differs from its file.
///
/// A job is modified from the first change of a value's content until it is saved, even when the change is taken back.
/// Enable states are no content. One at a time: it listens to the journal of all values.
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

    /// Who else has the file open in an editor; empty when nobody has.
    QString LockedBy(const QString& fileName) const;

    const QString& GetFileName() const { return m_file.GetFileName(); }
    bool IsModified() const { return m_modified; }
    bool IsReadOnly() const { return m_readOnly; }
    const TKE::JobFile& File() const { return m_file; }
    TKE::JobFile::DiskState GetDiskState() const { return m_file.GetDiskState(); }
    const TKE::FileErrors& GetWarnings() const { return m_file.GetWarnings(); }
    /// The nodes that the job names, each before those below it.
    std::vector<JobNode> GetNodes() const;

    // Null or false, with the reason when asked for, when that is not possible; nothing has changed then.
    TKE::Node* AddNode(const QString& parentPath, const TKE::NodeSpec& spec, QString* reason);
    bool RemoveNode(const QString& path, QString* reason);
    bool RenameNode(const QString& path, const QString& name, QString* reason);
    bool DuplicateNode(const QString& path, const QString& name, QString* reason);

signals:
    /// Nodes were added, removed or renamed.
    void NodesChanged();
    /// Another job has taken the place of the one so far; all its nodes and values are gone.
    void Replaced();
    void ModifiedChanged(bool modified);
    void FileNameChanged();

private:
    void SetModified(bool modified);
    void Loaded(bool readOnly);
    void Lock();
    bool IsOwnFile(const QString& fileName) const;
    void Collect(const TKE::Node& node, int parent, std::vector<JobNode>& nodes) const;

    TKE::JobFile m_file;
    TKE::JournalHook m_otherJournal;
    bool m_modified = false;
    bool m_readOnly = false;
};

} // namespace JOBEDIT
