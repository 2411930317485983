#include "fields.h"

#include "valuewidgets/valuelink.h"
#include "valuewidgets/vclabel.h"

#include <QLabel>

namespace JOBEDIT
{

namespace
{

std::vector<Fields::Field> FieldsOn(QWidget* widget)
{
    if (const auto* link = dynamic_cast<const TKE::ValueLink*>(widget))
        return link->GetBoundValue() ? std::vector<Fields::Field>{{widget, link->GetBoundValue()}}
                                     : std::vector<Fields::Field>();
    const auto* holder = dynamic_cast<const TKE::FieldHolder*>(widget);
    return holder ? holder->GetFields() : std::vector<Fields::Field>();
}

} // namespace

std::vector<Fields::Field> Fields::VisibleIn(const QWidget& top)
{
    std::vector<Field> found;
    for (QWidget* widget : top.findChildren<QWidget*>())
        if (widget->isVisible())
            for (const Field& field : FieldsOn(widget))
                found.push_back(field);
    return found;
}

Fields::Field Fields::Of(QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
        widget = label->buddy();
    for (QWidget* part = widget; part; part = part->isWindow() ? nullptr : part->parentWidget())
    {
        for (const Field& field : FieldsOn(part))
        {
            // A holder may be a box around other fields: what stands in it is not the box's own value.
            const bool isHolder = field.widget == part && dynamic_cast<const TKE::FieldHolder*>(part);
            if (field.widget == widget || (!isHolder && field.widget->isAncestorOf(widget)))
                return field;
        }
        // The unit of a frequency belongs to its number.
        if (QWidget* proxy = part->focusProxy(); proxy && part->isAncestorOf(proxy))
            for (const Field& field : FieldsOn(proxy))
                return field;
    }
    return {};
}

bool Fields::IsEditable(const Field& field)
{
    return field.value && field.value->GetState() == TKE::stEnabled && field.widget->isEnabled() &&
           !qobject_cast<const TKE::VCLabel*>(field.widget);
}

} // namespace JOBEDIT
