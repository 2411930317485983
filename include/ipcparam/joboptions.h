#pragma once

#include "ipcparam/export.h"

#include <QString>

namespace TKE
{

/// What the resource panel is told about the resource: its kind. "HF", "VUHF", "HF_WB", "VUHF_WB", "DF", "DECODER", "EXCITER" and
/// "RECORDER" have options of their own; any other text has none.
class IPCPARAM_EXPORT JobOptions
{
public:
    explicit JobOptions(const QString& text = {})
        : m_text(text)
    {
    }
    virtual ~JobOptions() = default;

    const QString& GetText() const { return m_text; }

private:
    QString m_text;
};

} // namespace TKE
