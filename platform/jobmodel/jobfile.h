#pragma once

#include "jobmodel/fileerror.h"
#include "jobmodel/jobmodel.h"
#include "jobmodel/nodespec.h"
#include "value/tree.h"

#include <QCoreApplication>
#include <QDateTime>
#include <functional>
#include <memory>

class QIODevice;
class QLockFile;

namespace TKE
{

struct JobLayout;
struct TakenNode;

/// A job: the content of the value tree, as a file holds it. GUI thread only.
///
/// Loading fills the tree: nodes with their type texts, every value of every group of a node with its default, the
/// values of the file, the start states and then the rules, which follow the values from then on. A file with an error
/// changes nothing: what was there stays. Loading replaces the whole content of the tree; the old values report state 1
/// as they go. The journal hears nothing of it.
///
/// Who hears of values that go, or of new states, may load another job, and add, remove and rename nodes: an operation
/// tells when the job is whole again, and goes on with what is left of it.
///
/// Saving writes each value that the file named or that differs from its default. What the program does not know stays
/// in place, byte for byte, as does every element that was not edited; a job that was not edited gives the bytes it was
/// loaded from.
class JobFile
{
    Q_DECLARE_TR_FUNCTIONS(TKE::JobFile)

public:
    /// Called every few milliseconds while a job is loaded or saved, with the work done and all of it: bytes read, or
    /// nodes written. False cancels; the error then says so, and neither the job nor the file has changed. It must not
    /// change the job.
    using Progress = std::function<bool(qint64 done, qint64 all)>;

    enum class DiskState
    {
        Unchanged,
        Changed,
        Vanished,
    };

    /// `tree` is not owned and outlives the job.
    explicit JobFile(Tree& tree = *Tree::Instance());
    /// Nodes and values stay in the tree; the rules end. What it knows of the file goes a little at a time.
    ~JobFile();
    JobFile(const JobFile&) = delete;
    JobFile& operator=(const JobFile&) = delete;

    /// The model that files are read with from now on; the compiled-in one unless set.
    void SetModel(std::shared_ptr<const JobModel> model);
    const std::shared_ptr<const JobModel>& GetModel();

    /// Files with more values are refused: a few letters may ask for thousands of them.
    void SetMostValues(size_t values) { m_mostValues = values; }

    bool Load(const QString& fileName, FileError* error = nullptr);
    /// A new job like the compiled-in sample; it has no file name.
    bool LoadSample(FileError* error = nullptr);
    /// What the last load kept without knowing it, at most 1000 warnings.
    const FileErrors& GetWarnings() const { return m_warnings; }
    void SetProgress(Progress progress) { m_progress = std::move(progress); }

    /// Saves to the file that was loaded or saved last. The previous generation stays as "<file>~". Overwrites what
    /// changed on disk meanwhile: ask GetDiskState before. A symbolic link stays one: what it leads to is replaced, and
    /// the previous generation stands beside the link, under the name that the user knows.
    ///
    /// At any moment, also that of a power loss, the file is the old one or the new one, whole. Once this returns true
    /// it is the new one, on the disk as far as the disk keeps what it says.
    bool Save(FileError* error = nullptr);
    bool SaveAs(const QString& fileName, FileError* error = nullptr);
    /// The bytes that saving would write.
    QByteArray ToUtf8() const;

    /// Empty for a job that has no file yet.
    const QString& GetFileName() const { return m_fileName; }
    /// What became of the file on disk since it was loaded or saved.
    DiskState GetDiskState() const;
    bool ChangedOnDisk() const { return GetDiskState() != DiskState::Unchanged; }

    /// Takes the lock "<file>.lock" that tells other editors; released by ReleaseLock, when another file is locked, and
    /// by the end of the job. False when somebody else has it (`holder` then says who) or it cannot be made (`holder`
    /// is empty then).
    bool TakeLock(QString* holder = nullptr);
    void ReleaseLock();

    /// All errors and warnings of a file, at most 1000, without touching any tree that is in use.
    static FileErrors Check(const QString& fileName, std::shared_ptr<const JobModel> model = {},
                            const Progress& progress = {});
    /// The findings about values of a file without errors, with line and column where the file has the value.
    static FileErrors Locate(FileErrors findings, const QString& fileName, const JobModel& model);

    /// What the job says about the node at `path`; null when it says nothing (a channel's node, for example).
    const NodeSpec* FindNodeSpec(QStringView path) const;
    /// Adds a node with all values of its groups below the node at `parentPath` (empty: at the top). Null, with the
    /// reason when asked for, when that is not possible.
    Node* AddNode(QStringView parentPath, const NodeSpec& spec, QString* reason = nullptr);
    /// Removes the node at `path` with all below it, nodes of the file that are no part of it too, from the tree and
    /// from the job.
    void RemoveNode(QStringView path);
    /// The same, and what puts it back with its bytes and contents. Null with the reason when the job holds no such
    /// node, or when another node of the file, which is no part of this one, lies below it.
    std::shared_ptr<TakenNode> TakeNode(QStringView path, QString* reason = nullptr);
    /// Once for each time that the node was taken; parent and name must be free for it as they were then.
    bool PutBackNode(TakenNode& taken, QString* reason = nullptr);
    /// Gives the node another name; contents and bytes stay. The values are made anew: those so far report their end.
    bool RenameNode(QStringView path, const QString& name, QString* reason = nullptr);
    /// Puts a copy of the node, with all below it, behind it.
    Node* DuplicateNode(QStringView path, const QString& name, QString* reason = nullptr);

    using NodeVisitor = std::function<void(const QString& path, const NodeSpec& spec, const QString& parentPath)>;
    /// Shows all nodes of the job in the order of the file, each before those below it.
    void VisitNodes(const NodeVisitor& visit) const;
    /// The same for each node as it is read, which is before the job is in use and before it is known whether it will
    /// be: to go through a large job afterwards takes a while.
    void SetReadVisitor(NodeVisitor visitor) { m_readVisitor = std::move(visitor); }

private:
    static constexpr size_t mostValues = 10'000'000; // ten times what a large job has; some gigabytes
    struct Stamp
    {
        qint64 size = -1; // -1: no file
        QDateTime changed;
        bool operator==(const Stamp&) const = default;
    };
    static Stamp StampOf(const QString& fileName);
    bool Read(QIODevice& device, const QString& shownName, const QString& fileName, const Stamp& stamp, FileError* error);

    Tree& m_tree;
    std::shared_ptr<const JobModel> m_model;
    std::shared_ptr<JobLayout> m_layout;
    FileErrors m_warnings;
    Progress m_progress;
    NodeVisitor m_readVisitor;
    size_t m_mostValues = mostValues;
    QString m_fileName;
    Stamp m_stamp;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace TKE
