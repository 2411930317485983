#pragma once

#include <QString>

namespace TKE
{

/// Finds the directory of the job model's XML files in the configuration.
class IPCParamConfiguration
{
public:
    /// Reads the directory; an empty name reads nothing. Throws ARException when a configuration cannot be had.
    explicit IPCParamConfiguration(const QString& applicationName);
    virtual ~IPCParamConfiguration() = default;

    /// Empty when neither configuration names one; the built-in model serves then.
    const QString& GetJobModelXMLDirectory() const { return m_jobModelXMLDirectory; }

private:
    QString m_applicationName;
    QString m_jobModelXMLDirectory;
};

} // namespace TKE
