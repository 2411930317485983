#pragma once

#include "valuewidgets/fieldholder.h"

#include <QString>
#include <vector>

class QWidget;

namespace JOBEDIT
{

/// The fields of dialogs: the widgets that show values. Nothing of it may be kept beyond the current event.
class Fields
{
public:
    using Field = TKE::FieldHolder::Field;

    /// Those within `top`, itself not among them, that are visible now.
    static std::vector<Field> VisibleIn(const QWidget& top);
    /// The field that `widget` is, or is a part of, or that it is the label of. Nulls when there is none.
    static Field Of(QWidget* widget);
    /// Whether the user can change the value in this field now: it is no mere display, not locked and not disabled.
    static bool IsEditable(const Field& field);
};

} // namespace JOBEDIT
