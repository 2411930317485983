#include "recoveryoffer.h"

#include "longact.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "recoveryjournal.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QLockFile>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <map>

namespace JOBEDIT
{

namespace
{

constexpr int correctionRounds = 3;

/// The journal belongs to the document, which outlives the window when the language changes.
RecoveryJournal* JournalOf(JobDocument& document)
{
    auto* journal = document.findChild<RecoveryJournal*>();
    return journal ? journal : new RecoveryJournal(document, &document);
}

/// Contents by path.
using KeptContents = std::map<QString, QString>;

KeptContents TakeBelow(KeptContents& contents, const QString& path)
{
    KeptContents taken;
    for (auto each = contents.lower_bound(path); each != contents.end() && each->first.startsWith(path);)
        taken.insert(contents.extract(each++));
    return taken;
}

} // namespace

RecoveryOffer::RecoveryOffer(MainWindow& window)
    : QObject(&window), m_window(window), m_journal(JournalOf(window.Document()))
{
}

void RecoveryOffer::OfferAgain()
{
    m_later.clear();
    if (RecoveryJournal::FindAbandoned().isEmpty())
        QMessageBox::information(&m_window, tr("Recover Edits"), tr("No edits were left behind."));
    else
        OfferAll();
}

bool RecoveryOffer::OfferAll()
{
    if (OfferForOpenJob())
        return true;
    for (const QString& kept : RecoveryJournal::FindAbandoned())
        if (!m_later.contains(kept) && Offer(kept, RecoveryFile::Read(kept)) == Choice::Restored)
            return true;
    return false;
}

bool RecoveryOffer::OfferForOpenJob()
{
    const QString& fileName = m_window.Document().GetFileName();
    if (m_offering || fileName.isEmpty() || !m_window.isVisible())
        return false;
    for (const QString& kept : RecoveryJournal::FindAbandoned())
    {
        if (m_later.contains(kept))
            continue;
        const RecoveryFile edits = RecoveryFile::Read(kept);
        if (edits.base && !edits.base->file.isEmpty() && QFileInfo(edits.base->file) == QFileInfo(fileName) &&
            Offer(kept, edits) == Choice::Restored)
            return true;
    }
    return false;
}

RecoveryOffer::Choice RecoveryOffer::Offer(const QString& kept, const RecoveryFile& edits)
{
    const QScopedValueRollback offering(m_offering, true);
    const auto lock = RecoveryJournal::Lock(kept);
    if (!lock)
        return Choice::Later; // another editor has been faster
    if (edits.changes.empty() && edits.damaged == 0)
    {
        QFile::remove(kept);
        return Choice::Discarded;
    }
    QMessageBox question(QMessageBox::Question, tr("Recover Edits"), TextOf(edits), QMessageBox::NoButton, &m_window);
    QPushButton* restore = nullptr;
    if (edits.base && !edits.changes.empty())
    {
        question.setInformativeText(
            tr("Restored, they can be taken back by Undo, and are saved when you save the job."));
        restore = question.addButton(tr("&Restore"), QMessageBox::AcceptRole);
    }
    else
        question.setInformativeText(tr("Nothing can be brought back. The file is %1.").arg(kept));
    const QPushButton* discard = question.addButton(tr("&Discard"), QMessageBox::DestructiveRole);
    QPushButton* later = question.addButton(tr("&Later"), QMessageBox::RejectRole);
    question.setDefaultButton(restore ? restore : later);
    question.setEscapeButton(later);
    question.exec();
    if (question.clickedButton() == discard)
    {
        QFile::remove(kept);
        return Choice::Discarded;
    }
    const auto failed = restore && question.clickedButton() == restore ? Restore(edits) : std::nullopt;
    if (!failed)
    {
        m_later << kept;
        return Choice::Later;
    }
    // They are with the job again, and kept anew, before they go here.
    m_journal->Flush();
    if (*failed == 0)
        QFile::remove(kept);
    else
        PutAside(kept, *failed, edits.changes.size());
    return Choice::Restored;
}

QString RecoveryOffer::TextOf(const RecoveryFile& edits) const
{
    QStringList lines;
    const QString file = edits.base ? edits.base->file : QString();
    if (!edits.base)
        lines << tr("An editor ended without saving, and it cannot be read which job it edited.");
    else
    {
        const QString when =
            QLocale().toString(QDateTime::fromString(edits.base->begun, Qt::ISODate), QLocale::ShortFormat);
        lines << (file.isEmpty()
                      ? tr("An editor ended without saving a new job. Its edits since %1 are still there.").arg(when)
                      : tr("An editor ended without saving %1. The edits since %2 are still there.").arg(file, when));
        lines << tr("Changes: %1.").arg(edits.changes.size());
    }
    if (edits.base && !file.isEmpty() && !QFileInfo::exists(file))
        lines << tr("The file of the job has vanished since.");
    else if (edits.base && !file.isEmpty() && edits.base->HasChanged())
        lines << tr("The file of the job was changed since. The edits would be made in what it holds now.");
    if (edits.damaged > 0)
        lines << tr("Records that are damaged and lost: %1.").arg(edits.damaged);
    return lines.join('\n');
}

// Nobody is asked about it again, and nothing is lost where the messages cannot hold as many.
void RecoveryOffer::PutAside(const QString& kept, qsizetype failed, size_t of)
{
    const QString aside = kept + QLatin1String(".rest");
    QFile::remove(aside);
    const bool isAside = QFile::rename(kept, aside);
    QMessageBox(QMessageBox::Warning, tr("Recover Edits"),
                tr("Some changes could not be brought back: %1 of %2. The messages list them, and %3 keeps them.")
                    .arg(failed)
                    .arg(of)
                    .arg(isAside ? aside : kept),
                QMessageBox::Ok, &m_window)
        .exec();
}

std::optional<qsizetype> RecoveryOffer::Restore(const RecoveryFile& edits)
{
    const QString& file = edits.base->file;
    const JobDocument& document = m_window.Document();
    const bool isOpen =
        !file.isEmpty() && QFileInfo(document.GetFileName()) == QFileInfo(file) && !document.IsModified();
    if (!isOpen && !(file.isEmpty() ? m_window.NewFromSample() : m_window.OpenFile(file)))
        return std::nullopt;
    QStringList failures;
    if (!Apply(edits, failures))
    {
        m_window.statusBar()->showMessage(MainWindow::tr("%1: cancelled, nothing has changed").arg(tr("Recover Edits")),
                                          5000);
        return std::nullopt;
    }
    MessageList& messages = m_window.Messages();
    messages.Add(TKE::Severity::Info, tr("Edits that were not saved were brought back"),
                 tr("Changes: %1.").arg(edits.changes.size() - size_t(failures.size())));
    if (edits.damaged > 0)
        messages.Add(TKE::Severity::Warning, tr("Some edits are lost"),
                     tr("Records that are damaged and lost: %1.").arg(edits.damaged));
    for (const QString& failure : failures)
        messages.Add(TKE::Severity::Warning, tr("A change could not be brought back"), failure);
    return failures.size();
}

bool RecoveryOffer::Apply(const RecoveryFile& edits, QStringList& failures)
{
    using Kind = RecoveryChange::Kind;
    JobDocument& document = m_window.Document();
    const QString name = tr("Restore unsaved edits");
    LongAct work(name, &m_window, document.History());
    const EditHistory::Step step(document.History(), name);
    KeptContents contents;
    const QObject moving;
    connect(&document.History(), &EditHistory::NodeMoved, &moving,
            [&](const QString& from, const QString& to)
            {
                for (const auto& [path, text] : TakeBelow(contents, from))
                    contents.insert_or_assign(to + path.mid(from.size()), text);
            });
    qint64 count = 0;
    for (const RecoveryChange& change : edits.changes)
    {
        if (!document.History().MayGoOn(count++, qint64(edits.changes.size())))
            return false;
        QString reason;
        bool done = false;
        switch (change.kind)
        {
        case Kind::Value:
            if (TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(change.path))
                done = value->SetStoredText(change.text, nullptr, &reason);
            else
                reason = tr("the job has no such value");
            if (done)
                contents.insert_or_assign(change.path, change.text);
            else
                reason = tr("%1 (content \"%2\")").arg(reason, change.text);
            break;
        case Kind::Add:
            done = document.AddNode(change.path, change.spec, &reason);
            break;
        case Kind::Remove:
            done = document.RemoveNode(change.path, &reason);
            if (done) // another node may come in its place
                TakeBelow(contents, StructureEdit::WithoutSlash(change.path) + '/');
            break;
        case Kind::Rename:
            done = document.RenameNode(change.path, change.text, &reason);
            break;
        case Kind::Duplicate:
            done = document.DuplicateNode(change.path, change.text, &reason);
            break;
        case Kind::Undo:
        case Kind::Redo:
            break;
        }
        if (!done)
            failures << tr("%1: %2").arg(change.path, reason);
    }
    // Panels may have made choices of their own meanwhile.
    for (int round = 0; round < correctionRounds; ++round)
        for (const auto& [path, text] : contents)
            if (TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(path))
                value->SetStoredText(text);
    return true;
}

} // namespace JOBEDIT
