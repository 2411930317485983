#pragma once

#include "jobmodel/jobfile.h"
#include "jobnode.h"

#include <QHash>
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
    TKE::JobFile::DiskState GetDiskState() const { return m_file.GetDiskState(); }
    const TKE::FileErrors& GetWarnings() const { return m_file.GetWarnings(); }
    /// Stored text of the value in the saved file (for a new job: at its making), and whether the content differs from
    /// it.
    QString SavedText(const TKE::ValueBase& value) const;
    bool DiffersFromSaved(const TKE::ValueBase& value) const;
    /// The nodes that the job names, each before those below it.
    std::vector<JobNode> GetNodes() const;

signals:
    /// Another job has taken the place of the one so far; all its nodes and values are gone.
    void Replaced();
    void ModifiedChanged(bool modified);
    void FileNameChanged();
    /// The content has changed; the value's observers have not heard of it yet.
    void ContentChanged(const TKE::ValueBase& value);
    /// Nodes have come or gone within the job.
    void NodesChanged();

private:
    void Note(const TKE::JournalEntry& entry);
    void SetModified(bool modified);
    void Loaded(bool readOnly);
    void Lock();
    bool IsOwnFile(const QString& fileName) const;
    void Collect(const TKE::Node& node, int parent, std::vector<JobNode>& nodes) const;

    TKE::JobFile m_file;
    TKE::JournalHook m_otherJournal;
    QHash<QString, QString> m_saved; // stored texts of the values that differ from the file
    bool m_modified = false;
    bool m_readOnly = false;
};

} // namespace JOBEDIT
