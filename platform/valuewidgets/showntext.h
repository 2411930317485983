#pragma once

#include "value/valuebase.h"

#include <QLocale>

namespace TKE
{

/// The content of a value as people read it: numbers in the locale without group separators, date and time as
/// "dd.MM.yyyy hh:mm:ss".
class ShownText
{
public:
    static QString Of(const ValueBase& value, const QLocale& locale);

    static const QString& GetDateTimeFormat();
    /// Reads such a date and time and gives its stored form; nothing when it is none. An empty text is no date and
    /// accepted.
    static std::optional<QString> DateTimeToStored(const QString& text);
};

} // namespace TKE
