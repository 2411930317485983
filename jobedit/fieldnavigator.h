#pragma once

#include "chains.h"

#include <QCoreApplication>
#include <optional>

class QTabWidget;
class QWidget;

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

class MainWindow;

/// Brings the field of a value into view and gives it the keyboard: selects the node, the form and the tab.
///
/// A value is not always shown by the dialog of its own node: those of antennas, spectra and activities stand at nodes
/// above, those of channels below. The dialog shown already goes first, then that of the nearest node, then those below
/// it.
class FieldNavigator
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::FieldNavigator)

public:
    explicit FieldNavigator(MainWindow& window) : m_window(window) {}

    /// False when no dialog shows the value; the window stays as it is then.
    bool GoTo(const QString& valuePath);
    /// The same; what no dialog shows is told in the status bar, with the nearest node selected.
    bool GoToOrTell(const QString& valuePath);

private:
    struct Place
    {
        QString node;
        Form form;
    };
    /// Index of the node that the value is at or below; -1 when the job has none.
    int HomeOf(const QString& valuePath) const;
    /// Where the value may be shown; the likelier first.
    std::vector<Place> Candidates(const TKE::ValueBase& value) const;
    /// Where it can be edited or, when it can be nowhere, where it is seen.
    std::optional<Place> FindPlace(const QString& valuePath) const;

    MainWindow& m_window;
};

} // namespace JOBEDIT
