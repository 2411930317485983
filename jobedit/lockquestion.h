#pragma once

#include "joblock.h"

#include <QCoreApplication>

namespace JOBEDIT
{

class MainWindow;

/// Asks what becomes of a file that another editor has open.
class LockQuestion
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::LockQuestion)

public:
    enum class Choice
    {
        Cancelled,
        Other,     ///< what the caller offers
        TakenOver, ///< the lock of an editor that runs out of sight is gone
    };
    /// `other` is the text of the button that does no harm. What cannot be removed is told.
    static Choice Ask(MainWindow& window, const QString& title, const QString& fileName, const JobLock& lock,
                      const QString& other, const QString& explanation);
};

} // namespace JOBEDIT
