#pragma once

#include "value/valuebase.h"

#include <QJsonObject>

namespace JOBEDIT
{

/// How commands print values.
namespace CommandText
{

/// The content as people read it, or in stored form.
QString Of(const TKE::ValueBase& value, bool stored);
/// On one line and in one column: backslash, tab and line ends are written as \\, \t, \n and \r.
QString Escaped(QString text);
/// The keys are documented in docs/jobedit.1 and stay.
QJsonObject JsonOf(const TKE::ValueBase& value);

} // namespace CommandText

} // namespace JOBEDIT
