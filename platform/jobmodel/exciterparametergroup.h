#pragma once

#include "application/qtcompat.h"
#include "jobmodel/jobmodel.h"

#include <QStringList>
#include <deque>
#include <initializer_list>
#include <vector>

namespace TKE
{

/// The parameters that one exciter panel shows, found in a model once. A parameter that the model lacks is stood in for
/// by one that has the key and no control, so that nobody has to ask.
class ExciterParameterGroup
{
public:
    using Parameter = JOBXMLGENERATOR::Parameter;

    /// Takes the parameters `keys` of the group `name`; `model` outlives this.
    ExciterParameterGroup(const JobModel& model, Band band, const QString& name,
                          std::initializer_list<QLatin1StringView> keys);
    ExciterParameterGroup(const ExciterParameterGroup&) = delete;
    ExciterParameterGroup& operator=(const ExciterParameterGroup&) = delete;

    /// In the order of the panel, stand-ins included.
    const std::vector<Parameter*>& GetParameters() const { return m_parameters; }
    const QString& GetName() const { return m_name; }
    /// The keys of the parameters that the model lacks.
    const QStringList& GetMissing() const { return m_missing; }

    /// The parameter with that key, which is one of the group.
    Parameter& Get(QLatin1StringView key) const;

private:
    QString m_name;
    std::vector<Parameter*> m_parameters; // the model's or those of m_standIns
    std::deque<Parameter> m_standIns;     // addresses stay
    QStringList m_missing;
};

} // namespace TKE
