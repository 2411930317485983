#pragma once

#include "backgroundsync.h"
#include "editstep.h"
#include "recoveryfile.h"

#include <QFile>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <memory>

class QLockFile;

namespace JOBEDIT
{

class JobDocument;

/// Keeps what is edited and not saved in a file beside the user's data, for the case that the editor dies, or the
/// computer.
///
/// The file comes with the first edit and goes when the job is saved, replaced or closed. An edit is in the file within
/// half a second, and at once when the application loses the focus: a killed editor loses no more than that. A power
/// loss takes also what the disk had not done with yet: it is told to begin with each writing, and nobody waits for it.
/// A record that was written in part costs itself only. A lock beside the file tells that its editor lives.
class RecoveryJournal : public QObject
{
    Q_OBJECT

public:
    explicit RecoveryJournal(JobDocument& document, QObject* parent = nullptr);
    ~RecoveryJournal() override;

    static QString Directory();
    /// The files whose editors are gone, the latest first.
    static QStringList FindAbandoned();
    /// Locks a file that was left behind, as if this were its editor; null when somebody else has it.
    static std::unique_ptr<QLockFile> Lock(const QString& fileName);

    /// Writes what waits.
    void Flush();
    /// Empty while there is nothing to keep.
    QString GetFileName() const { return m_file ? m_file->fileName() : QString(); }

private:
    void Begin();
    void Forget();
    void Slot_OnChange(quint64 step, const EditChange& change);
    void Slot_OnUndone(const EditStep& step);
    void Slot_OnRedone(const EditStep& step);
    void Keep(RecoveryChange change);
    void KeepBack(const EditStep& step);
    void KeepNode(qint64 step, const QString& path);
    bool Open();
    void WriteSome();

    JobDocument& m_document;
    RecoveryBase m_base;
    std::unique_ptr<QFile> m_file;
    std::unique_ptr<QLockFile> m_lock;
    BackgroundSync m_sync;
    bool m_failed = false; // and reported; there will be no file for this job
    std::vector<RecoveryChange> m_waiting;
    size_t m_written = 0;               // of m_waiting
    QHash<QString, size_t> m_positions; // of the values of the last step in m_waiting
    QSet<qint64> m_steps;               // kept so far; those of steps that were taken back, negative
    QTimer m_timer;
};

} // namespace JOBEDIT
