#pragma once

#include "ipcparam/exciterpanel.h"

#include <deque>
#include <initializer_list>

namespace TKE
{

/// Base of the panels of the wide-band unit that show, below their common rows, the same rows for each channel (range,
/// emitter). The values of a channel lie in a node of its own, which is named by the noun and the channel's number.
class WDEPanel : public ExciterPanel
{
    Q_OBJECT

protected:
    WDEPanel(const QString& basePath, int channelCount, bool jobContext, bool vuhf, int panelKind, QWidget* parent,
             const QString& className, bool readOnly);

    /// Adds a line and, below it, a scroll area with one group box per channel. To be called after the common rows.
    /// `noun` is given untranslated.
    void BuildChannels(const char* noun, std::initializer_list<const Parameter*> parameters);

private:
    int m_channelCount;
    std::deque<ValuePtr> m_channelValues; // addresses stay
};

} // namespace TKE
