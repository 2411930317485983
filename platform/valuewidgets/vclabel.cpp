#include "valuewidgets/vclabel.h"

#include "valuewidgets/showntext.h"

#include <QEvent>

namespace TKE
{

VCLabel::VCLabel(QWidget* parent, const QString& name) : QLabel(parent), ValueLink(this)
{
    setObjectName(name);
    setTextFormat(Qt::PlainText);
}

void VCLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LocaleChange && GetBoundValue())
        ShowContent();
}

void VCLabel::ShowContent()
{
    setText(ShownText::Of(*GetBoundValue(), locale()));
}

void VCLabel::ShowNothing()
{
    setText({});
}

} // namespace TKE
