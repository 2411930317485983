#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// Detection lock timing and dwell time, for a TDS header or for the header of a DDC channel set.
class GeneralDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `tdsHeader` chooses the header: both have the same rows, with keys of their own.
    GeneralDlg(const QString& basePath, QWidget* parent, bool readOnly, bool tdsHeader);

private:
    void BuildPanel();

    QString m_prefix;
};

} // namespace TKE
