#pragma once

#include "ipcparam/exciterpanel.h"

namespace TKE
{

/// The general tab of an exciter chain: the mode, autostart, and the parts of the chain that run. The mode decides
/// which parts may be chosen: building the panel, and each change of the mode, switches them and autostart as the mode
/// asks; the user may clear a part afterwards. The four parts lie one level above the base path.
class IPCPARAM_EXPORT ExciterGeneralDlg : public ExciterPanel
{
    Q_OBJECT

public:
    /// `loadFlag` and `rowFlag` are those of ExciterPanel.
    ExciterGeneralDlg(const QString& basePath, bool loadFlag, bool rowFlag, QWidget* parent, bool readOnly);

protected:
    void BuildSpecialPanel() override;
    void ExciterModeChanged() override;

private:
    ValuePtr m_autostartPtr{this};
};

} // namespace TKE
