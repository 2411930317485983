#include "lockquestion.h"

#include "mainwindow.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace JOBEDIT
{

LockQuestion::Choice LockQuestion::Ask(MainWindow& window, const QString& title, const QString& fileName,
                                       const JobLock& lock, const QString& other, const QString& explanation)
{
    QMessageBox question(QMessageBox::Question, title,
                         tr("%1 is open in another editor: %2.").arg(QFileInfo(fileName).fileName(), lock.ToText()),
                         QMessageBox::Cancel, &window);
    QPushButton* harmless = question.addButton(other, QMessageBox::AcceptRole);
    question.setDefaultButton(harmless);
    const QPushButton* takeOver = nullptr;
    QString information = explanation;
    if (lock.IsOutOfSight())
    {
        takeOver = question.addButton(tr("&Take Over"), QMessageBox::DestructiveRole);
        information += "\n\n" + tr("It cannot be told from here whether that editor is still there. Take the file over "
                                   "only when you know that it is not: otherwise one of you overwrites what the other "
                                   "one saves.");
    }
    question.setInformativeText(information);
    question.exec();
    if (question.clickedButton() == harmless)
        return Choice::Other;
    if (!takeOver || question.clickedButton() != takeOver)
        return Choice::Cancelled;
    QString reason;
    if (lock.Remove(fileName, reason))
        return Choice::TakenOver;
    window.Fail(tr("%1 could not be taken over.").arg(QFileInfo(fileName).fileName()),
                {.file = fileName, .reason = reason});
    return Choice::Cancelled;
}

} // namespace JOBEDIT
