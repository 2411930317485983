#pragma once

#include "jobmodel/fileerror.h"
#include "reportcontent.h"

class QPagedPaintDevice;

namespace JOBEDIT
{

/// Writes the job as a document, HTML or PDF as the suffix says (.html, .htm, .pdf). PDF needs a QGuiApplication for
/// its fonts, HTML none. False with `error` when that fails or is cancelled (the reason is empty then); a file of that
/// name stays as it was.
bool WriteReport(const JobDocument& document, const QString& fileName, const ReportOptions& options,
                 const ReportProgress& progress, TKE::FileError& error);

/// The same document on the pages of a printer. False when it was cancelled or could not be begun.
bool PrintReport(const JobDocument& document, QPagedPaintDevice& device, const ReportOptions& options,
                 const ReportProgress& progress);

} // namespace JOBEDIT
