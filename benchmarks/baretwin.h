#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <vector>

/// A panel recorded widget by widget, to be made again of bare Qt widgets with the same texts and values: the yardstick
/// of measurements.
namespace BareTwin
{

struct Recipe
{
    enum Kind
    {
        Text,
        Line,
        Combo,
        Check,
        Number,
        Edit,
        Table,
        Group
    } kind;
    QString text;
    QStringList items;
    int current = 0, decimals = 0, frame = 0, row = 0, column = 0, rows = 1, columns = 1;
    double value = 0, minimum = 0, maximum = 0;
    Qt::Alignment alignment;
    QSize fixed;
    bool hasHeader = false;
    std::vector<Recipe> children; // of a group
};
using Panel = std::vector<Recipe>;

inline Panel Record(const QLayout* layout);

inline Recipe Record(QWidget* widget)
{
    Recipe recipe{};
    if (auto* label = qobject_cast<QLabel*>(widget))
    {
        recipe.kind = label->frameStyle() == 0 ? Recipe::Text : Recipe::Line;
        recipe.text = label->text();
        recipe.alignment = label->alignment();
        recipe.frame = label->frameStyle();
    }
    else if (auto* combo = qobject_cast<QComboBox*>(widget))
    {
        recipe.kind = Recipe::Combo;
        for (int item = 0; item < combo->count(); ++item)
            recipe.items << combo->itemText(item);
        recipe.current = combo->currentIndex();
    }
    else if (auto* check = qobject_cast<QCheckBox*>(widget))
    {
        recipe.kind = Recipe::Check;
        recipe.text = check->text();
        recipe.current = check->isChecked();
    }
    else if (auto* edit = qobject_cast<QLineEdit*>(widget))
    {
        recipe.kind = Recipe::Edit;
        recipe.text = edit->text();
    }
    else if (auto* table = qobject_cast<QTableWidget*>(widget))
    {
        recipe.kind = Recipe::Table;
        recipe.columns = table->columnCount();
        for (int row = 0; row < table->rowCount(); ++row)
        {
            for (int column = 0; column < table->columnCount(); ++column)
                recipe.items << (table->item(row, column) ? table->item(row, column)->text() : QString());
        }
        recipe.current = table->columnCount();
        recipe.hasHeader = !table->horizontalHeader()->isHidden();
        if (table->minimumSize() == table->maximumSize())
            recipe.fixed = table->size();
    }
    else if (auto* group = qobject_cast<QGroupBox*>(widget))
    {
        recipe.kind = Recipe::Group;
        recipe.text = group->title();
        recipe.children = Record(group->layout());
    }
    else
    {
        recipe.kind = Recipe::Number;
        recipe.value = widget->property("value").toDouble();
        recipe.minimum = widget->property("minimum").toDouble();
        recipe.maximum = widget->property("maximum").toDouble();
        recipe.decimals = widget->property("decimals").toInt();
    }
    return recipe;
}

/// All widgets of a grid layout, groups with theirs.
inline Panel Record(const QLayout* layout)
{
    Panel recipes;
    auto* grid = qobject_cast<const QGridLayout*>(layout);
    for (int i = 0; grid && i < grid->count(); ++i)
    {
        QWidget* widget = grid->itemAt(i)->widget();
        if (!widget)
            continue;
        Recipe recipe = Record(widget);
        grid->getItemPosition(i, &recipe.row, &recipe.column, &recipe.rows, &recipe.columns);
        recipes.push_back(recipe);
    }
    return recipes;
}

inline void Fill(QWidget* page, const Panel& recipes);

inline QWidget* Make(const Recipe& recipe)
{
    switch (recipe.kind)
    {
    case Recipe::Text:
    case Recipe::Line:
    {
        auto* label = new QLabel(recipe.text);
        label->setFrameStyle(recipe.frame);
        label->setAlignment(recipe.alignment);
        return label;
    }
    case Recipe::Combo:
    {
        auto* combo = new QComboBox;
        combo->addItems(recipe.items);
        combo->setCurrentIndex(recipe.current);
        return combo;
    }
    case Recipe::Check:
    {
        auto* check = new QCheckBox(recipe.text);
        check->setChecked(recipe.current);
        return check;
    }
    case Recipe::Edit:
        return new QLineEdit(recipe.text);
    case Recipe::Table:
    {
        const int columns = qMax(1, recipe.current);
        auto* table = new QTableWidget(int(recipe.items.size()) / columns, columns);
        table->horizontalHeader()->setHidden(!recipe.hasHeader);
        table->verticalHeader()->hide();
        for (int i = 0; i < recipe.items.size(); ++i)
            table->setItem(i / columns, i % columns, new QTableWidgetItem(recipe.items[i]));
        if (recipe.fixed.isValid())
        {
            table->setColumnWidth(0, table->sizeHint().width() - 15);
            table->setFixedSize(recipe.fixed);
        }
        return table;
    }
    case Recipe::Group:
    {
        auto* group = new QGroupBox(recipe.text);
        Fill(group, recipe.children);
        return group;
    }
    case Recipe::Number:
        break;
    }
    auto* spin = new QDoubleSpinBox;
    spin->setDecimals(recipe.decimals);
    spin->setRange(recipe.minimum, recipe.maximum);
    spin->setValue(recipe.value);
    return spin;
}

/// Lays the recorded widgets out on `page`.
inline void Fill(QWidget* page, const Panel& recipes)
{
    auto* grid = new QGridLayout(page);
    for (const Recipe& recipe : recipes)
        grid->addWidget(Make(recipe), recipe.row, recipe.column, recipe.rows, recipe.columns);
}

} // namespace BareTwin
