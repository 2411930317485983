#pragma once

#include "ipcparam/parameterdlg.h"

#include <memory>

namespace TKE
{

class PanelRules;
class TKEOptions;

/// Describes one job: text, author, dates, the kinds of resources that it may use, and its automatic workflow.
class IPCPARAM_EXPORT JobDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `options` says which kinds of resources and which workflow there are rows for; it is read during construction only.
    JobDlg(const QString& basePath, const TKEOptions& options, QWidget* parent, bool readOnly);
    ~JobDlg() override;

    void Update(Observable* source, TChangeCode code) override;

private:
    void BuildPanel(const TKEOptions& options);
    void BuildJob();
    void BuildResources(const TKEOptions& options);
    void BuildWorkflow(const TKEOptions& options);
    void ApplyRules();

    std::unique_ptr<PanelRules> m_rules;
};

} // namespace TKE
