#pragma once

#include "value/valuebase.h"

#include <QCoreApplication>

namespace JOBEDIT
{

/// What is said of a value wherever people read of it outside of its field, in the application's locale.
class ValueTexts
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ValueTexts)

public:
    /// A content in stored form as people read it, in full: items by name, numbers with their unit. What is none of the
    /// kind stays as it is.
    static QString OfStored(const TKE::ValueDescriptor& descriptor, const QString& stored);
    static QString OfContent(const TKE::ValueBase& value)
    {
        return OfStored(value.GetDescriptor(), value.GetStoredText());
    }
    static QString OfDefault(const TKE::ValueDescriptor& descriptor)
    {
        return OfStored(descriptor, descriptor.defaultText);
    }
    /// Exact, in the largest unit that leaves a number of at least 1.
    static QString OfFrequency(qint64 hertz);
    /// Empty where there are no limits.
    static QString Range(const TKE::ValueBase& value);
    /// The label without mnemonics and colon; the key where there is none.
    static QString Label(const TKE::ValueBase& value);
};

} // namespace JOBEDIT
