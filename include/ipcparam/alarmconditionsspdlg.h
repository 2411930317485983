#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

class PanelRows;

/// When the match with a short-time profile raises an alarm: five percentages, each with a switch of its own. A
/// threshold can be edited whether its switch is on or off.
class IPCPARAM_EXPORT AlarmConditionsSPDlg : public ParameterDlg
{
    Q_OBJECT

public:
    AlarmConditionsSPDlg(const QString& basePath, QWidget* parent);

private:
    void BuildPanel();
    void AddCondition(int row, const char* question, const QString& switchKey, const QString& thresholdKey);
};

} // namespace TKE
