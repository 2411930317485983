#pragma once

#include "value/valuebase.h"

#include <QCoreApplication>

namespace JOBEDIT
{

/// What is said of a value in lists, menus and tool tips, in the application's locale.
class ValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ValueTexts)

public:
    /// A content of the value that is given in stored form, with its unit: items by name, frequencies in the unit that
    /// the program shows.
    static QString OfStored(const TKE::ValueBase& value, const QString& stored);
    static QString OfContent(const TKE::ValueBase& value) { return OfStored(value, value.GetStoredText()); }
    static QString OfDefault(const TKE::ValueBase& value) { return OfStored(value, value.GetDescriptor().defaultText); }
    /// Empty where there are no limits.
    static QString Range(const TKE::ValueBase& value);
    /// The label without mnemonics and colon; the key where there is none.
    static QString Label(const TKE::ValueBase& value);
};

} // namespace JOBEDIT
