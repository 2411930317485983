// Lets sources written for Qt 6 compile with Qt 5.15: what Qt 6 added, by the same names. Where it renamed members of a class that
// sources call, QtCompat has a function for both.
#pragma once

#include <QtGlobal>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QString>

using QLatin1StringView = QLatin1String;

namespace Qt
{

namespace StringLiterals
{
constexpr QLatin1String operator""_L1(const char* text, size_t size) noexcept
{
    return QLatin1String(text, int(size));
}
/// The text itself is not copied.
inline QString operator""_s(const char16_t* text, size_t size)
{
    return QString::fromRawData(reinterpret_cast<const QChar*>(text), int(size));
}
} // namespace StringLiterals

constexpr int operator|(Modifier modifier, Key key)
{
    return int(modifier) | int(key);
}

} // namespace Qt

template <class... Values> size_t qHashMulti(size_t seed, const Values&... values)
{
    const auto mix = [&seed](size_t hash) { seed ^= hash + 0x9e3779b9 + (seed << 6) + (seed >> 2); };
    (mix(qHash(values, 0)), ...);
    return seed;
}

inline quint16 qChecksum(const QByteArray& data)
{
    return qChecksum(data.constData(), uint(data.size()));
}

// Of Qt Test.
#define QVERIFY_THROWS_EXCEPTION(type, ...) QVERIFY_EXCEPTION_THROWN(__VA_ARGS__, type)

#endif

namespace QtCompat
{

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
template <class MouseEvent> auto Place(const MouseEvent& event) { return event.localPos(); }
template <class MouseEvent> auto GlobalPlace(const MouseEvent& event) { return event.screenPos(); }
template <class KeyEvent> auto Keys(const KeyEvent& event) { return int(event.modifiers()) | event.key(); }
/// Why it failed, in the user's language.
template <class Device> QString ErrorText(const Device& device)
{
    return QCoreApplication::translate("QIODevice", device.errorString().toUtf8().constData());
}
/// Before anything is read.
template <class Settings> void UseUtf8(Settings& settings)
{
    settings.setIniCodec("UTF-8");
}
#else
template <class MouseEvent> auto Place(const MouseEvent& event) { return event.position(); }
template <class MouseEvent> auto GlobalPlace(const MouseEvent& event) { return event.globalPosition(); }
template <class KeyEvent> auto Keys(const KeyEvent& event) { return event.keyCombination(); }
template <class Device> auto ErrorText(const Device& device)
{
    return device.errorString();
}
template <class Settings> void UseUtf8(Settings&) {}
#endif

} // namespace QtCompat
