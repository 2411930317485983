#pragma once

#include "parameterset.h"
#include "presets.h"

#include <QObject>

class QMenu;

namespace JOBEDIT
{

class MainWindow;

/// Edit > copy the parameters of a tab or a chain, paste them into the selected chains, and keep them as presets.
/// What does not fit is named among the messages.
class ReuseActions : public QObject
{
    Q_OBJECT

public:
    explicit ReuseActions(MainWindow& window);

    void CopyTab();
    void CopyChain();
    void Paste();
    void ApplyPreset(const QString& name);

private:
    void FillPresetMenu();
    void SaveAsPreset(const std::optional<ParameterSet>& set);
    void Apply(const ParameterSet& set, const QString& stepName);
    void ToClipboard(const std::optional<ParameterSet>& set);
    /// Nothing, which the user is told, where there is none.
    std::optional<ParameterSet> TabParameters() const;
    std::optional<ParameterSet> ChainParameters() const;
    void Tell(const QString& text) const;

    MainWindow& m_window;
    Presets m_presets;
    QMenu* m_presetMenu;
};

} // namespace JOBEDIT
