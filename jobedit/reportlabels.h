#pragma once

#include "value/valuebase.h"

#include <QCoreApplication>
#include <QHash>
#include <QLocale>

namespace JOBEDIT
{

/// The texts of values as a document shows them: labels in the language of the panels, contents with their unit.
class ReportLabels
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ReportLabels)

public:
    struct Shown
    {
        QString text;
        QString unit;
    };

    /// What a value of this descriptor is called: its label, else its description, else nothing.
    QString LabelOf(const TKE::ValueDescriptor& descriptor);
    /// The content as people read it; frequencies in the unit that suits them.
    Shown Of(const TKE::ValueBase& value) const;
    /// What the default of this descriptor looks like.
    QString DefaultOf(const TKE::ValueDescriptor& descriptor);
    /// Whether the content is another than the default.
    bool IsChanged(const TKE::ValueBase& value);

private:
    struct Texts
    {
        bool labelKnown = false;
        bool defaultKnown = false;
        QString label{};
        QString shownDefault{};
        std::string storedDefault{};
    };
    Texts& TextsOf(const TKE::ValueDescriptor& descriptor);

    QLocale m_locale;
    QHash<const TKE::ValueDescriptor*, Texts> m_texts;
    std::string m_stored; // room for one content, kept between values
};

} // namespace JOBEDIT
