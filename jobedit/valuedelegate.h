#pragma once

#include <QStyledItemDelegate>

namespace JOBEDIT
{

/// Edits values in place with the editors of the dialogs, which are bound to the value and write it themselves. What is
/// refused stays in the editor, with the reason. Paints the mark of a changed value between its label and its
/// content.
class ValueDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace JOBEDIT
