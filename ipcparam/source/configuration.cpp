#include "configuration.h"

#include "application/arexception.h"
#include "application/cfgcenter.h"
#include "keys/keys.h"

namespace TKE
{

IPCParamConfiguration::IPCParamConfiguration(const QString& applicationName)
    : m_applicationName(applicationName)
{
    if (m_applicationName.isEmpty())
        return;
    CfgCenter& center = *CfgCenter::Instance();
    const auto application = center.CreateCfg(m_applicationName, cfgUser, QString());
    const auto jobManagement = center.CreateCfg(QStringLiteral("JobManagement"), cfgSystem, QString());
    if (!application || !jobManagement)
        throw ARException("no configuration available", "ipcparam/source/configuration", "Configuration", "Configuration", 62);
    m_jobModelXMLDirectory = jobManagement->GetString(Keys::JobModelXMLDir, QString());
    if (m_jobModelXMLDirectory.isEmpty())
        m_jobModelXMLDirectory = application->GetString(Keys::JobModelXMLDir, QString());
}

} // namespace TKE
