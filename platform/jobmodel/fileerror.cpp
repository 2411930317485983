#include "jobmodel/fileerror.h"

namespace TKE
{

QString FileError::ToText() const
{
    QString text = file;
    if (line > 0)
        text += QStringLiteral(":%1:%2").arg(line).arg(column);
    for (const QString& part : {itemPath, reason})
    {
        if (part.isEmpty())
            continue;
        if (!text.isEmpty())
            text += QStringLiteral(": ");
        text += part;
    }
    return text;
}

} // namespace TKE
