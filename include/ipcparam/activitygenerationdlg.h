#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// How signal activities are made from the detection results of a job: durations and scores by kind of detector, the
/// session, and what is written to the database. Each flag tells of a kind of detector that the job has.
class IPCPARAM_EXPORT ActivityGenerationDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// The values lie one level above `itemPath`.
    ActivityGenerationDlg(const QString& itemPath, QWidget* parent, bool hasEnergy, bool hasLevel,
                          bool hasConventionalDetection, bool readOnly);

private:
    void BuildPanel();
    void BuildLevel(int row);
    void BuildEnergy(int row);
    void BuildConventionalDetection();
    void BuildSession(int row);
    void BuildDatabase(int row);
    bool HasSession() const { return m_hasEnergy || m_hasLevel; }

    bool m_hasEnergy;
    bool m_hasLevel;
    bool m_hasConventionalDetection;
};

} // namespace TKE
