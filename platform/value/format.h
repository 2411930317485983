#pragma once

#include "value/valuedescriptor.h"

#include <QDateTime>
#include <QList>
#include <charconv>
#include <string>
#include <string_view>

namespace TKE
{

/// Conversions between a content and its stored form: UTF-8, locale-free. Read refuses what is not exactly one such
/// content and says why.
namespace Stored
{
void Append(std::string& out, bool content);
void Append(std::string& out, int content);
void Append(std::string& out, qint64 content);
void Append(std::string& out, double content); ///< shortest decimal that reads back the same
void Append(std::string& out, const QString& content);
void Append(std::string& out, const QDateTime& content);
void Append(std::string& out, const QList<double>& content); ///< joined with ";"

bool Read(std::string_view utf8, bool& content, QString* reason);
bool Read(std::string_view utf8, int& content, QString* reason);
bool Read(std::string_view utf8, qint64& content, QString* reason);
bool Read(std::string_view utf8, double& content, QString* reason);
bool Read(std::string_view utf8, QString& content, QString* reason);
bool Read(std::string_view utf8, QDateTime& content, QString* reason);
bool Read(std::string_view utf8, QList<double>& content, QString* reason);
} // namespace Stored

/// What all formats share: their text is the stored form as QString.
template <class T, ValueKind Kind> struct FormatBase
{
    static constexpr ValueKind kind = Kind;

    static QString ToText(const T& content)
    {
        std::string text;
        Stored::Append(text, content);
        return QString::fromUtf8(text.data(), qsizetype(text.size()));
    }
    static bool FromText(const QString& text, T& content, QString* reason)
    {
        const QByteArray utf8 = text.toUtf8();
        return Stored::Read({utf8.constData(), size_t(utf8.size())}, content, reason);
    }
    static bool IsAccepted(const T&, const ValueDescriptor&, QString*) { return true; }
    static bool IsSame(const T& left, const T& right) { return left == right; }
};

/// Formats of numbers check the range of the descriptor.
template <class T, ValueKind Kind> struct FormatNumber : FormatBase<T, Kind>
{
    static bool IsAccepted(const T& content, const ValueDescriptor& descriptor, QString* reason)
    {
        return descriptor.Accepts(double(content), reason);
    }
};

template <class T> struct FormatBool : FormatBase<T, ValueKind::Bool>
{
};
template <class T> struct FormatInt : FormatNumber<T, ValueKind::Int>
{
};
template <class T> struct FormatDouble : FormatNumber<T, ValueKind::Double>
{
};
template <class T> struct FormatFrequency : FormatNumber<T, ValueKind::Frequency>
{
};
/// Date and time are what the clock on the wall shows, wherever the file is read: read as UTC, which skips no hour, and
/// compared as they stand.
template <class T> struct FormatDateTime : FormatBase<T, ValueKind::DateTime>
{
    static bool IsSame(const T& left, const T& right)
    {
        return FormatDateTime::ToText(left) == FormatDateTime::ToText(right);
    }
};

template <class T> struct FormatString : FormatBase<T, ValueKind::Text>
{
    static QString ToText(const T& content) { return content; }
    static bool FromText(const QString& text, T& content, QString*)
    {
        content = text;
        return true;
    }
};

template <class T> struct FormatDoubleList : FormatBase<T, ValueKind::DoubleList>
{
    static bool IsAccepted(const T& content, const ValueDescriptor& descriptor, QString* reason)
    {
        return std::all_of(content.begin(), content.end(),
                           [&](double number) { return descriptor.Accepts(number, reason); });
    }
};

/// How a content of type T, shown in Format, stands in files.
template <class T, class Format> struct StreamFormat
{
    static void Append(std::string& out, const T& content) { Stored::Append(out, content); }
    static bool Read(std::string_view utf8, T& content, QString* reason) { return Stored::Read(utf8, content, reason); }
};

} // namespace TKE
