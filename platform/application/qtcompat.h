// Lets sources written for Qt 6 compile with Qt 5.15: what Qt 6 added, by the same names. Empty with Qt 6.
#pragma once

#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QByteArray>
#include <QHash>
#include <QLibraryInfo>
#include <QString>
#include <QStringView>

using QLatin1StringView = QLatin1String;

namespace Qt::StringLiterals
{
constexpr QLatin1String operator""_L1(const char* text, size_t size) noexcept { return QLatin1String(text, int(size)); }
/// The text itself is not copied.
inline QString operator""_s(const char16_t* text, size_t size)
{
    return QString::fromRawData(reinterpret_cast<const QChar*>(text), int(size));
}
} // namespace Qt::StringLiterals

template <typename... Values>
size_t qHashMulti(size_t seed, const Values&... values)
{
    const auto mix = [&seed](size_t hash) { seed ^= hash + 0x9e3779b9 + (seed << 6) + (seed >> 2); };
    (mix(qHash(values, 0)), ...);
    return seed;
}

inline quint16 qChecksum(const QByteArray& data) { return qChecksum(data.constData(), uint(data.size())); }

#endif
