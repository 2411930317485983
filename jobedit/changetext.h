#pragma once

#include <QCoreApplication>

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

/// How changes of values are told to the user.
class ChangeText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ChangeText)

public:
    /// "Gain: AGC -> MGC". Where the value is gone, its path and the stored texts serve.
    static QString Of(const QString& path, const QString& before, const QString& after);
    /// The label of the value's rows, or its name where it has none.
    static QString LabelOf(const TKE::ValueBase& value);
    /// The content that `stored` stands for, as the dialogs show it, with its unit.
    static QString ShownOf(const TKE::ValueBase& value, const QString& stored);
};

} // namespace JOBEDIT
