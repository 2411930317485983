#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace TKE
{

/// A failure with the place it comes from. Thrown by services that cannot go on; callers catch it, it never crosses the
/// event loop.
class ARException : public std::exception
{
public:
    /// `functionName` is the plain name, `signature` the name as the thrower wants it traced (often the same text
    /// again).
    ARException(const QString& text, const QString& sourceFile, const QString& functionName, const QString& signature,
                int line);

    const QString& GetText() const { return m_text; }
    const QString& GetSourceFile() const { return m_sourceFile; }
    const QString& GetFunctionName() const { return m_functionName; }
    const QString& GetSignature() const { return m_signature; }
    int GetLine() const { return m_line; }

    /// Text and place in one line, UTF-8. Valid as long as the exception.
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_text;
    QString m_sourceFile;
    QString m_functionName;
    QString m_signature;
    int m_line;
    QByteArray m_what;
};

} // namespace TKE
