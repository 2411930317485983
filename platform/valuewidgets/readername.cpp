#include "valuewidgets/readername.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>

namespace TKE
{

void ReaderName::Set(QWidget& widget, const QString& name)
{
    widget.setAccessibleName(name);
    if (!qobject_cast<QComboBox*>(&widget))
        return;
    auto* label = new QLabel(name, widget.parentWidget());
    label->hide();
    label->setBuddy(&widget);
}

void ReaderName::FromLabel(QLabel& label, QWidget& widget)
{
    QWidget* editor = widget.focusProxy() ? widget.focusProxy() : &widget;
    label.setBuddy(editor);
    // Qt looks for labels among the editor's siblings, and not at all for views.
    if (editor->parentWidget() != label.parentWidget() || qobject_cast<QAbstractItemView*>(editor))
        editor->setAccessibleName(label.text().remove('&'));
}

} // namespace TKE
