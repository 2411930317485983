#include "reportactions.h"

#include "dialogpane.h"
#include "mainwindow.h"
#include "messagelist.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr qint64 manyRows = 50'000; // of a PDF, about 800 pages

} // namespace

ReportActions::ReportActions(MainWindow& window) : QObject(&window), m_window(window)
{
    auto* report = new QAction(tr("&Report..."), this);
    report->setShortcut(QKeySequence::Print);
    connect(report, &QAction::triggered, this, &ReportActions::Slot_OnReport);
    // Above the separator and the action that end the menu.
    const auto actions = window.FileMenu()->actions();
    window.FileMenu()->insertAction(actions.value(actions.size() - 2), report);
}

void ReportActions::Slot_OnReport()
{
    CommitPendingEdit();
    QDialog dialog(&m_window);
    dialog.setObjectName("reportDialog");
    dialog.setWindowTitle(tr("Report"));
    auto* text = new QLabel(tr("The job as a document: all values of all chains, with their units."), &dialog);
    text->setWordWrap(true);
    auto* pdf = new QRadioButton(tr("&PDF, for printing"), &dialog);
    auto* html = new QRadioButton(tr("&HTML, for reading and searching"), &dialog);
    pdf->setChecked(true);
    auto* changes = new QCheckBox(tr("&Only values that differ from their default"), &dialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, &dialog);
    buttons->addButton(tr("&Save As..."), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    for (QWidget* widget : std::initializer_list<QWidget*>{text, pdf, html, changes, buttons})
        layout->addWidget(widget);
    if (dialog.exec() != QDialog::Accepted)
        return;

    const QString suffix = pdf->isChecked() ? ".pdf" : ".html";
    const QString job = m_window.Document().GetFileName();
    const QString start =
        job.isEmpty() ? tr("report") + suffix
                      : QDir(QFileInfo(job).absolutePath()).filePath(QFileInfo(job).completeBaseName() + suffix);
    QString fileName = QFileDialog::getSaveFileName(&m_window, tr("Save Report"), start,
                                                    pdf->isChecked() ? tr("PDF documents (*.pdf)")
                                                                     : tr("HTML documents (*.html *.htm)"));
    if (fileName.isEmpty())
        return;
    if (QFileInfo(fileName).suffix().isEmpty())
        fileName += suffix;
    ReportOptions options{changes->isChecked()};
    if (MayBeLong(fileName, options))
        WriteTo(fileName, options);
}

bool ReportActions::MayBeLong(const QString& fileName, ReportOptions& options)
{
    if (QFileInfo(fileName).suffix().toLower() != "pdf" || options.onlyChanges)
        return true;
    const qint64 rows = qint64(TKE::Tree::Instance()->ValueCount());
    if (rows <= manyRows)
        return true;
    QMessageBox question(QMessageBox::Question, tr("Report"),
                         tr("The job has %1 values: a PDF of some %2 pages.")
                             .arg(QLocale().toString(rows), QLocale().toString(rows / 55)),
                         QMessageBox::Cancel, &m_window);
    question.setInformativeText(tr("With only the values that differ from their default it is shorter. HTML is written "
                                   "within seconds at any size."));
    QPushButton* changes = question.addButton(tr("Only &Changes"), QMessageBox::AcceptRole);
    question.addButton(tr("&All Values"), QMessageBox::AcceptRole);
    question.setDefaultButton(changes);
    question.exec();
    options.onlyChanges = question.clickedButton() == changes;
    return question.clickedButton() && question.clickedButton() != question.button(QMessageBox::Cancel);
}

bool ReportActions::WriteTo(const QString& fileName, ReportOptions options)
{
    QProgressDialog progress(tr("Writing %1").arg(QFileInfo(fileName).fileName()), tr("Cancel"), 0, 1000, &m_window);
    progress.setWindowTitle(tr("Report"));
    progress.setWindowModality(Qt::WindowModal); // nobody edits meanwhile
    progress.setMinimumDuration(500);
    const ReportProgress tell = [&](qint64 done, qint64 all)
    {
        progress.setValue(all > 0 ? int(done * 1000 / all) : 1000);
        return !progress.wasCanceled();
    };
    TKE::FileError error;
    if (WriteReport(m_window.Document(), fileName, options, tell, error))
    {
        m_window.statusBar()->showMessage(tr("%1 written").arg(fileName), 5000);
        return true;
    }
    progress.reset();
    if (error.reason.isEmpty())
    {
        m_window.statusBar()->showMessage(tr("The report was cancelled."), 5000);
        return false;
    }
    const QString text = tr("The report could not be written.");
    m_window.Messages().Add(TKE::Severity::Error, text, error.ToText());
    if (m_window.isVisible())
        QMessageBox(QMessageBox::Critical, tr("Report"), text + "\n\n" + error.ToText(), QMessageBox::Ok, &m_window)
            .exec();
    return false;
}

} // namespace JOBEDIT
