#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

class JobOptions;

/// The options of one resource of a job, among them its licence options.
class IPCPARAM_EXPORT ResourceDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `options` names the kind of resource, which decides on the options; it is read during construction only.
    ResourceDlg(const QString& basePath, const JobOptions& options, QWidget* parent, bool readOnly);

private:
    void BuildPanel(const QString& kind);
    void BuildOptions(const QString& kind);
    void BuildLicence();
};

} // namespace TKE
