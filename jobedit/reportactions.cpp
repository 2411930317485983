#include "reportactions.h"

#include "dialogpane.h"
#include "longwork.h"
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
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr qint64 rowsPerPage = 47;
constexpr qint64 manyRows = 1000 * rowsPerPage; // on pages, without being asked

} // namespace

ReportActions::ReportActions(MainWindow& window) : QObject(&window), m_window(window)
{
    auto* report = new QAction(tr("Repor&t..."), this);
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
    constexpr int print = QDialog::Accepted + 1;
    connect(buttons->addButton(tr("P&rint..."), QDialogButtonBox::ActionRole), &QPushButton::clicked, &dialog,
            [&dialog] { dialog.done(print); });
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    for (QWidget* widget : std::initializer_list<QWidget*>{text, pdf, html, changes, buttons})
        layout->addWidget(widget);
    const int chosen = dialog.exec();
    ReportOptions options{changes->isChecked()};
    if (chosen == print && MayBeLong(options))
        Print(options);
    if (chosen != QDialog::Accepted)
        return;
    const QString fileName = AskFileName(pdf->isChecked());
    if (!fileName.isEmpty() && (!pdf->isChecked() || MayBeLong(options)))
        WriteTo(fileName, options);
}

QString ReportActions::AskFileName(bool isPdf)
{
    const QString suffix = isPdf ? ".pdf" : ".html";
    const QFileInfo job(m_window.Document().GetFileName());
    const QString start = job.fileName().isEmpty() ? tr("report") + suffix
                                                   : QDir(job.absolutePath()).filePath(job.completeBaseName() + suffix);
    const QString fileName = QFileDialog::getSaveFileName(
        &m_window, tr("Save Report"), start, isPdf ? tr("PDF documents (*.pdf)") : tr("HTML documents (*.html *.htm)"));
    return fileName.isEmpty() || !QFileInfo(fileName).suffix().isEmpty() ? fileName : fileName + suffix;
}

bool ReportActions::MayBeLong(ReportOptions& options)
{
    const qint64 rows = qint64(TKE::Tree::Instance()->ValueCount());
    if (options.onlyChanges || rows <= manyRows)
        return true;
    QMessageBox question(QMessageBox::Question, tr("Report"),
                         tr("The job has %1 values: some %2 pages.")
                             .arg(QLocale().toString(rows), QLocale().toString(rows / rowsPerPage)),
                         QMessageBox::Cancel, &m_window);
    question.setInformativeText(tr("With only the values that differ from their default it is shorter. HTML is written "
                                   "within seconds at any size."));
    QPushButton* changes = question.addButton(tr("Only &Changes"), QMessageBox::AcceptRole);
    question.addButton(tr("&All Values"), QMessageBox::AcceptRole);
    question.setDefaultButton(changes);
    question.exec();
    options.onlyChanges = question.clickedButton() == changes;
    return question.clickedButton() != question.button(QMessageBox::Cancel);
}

bool ReportActions::WithProgress(const QString& text, const std::function<bool(const ReportProgress&)>& work)
{
    LongWork progress(text, &m_window); // nobody edits meanwhile
    return work([&](qint64 done, qint64 all) { return progress.Progress(done, all); });
}

bool ReportActions::WriteTo(const QString& fileName, const ReportOptions& options)
{
    TKE::FileError error;
    const bool written =
        WithProgress(tr("Writing %1").arg(QFileInfo(fileName).fileName()), [&](const ReportProgress& progress)
                     { return WriteReport(m_window.Document(), fileName, options, progress, error); });
    if (written)
        m_window.statusBar()->showMessage(tr("%1 written").arg(fileName), 5000);
    else if (error.reason.isEmpty())
        m_window.statusBar()->showMessage(tr("The report was cancelled."), 5000);
    else
        Fail(tr("The report could not be written."), error.ToText());
    return written;
}

void ReportActions::Print(const ReportOptions& options)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(tr("Job %1").arg(QFileInfo(m_window.Document().GetFileName()).fileName()));
    if (QPrintDialog(&printer, &m_window).exec() != QDialog::Accepted)
        return;
    const bool printed = WithProgress(tr("Printing"), [&](const ReportProgress& progress)
                                      { return PrintReport(m_window.Document(), printer, options, progress); });
    if (printed)
        return m_window.statusBar()->showMessage(tr("The report was given to the printer."), 5000);
    if (printer.printerState() != QPrinter::Error)
        return m_window.statusBar()->showMessage(tr("The report was cancelled."), 5000);
    Fail(tr("The report could not be printed."), printer.printerName());
}

void ReportActions::Fail(const QString& text, const QString& details)
{
    m_window.Messages().Add(TKE::Severity::Error, text, details);
    if (m_window.isVisible())
        QMessageBox(QMessageBox::Critical, tr("Report"), text + "\n\n" + details, QMessageBox::Ok, &m_window).exec();
}

} // namespace JOBEDIT
