#include "report.h"

#include "application/qtcompat.h"
#include "reporthtml.h"
#include "reportpages.h"

#include <QFileInfo>
#include <QSaveFile>

namespace JOBEDIT
{

bool WriteReport(const JobDocument& document, const QString& fileName, const ReportOptions& options,
                 const ReportProgress& progress, TKE::FileError& error)
{
    const auto fail = [&](const QString& reason)
    {
        error = {.file = fileName, .reason = reason};
        return false;
    };
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const bool isPdf = suffix == "pdf";
    if (!isPdf && suffix != "html" && suffix != "htm")
        return fail(ReportContent::tr("A report is written as .html or .pdf."));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return fail(QtCompat::ErrorText(file));
    const ReportProgress tell = progress ? progress : [](qint64, qint64) { return true; };
    ReportContent content(document, options, tell);
    if (content.WasCancelled() ||
        !(isPdf ? ReportPages(content, tell).Write(file) : ReportHtml(content, tell).Write(file)))
        return fail(file.error() == QFileDevice::NoError ? QString() : QtCompat::ErrorText(file));
    return file.commit() || fail(QtCompat::ErrorText(file));
}

bool PrintReport(const JobDocument& document, QPagedPaintDevice& device, const ReportOptions& options,
                 const ReportProgress& progress)
{
    ReportContent content(document, options, progress);
    return !content.WasCancelled() && ReportPages(content, progress).Print(device);
}

} // namespace JOBEDIT
