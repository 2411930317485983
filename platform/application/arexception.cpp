#include "application/arexception.h"

namespace TKE
{

ARException::ARException(const QString& text, const QString& sourceFile, const QString& functionName,
                         const QString& signature, int line)
    : m_text(text)
    , m_sourceFile(sourceFile)
    , m_functionName(functionName)
    , m_signature(signature)
    , m_line(line)
    , m_what(QStringLiteral("%1 (%2, %3:%4)").arg(text, functionName, sourceFile, QString::number(line)).toUtf8())
{
}

} // namespace TKE
