#pragma once

#include "ipcparam/export.h"

#include <QString>

namespace TKE
{

/// What the resource panel is told about the job.
class IPCPARAM_EXPORT JobOptions
{
public:
    explicit JobOptions(const QString& option = {})
        : m_option(option)
    {
    }
    virtual ~JobOptions() = default;

    const QString& GetOption() const { return m_option; }

private:
    QString m_option;
};

} // namespace TKE
