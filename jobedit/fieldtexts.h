#pragma once

#include "value/valuebase.h"

#include <QStringList>

namespace JOBEDIT
{

/// The words by which people know a field: its label in every language that the program has a catalogue of, whatever
/// language runs, and its content with the unit. A label that no catalogue has is there in English.
class FieldTexts
{
public:
    /// The label in the language that runs; without a label the description, without that the key.
    static QString Label(const TKE::ValueBase& value);
    /// The label in the language that runs; empty without a label.
    static QString Label(const TKE::ValueDescriptor& descriptor);
    /// The label in all languages, English first; empty without a label.
    static QStringList Labels(const TKE::ValueDescriptor& descriptor);
    /// The content with its unit: numbers in the locale, selections by name.
    static QString Content(const TKE::ValueBase& value);

    /// The classes of panels whose contexts the catalogues have the labels in.
    static const QList<const char*>& Contexts();
};

} // namespace JOBEDIT
