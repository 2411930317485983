#include "jobmodel/exciterparametergroup.h"

#include <algorithm>

namespace TKE
{

ExciterParameterGroup::ExciterParameterGroup(const JobModel& model, Band band, const QString& name,
                                             std::initializer_list<QLatin1StringView> keys)
    : m_name(name)
{
    const ParameterGroup* group = model.FindGroup(name, band);
    const auto find = [&](QLatin1StringView key) -> Parameter*
    {
        if (!group)
            return nullptr;
        const auto& all = group->GetParameters();
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const auto& p) { return p->GetUniqueParameterName() == key; });
        return found != all.end() ? found->get() : nullptr;
    };

    m_parameters.reserve(keys.size());
    for (const QLatin1StringView key : keys)
    {
        Parameter* parameter = find(key);
        if (!parameter)
        {
            parameter = &m_standIns.emplace_back(QString(key));
            m_missing.append(key);
        }
        m_parameters.push_back(parameter);
    }
}

JOBXMLGENERATOR::Parameter& ExciterParameterGroup::Get(QLatin1StringView key) const
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&](const Parameter* p) { return p->GetUniqueParameterName() == key; });
    Q_ASSERT(found != m_parameters.end());
    return **found;
}

} // namespace TKE
