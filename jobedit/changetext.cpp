#include "changetext.h"

#include "fieldtexts.h"
#include "valuetexts.h"
#include "valuewidgets/valuelink.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>

namespace JOBEDIT
{

namespace
{

constexpr qsizetype longestText = 40;

QString Shortened(QString text)
{
    text = text.simplified();
    return text.size() > longestText ? text.left(longestText - 3) + QStringLiteral("...") : text;
}

QString Told(const TKE::ValueDescriptor& descriptor, const QString& stored)
{
    const QString text = Shortened(ValueTexts::OfStored(descriptor, stored));
    return text.isEmpty() ? ChangeText::tr("empty") : text;
}

// As it stands in a sentence: without what sets it off from its field, and without mnemonic.
QString Plain(QString label)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(?=.)"));
    label = label.trimmed().remove(mnemonic);
    while (label.endsWith(':') || label.endsWith(' '))
        label.chop(1);
    return label;
}

QString LabelOf(const QWidget& field)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&field))
        return Plain(button->text());
    if (const auto* box = qobject_cast<const QGroupBox*>(&field); box && !box->title().isEmpty())
        return Plain(box->title());
    const QWidget* parent = field.parentWidget();
    for (const QLabel* label : parent ? parent->findChildren<QLabel*>() : QList<QLabel*>())
        if (label->buddy() && (label->buddy() == &field || label->buddy() == field.focusProxy()))
            return Plain(label->text());
    return Plain(field.accessibleName());
}

} // namespace

QString ChangeText::Of(const QString& path, QString label, const TKE::ValueDescriptor& descriptor,
                       const QString& before, const QString& after)
{
    if (label.isEmpty())
        label = FieldTexts::Label(descriptor);
    return tr("%1: %2 -> %3", "label of a value, content before and after")
        .arg(label.isEmpty() ? path.section('/', -1) : label, Told(descriptor, before), Told(descriptor, after));
}

QString ChangeText::LabelOnScreen(const TKE::ValueBase& value)
{
    const QWidget* window = QApplication::activeWindow();
    for (QWidget* widget : window ? window->findChildren<QWidget*>() : QWidgetList())
    {
        const auto* link = dynamic_cast<const TKE::ValueLink*>(widget);
        if (link && link->GetBoundValue() == &value && widget->isVisible())
            if (QString label = LabelOf(*widget); !label.isEmpty())
                return label;
    }
    return {};
}

} // namespace JOBEDIT
