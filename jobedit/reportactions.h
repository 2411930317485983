#pragma once

#include "report.h"

#include <QObject>

namespace JOBEDIT
{

class MainWindow;

/// The report in the window of the editor: asks what it holds and where it goes, and shows the progress.
class ReportActions : public QObject
{
    Q_OBJECT

public:
    explicit ReportActions(MainWindow& window);

    /// False when it failed or was cancelled; the user has been told.
    bool WriteTo(const QString& fileName, ReportOptions options);

private:
    void Slot_OnReport();
    /// Asks before a PDF of thousands of pages. False: rather none.
    bool MayBeLong(const QString& fileName, ReportOptions& options);

    MainWindow& m_window;
};

} // namespace JOBEDIT
