#pragma once

#include "recoveryfile.h"

#include <QObject>
#include <QStringList>
#include <optional>

namespace JOBEDIT
{

class MainWindow;
class RecoveryJournal;

/// Offers the edits that an editor left behind when it died, and brings them back as one step of undo.
class RecoveryOffer : public QObject
{
    Q_OBJECT

public:
    explicit RecoveryOffer(MainWindow& window);

    /// Offers the edits that were left behind, those of the open job first, until some are brought back: then it
    /// returns true, and the job that they belong to is open.
    bool OfferAll();
    /// Offers those of the open job only. The window must be up for that.
    bool OfferForOpenJob();
    /// The user asks for it: says so when there are none, and offers what was put off, too.
    void OfferAgain();

private:
    enum class Choice
    {
        Restored,
        Discarded,
        Later,
    };
    Choice Offer(const QString& kept, const RecoveryFile& edits);
    QString TextOf(const RecoveryFile& edits) const;
    void PutAside(const QString& kept, qsizetype failed, size_t of);
    // How many changes could not be brought back; nothing when none was.
    std::optional<qsizetype> Restore(const RecoveryFile& edits);
    /// False when the user cancelled it, and nothing has changed. What cannot be brought back goes to `failures`.
    bool Apply(const RecoveryFile& edits, QStringList& failures);

    MainWindow& m_window;
    RecoveryJournal* m_journal;
    QStringList m_later; // what the user does not want to be asked about again in this run
    bool m_offering = false;
};

} // namespace JOBEDIT
