#include "value/format.h"

#include <QCoreApplication>
#include <array>

namespace TKE::Stored
{

namespace
{

bool Refuse(std::string_view utf8, const char* why, QString* reason)
{
    if (reason)
        *reason =
            QCoreApplication::translate("TKE::Format", why).arg(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
    return false;
}

template <class T> bool ReadNumber(std::string_view utf8, T& content, const char* why, QString* reason)
{
    T number{};
    const auto [end, error] = std::from_chars(utf8.data(), utf8.data() + utf8.size(), number);
    if (error != std::errc() || end != utf8.data() + utf8.size())
        return Refuse(utf8, why, reason);
    content = number;
    return true;
}

template <class T> void AppendNumber(std::string& out, T content)
{
    std::array<char, 32> digits;
    out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), content).ptr);
}

constexpr const char* notWhole = QT_TRANSLATE_NOOP("TKE::Format", "\"%1\" is not a whole number");
constexpr const char* notNumber = QT_TRANSLATE_NOOP("TKE::Format", "\"%1\" is not a number");
constexpr const char* notBool = QT_TRANSLATE_NOOP("TKE::Format", "\"%1\" is neither true nor false");
constexpr const char* notDateTime =
    QT_TRANSLATE_NOOP("TKE::Format", "\"%1\" is not a date and time (yyyy-MM-ddThh:mm:ss)");

} // namespace

void Append(std::string& out, bool content)
{
    out += content ? "true" : "false";
}
void Append(std::string& out, int content)
{
    AppendNumber(out, content);
}
void Append(std::string& out, qint64 content)
{
    AppendNumber(out, content);
}
void Append(std::string& out, double content)
{
    // Without an exponent, as people write numbers; only the very large and the very small do not fit.
    std::array<char, 32> digits;
    char* const end = digits.data() + digits.size();
    auto written = std::to_chars(digits.data(), end, content, std::chars_format::fixed);
    if (written.ec != std::errc())
        written = std::to_chars(digits.data(), end, content);
    out.append(digits.data(), written.ptr);
}

void Append(std::string& out, const QString& content)
{
    const QByteArray utf8 = content.toUtf8();
    out.append(utf8.constData(), size_t(utf8.size()));
}

void Append(std::string& out, const QDateTime& content)
{
    if (content.isValid())
        Append(out, content.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")));
}

void Append(std::string& out, const QList<double>& content)
{
    const char* separator = "";
    for (const double number : content)
    {
        out += separator;
        Append(out, number);
        separator = ";";
    }
}

bool Read(std::string_view utf8, bool& content, QString* reason)
{
    if (utf8 != "true" && utf8 != "false")
        return Refuse(utf8, notBool, reason);
    content = utf8 == "true";
    return true;
}

bool Read(std::string_view utf8, int& content, QString* reason)
{
    return ReadNumber(utf8, content, notWhole, reason);
}
bool Read(std::string_view utf8, qint64& content, QString* reason)
{
    return ReadNumber(utf8, content, notWhole, reason);
}
bool Read(std::string_view utf8, double& content, QString* reason)
{
    return ReadNumber(utf8, content, notNumber, reason);
}

bool Read(std::string_view utf8, QString& content, QString*)
{
    content = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    return true;
}

bool Read(std::string_view utf8, QDateTime& content, QString* reason)
{
    if (utf8.empty())
    {
        content = {};
        return true;
    }
    // By parts: as a local time it would not be valid in the hour that a time zone leaves out.
    const QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    const QDate date = QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
    const QTime time = QTime::fromString(text.mid(10), QStringLiteral("'T'hh:mm:ss"));
    if (!date.isValid() || !time.isValid())
        return Refuse(utf8, notDateTime, reason);
    content = QDateTime(date, time, Qt::UTC);
    return true;
}

bool Read(std::string_view utf8, QList<double>& content, QString* reason)
{
    QList<double> numbers;
    for (std::string_view rest = utf8; !rest.empty() || !numbers.empty();)
    {
        const size_t separator = rest.find(';');
        double number = 0;
        if (!Read(rest.substr(0, separator), number, reason))
            return false;
        numbers.append(number);
        if (separator == std::string_view::npos)
            break;
        rest.remove_prefix(separator + 1);
    }
    content = numbers;
    return true;
}

} // namespace TKE::Stored
