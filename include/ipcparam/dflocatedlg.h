#pragma once

#include "ipcparam/parameterdlg.h"

#include <memory>

namespace TKE
{

class PanelRules;

/// Requests direction finding and location of a chain's signal.
class IPCPARAM_EXPORT DFLocateDlg : public ParameterDlg
{
    Q_OBJECT

public:
    DFLocateDlg(const QString& basePath, QWidget* parent, bool readOnly);
    ~DFLocateDlg() override;

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel();
    void ApplyRules();

    std::unique_ptr<PanelRules> m_rules;
};

} // namespace TKE
