#include "saving.h"

#include "compareactions.h"
#include "dialogpane.h"
#include "lockquestion.h"
#include "longwork.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "recentfiles.h"
#include "valuewidgets/textentry.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <algorithm>

namespace JOBEDIT
{

Saving::Saving(MainWindow& window) : m_window(window), m_document(window.Document()) {}

bool Saving::Save()
{
    if (m_document.GetFileName().isEmpty() || m_document.IsReadOnly())
        return SaveAs();
    CommitPendingEdit();
    if (!MayOverwrite())
        return false;
    ReportRefusals();
    if (!m_window.Run(
            tr("Saving %1").arg(QFileInfo(m_document.GetFileName()).fileName()),
            [this](TKE::FileError& error) { return m_document.Save(error); },
            [this](const TKE::FileError& error) { return SaveElsewhere(m_document.GetFileName(), error); }))
        return false;
    m_window.statusBar()->showMessage(tr("%1 saved").arg(m_document.GetFileName()), 5000);
    return true;
}

bool Saving::SaveAs()
{
    CommitPendingEdit();
    const QString start = m_document.GetFileName().isEmpty() ? tr("new.job.xml") : m_document.GetFileName();
    const QString fileName =
        QFileDialog::getSaveFileName(&m_window, tr("Save Job"), start, tr("Jobs (*.xml);;All files (*)"));
    return !fileName.isEmpty() && SaveTo(fileName);
}

bool Saving::SaveTo(const QString& fileName)
{
    CommitPendingEdit();
    if (const auto lock = m_document.LockOf(fileName); lock && lock->IsOutOfSight())
    {
        using Choice = LockQuestion::Choice;
        const Choice choice = LockQuestion::Ask(m_window, tr("Save Job"), fileName, *lock, tr("Save &As..."),
                                                tr("The job can be saved in another place."));
        if (choice != Choice::TakenOver)
            return choice == Choice::Other && SaveAs();
    }
    else if (lock)
        return SaveElsewhere(fileName,
                             {.file = fileName, .reason = tr("it is open in another editor: %1").arg(lock->ToText())});
    if (!MayReplace(fileName))
        return false;
    ReportRefusals();
    if (!m_window.Run(
            tr("Saving %1").arg(QFileInfo(fileName).fileName()),
            [&](TKE::FileError& error) { return m_document.SaveAs(fileName, error); },
            [&](const TKE::FileError& error) { return SaveElsewhere(fileName, error); }))
        return false;
    RecentFiles::Add(fileName);
    m_window.statusBar()->showMessage(tr("%1 saved").arg(m_document.GetFileName()), 5000);
    return true;
}

bool Saving::MayGo()
{
    CommitPendingEdit();
    if (!m_document.IsModified())
        return true;
    const QString name =
        m_document.GetFileName().isEmpty() ? tr("The new job") : QFileInfo(m_document.GetFileName()).fileName();
    QMessageBox question(QMessageBox::Warning, tr("Job Editor"), tr("%1 has changes that are not saved.").arg(name),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec())
    {
    case QMessageBox::Save:
        return Save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool Saving::MayOverwrite()
{
    CompareActions& comparing = m_window.Comparing();
    if (m_document.GetDiskState() != TKE::JobFile::DiskState::Changed || comparing.IsDiskSettled())
        return true; // what has vanished is written again
    comparing.NoteDisk();
    QMessageBox question(
        QMessageBox::Warning, tr("Save Job"),
        tr("%1 was changed by somebody else since it was opened.").arg(QFileInfo(m_document.GetFileName()).fileName()),
        QMessageBox::Cancel, &m_window);
    QPushButton* overwrite = question.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    const QPushButton* compare = question.addButton(tr("&Compare..."), QMessageBox::ActionRole);
    question.setDefaultButton(QMessageBox::Cancel);
    question.exec();
    if (question.clickedButton() == compare)
        comparing.CompareWithDisk();
    return question.clickedButton() == overwrite;
}

bool Saving::MayReplace(const QString& fileName)
{
    if (!QFileInfo(fileName).isFile())
        return true;
    if (QFileInfo(fileName) == QFileInfo(m_document.GetFileName()))
        return MayOverwrite();
    TKE::FileErrors errors;
    {
        const QString title = tr("Looking into %1").arg(QFileInfo(fileName).fileName());
        LongWork work(title, &m_window);
        errors = TKE::JobFile::Check(fileName, m_document.GetModel(),
                                     [&](qint64 done, qint64 all) { return work.Progress(done, all); });
        if (work.WasCancelled())
        {
            m_window.statusBar()->showMessage(MainWindow::tr("%1: cancelled, nothing has changed").arg(title), 5000);
            return false;
        }
    }
    const auto fault = std::ranges::find_if(errors, &TKE::FileError::IsError);
    if (fault == errors.end())
        return true;
    QMessageBox question(QMessageBox::Warning, tr("Save Job"),
                         tr("%1 is no job that can be read.").arg(QFileInfo(fileName).fileName()), QMessageBox::Cancel,
                         &m_window);
    question.setInformativeText(fault->ToText());
    QPushButton* overwrite = question.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    question.setDefaultButton(QMessageBox::Cancel);
    question.exec();
    return question.clickedButton() == overwrite;
}

bool Saving::SaveElsewhere(const QString& fileName, const TKE::FileError& error)
{
    const QString text = tr("%1 could not be saved.").arg(QFileInfo(fileName).fileName());
    m_window.Messages().Add(TKE::Severity::Error, text, error.ToText());
    m_window.ShowMessages();
    if (!m_window.isVisible())
        return false;
    QMessageBox box(QMessageBox::Critical, tr("Save Job"), text + "\n\n" + error.ToText(), QMessageBox::Ok, &m_window);
    box.setInformativeText(tr("Your changes are still there. They can be saved in another place."));
    QPushButton* elsewhere = box.addButton(tr("Save &As..."), QMessageBox::ActionRole);
    box.setDefaultButton(elsewhere);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
    return box.clickedButton() == elsewhere && SaveAs();
}

void Saving::ReportRefusals()
{
    if (!m_window.Dialog().GetDialog())
        return;
    for (QLineEdit* field : m_window.Dialog().GetDialog()->findChildren<QLineEdit*>())
    {
        // The field itself, or the line edit of a spin box.
        const auto* entry = dynamic_cast<const TKE::TextEntry*>(field);
        if (!entry)
            entry = dynamic_cast<const TKE::TextEntry*>(field->parentWidget());
        if (entry && !entry->GetRefusal().isEmpty())
            m_window.Messages().Add(TKE::Severity::Warning,
                                    tr("The entry \"%1\" was refused and is not saved").arg(field->text()),
                                    entry->GetRefusal());
    }
}

} // namespace JOBEDIT
