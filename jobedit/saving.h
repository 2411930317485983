#pragma once

#include "jobdocument.h"

#include <QCoreApplication>

namespace JOBEDIT
{

class MainWindow;

/// Saves the window's job, and asks before anything is lost by that or without it. What is still being typed is
/// committed first. A save that fails is shown with its reason and leads to another place, if the user wants.
class Saving
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Saving)

public:
    explicit Saving(MainWindow& window);

    // All return whether the job is saved.
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& fileName);
    /// Asks what becomes of unsaved changes. False: leave everything as it is.
    bool MayGo();
    /// Tells of entries that stand in the dialog but were refused: they are not what is saved.
    void ReportRefusals();

private:
    /// False: the user does not want to overwrite what somebody else wrote.
    bool MayOverwrite();
    /// False: the user does not want to lose what stands in the file, which is no job or was written by somebody else.
    bool MayReplace(const QString& fileName);
    bool SaveElsewhere(const QString& fileName, const TKE::FileError& error);

    MainWindow& m_window;
    JobDocument& m_document;
};

} // namespace JOBEDIT
