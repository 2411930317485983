#pragma once

#include "value/valuebase.h"

#include <QCoreApplication>
#include <QLocale>

namespace JOBEDIT
{

/// Sets values from texts as people write them.
class TypedValue
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::TypedValue)

public:
    /// Numbers as the editors take them, with the value's unit or without it; items by name or key; moments in either
    /// form; lists and sets joined with ";". False with the reason, and nothing changed, when the text does not fit.
    static bool Set(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason);

private:
    static bool SetNumber(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason);
    static bool SetBool(TKE::ValueBase& value, const QString& text, QString& reason);
    static bool SetSelection(TKE::ValueBase& value, const QString& text, QString& reason);
    static bool SetList(TKE::ValueBase& value, const QString& text, const QLocale& locale, QString& reason);
};

} // namespace JOBEDIT
