#pragma once

#include <QCoreApplication>

namespace TKE
{
class ValueBase;
struct ValueDescriptor;
} // namespace TKE

namespace JOBEDIT
{

/// How changes of values are told to the user.
class ChangeText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ChangeText)

public:
    /// "Gain: AGC -> MGC", for the value at `path`, which may be gone. Without a label that of the descriptor serves.
    static QString Of(const QString& path, QString label, const TKE::ValueDescriptor& descriptor, const QString& before,
                      const QString& after);
    /// What the field that shows the value in the active window is labelled with; empty when there is none.
    static QString LabelOnScreen(const TKE::ValueBase& value);
};

} // namespace JOBEDIT
