#pragma once

#include "jobmodel/parameter.h"

#include <QHash>
#include <memory>
#include <vector>

namespace TKE
{

/// Frequency bands that have descriptors of their own.
enum class Band
{
    Hf,
    Vuhf,
    Both, ///< of a group: serves either band
};

/// The value `target` is enabled while the value `source` of the same node has one of `keys` (a boolean: 0 or 1), else
/// disabled.
struct ParameterRule
{
    QString target;
    QString source;
    std::vector<int> keys;
};

/// A group of parameters that a node of a job has as a whole. Owned by the job model.
class ParameterGroup
{
public:
    using Parameter = JOBXMLGENERATOR::Parameter;

    const QString& GetName() const { return m_name; }
    const QString& GetTitle() const { return m_title; }
    Band GetBand() const { return m_band; }

    /// In the order of the descriptor file.
    const std::vector<std::unique_ptr<Parameter>>& GetParameters() const { return m_parameters; }
    /// Null when the group has no such parameter.
    const Parameter* FindParameter(const QString& uniqueName) const { return m_byName.value(uniqueName); }
    const std::vector<ParameterRule>& GetRules() const { return m_rules; }

private:
    friend class JobModelReader;

    QString m_name;
    QString m_title;
    Band m_band = Band::Both;
    std::vector<std::unique_ptr<Parameter>> m_parameters;
    QHash<QString, const Parameter*> m_byName;
    std::vector<ParameterRule> m_rules;
};

} // namespace TKE
