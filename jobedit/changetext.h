#pragma once

#include <QCoreApplication>

namespace TKE
{
struct ValueDescriptor;
}

namespace JOBEDIT
{

/// How changes of values are told to the user.
class ChangeText
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ChangeText)

public:
    /// "Gain: AGC -> MGC", for the value at `path`, which may be gone.
    static QString Of(const QString& path, const TKE::ValueDescriptor& descriptor, const QString& before,
                      const QString& after);
    /// The label of the rows of such values; empty when there is none.
    static QString LabelOf(const TKE::ValueDescriptor& descriptor);
    /// The content that `stored` stands for, as the dialogs show it, with its unit.
    static QString ShownOf(const TKE::ValueDescriptor& descriptor, const QString& stored);
};

} // namespace JOBEDIT
