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
    bool WriteTo(const QString& fileName, const ReportOptions& options);

private:
    void Slot_OnReport();
    QString AskFileName(bool isPdf);
    /// Asks before thousands of pages, and whether only changes will do. False: rather nothing.
    bool MayBeLong(ReportOptions& options);
    bool WithProgress(const QString& text, const std::function<bool(const ReportProgress&)>& work);
    void Print(const ReportOptions& options);
    void Fail(const QString& text, const QString& details);

    MainWindow& m_window;
};

} // namespace JOBEDIT
