#include "valuedelegate.h"

#include "value/valueselection.h"
#include "valuesmodel.h"
#include "valuetexts.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vclineedit.h"

#include <QKeyEvent>
#include <QPainter>

namespace JOBEDIT
{

namespace
{

const TKE::ValueLink* BoundEditor(const QObject* editor)
{
    const auto* link = dynamic_cast<const TKE::ValueLink*>(editor);
    return link && link->GetBoundValue() ? link : nullptr;
}

} // namespace

QWidget* ValueDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    TKE::ValueBase* value = static_cast<const ValuesModel*>(index.model())->ValueAt(index);
    if (!value)
        return nullptr;
    QWidget* editor = nullptr;
    auto* combo = new TKE::VCComboBoxClassic(parent);
    auto* edit = new TKE::VCLineEdit(parent);
    edit->SetFrequencyUnit(TKE::GuiCentral::Instance().GetFrequencyUnit());
    if (combo->Bind(value))
        editor = combo;
    else if (edit->Bind(value))
        editor = edit;
    else
        editor = QStyledItemDelegate::createEditor(parent, option, index); // lists, as text
    if (editor != combo)
        delete combo;
    if (editor != edit)
        delete edit;
    editor->setAccessibleName(ValueTexts::Label(*value));
    editor->setAutoFillBackground(true);
    return editor;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (!BoundEditor(editor))
        QStyledItemDelegate::setEditorData(editor, index);
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    // A bound editor whose value has gone has nothing to write to, either.
    if (!dynamic_cast<const TKE::ValueLink*>(editor))
        QStyledItemDelegate::setModelData(editor, model, index);
}

bool ValueDelegate::eventFilter(QObject* object, QEvent* event)
{
    // The editor takes Return first, and stays when it refuses what was typed.
    auto* edit = dynamic_cast<TKE::VCLineEdit*>(object);
    if (!edit || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QStyledItemDelegate::eventFilter(object, event);
    const QPointer<TKE::VCLineEdit> alive(edit);
    object->event(event);
    if (alive && alive->GetRefusal().isEmpty())
        emit closeEditor(alive);
    return true;
}

void ValueDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() != ValueListing::Label)
        return;
    // Between the label and the value, as in the dialogs.
    const QRect bar(option.rect.right() - ChangeMark::width, option.rect.top() + 1, ChangeMark::width,
                    option.rect.height() - 2);
    QPalette palette = option.palette;
    if (option.state & QStyle::State_Selected)
        for (const auto role : {QPalette::Link, QPalette::PlaceholderText})
            palette.setColor(role, palette.color(QPalette::HighlightedText));
    painter->save();
    static_cast<const ValuesModel*>(index.model())->MarkAt(index).Paint(*painter, bar, palette);
    painter->restore();
}

} // namespace JOBEDIT
