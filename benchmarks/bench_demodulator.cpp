// Changing the demodulation (old panel deleted, new one built, shown and painted) against the same bare widgets.

#include "harness.h"

#include "analysis/demodulatordlg.h"
#include "analysis/demodulatorpanel.h"
#include "jobmodel/jobmodel.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

using namespace TKE;

namespace
{

const QString basePath = QStringLiteral("/Jobs/Bench/");
const char* const names[] = {"FSK", "PSK", "McFSK", "MIL-STD", "ASK", "MTONE"};

void Paint()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

// One widget of a panel, to be made again without a value behind it.
struct Recipe
{
    enum Kind
    {
        Text,
        Line,
        Combo,
        Check,
        Number,
        Table
    } kind;
    QString text;
    QStringList items;
    int current = 0, decimals = 0, frame = 0, row = 0, column = 0, rows = 1, columns = 1;
    double value = 0, minimum = 0, maximum = 0;
    Qt::Alignment alignment;
    QSize fixed;
};
using Panel = std::vector<Recipe>;

Panel Record(const QWidget& panel)
{
    Panel recipes;
    auto* grid = qobject_cast<QGridLayout*>(panel.layout());
    for (int i = 0; i < grid->count(); ++i)
    {
        QWidget* widget = grid->itemAt(i)->widget();
        if (!widget)
            continue;
        Recipe recipe{};
        grid->getItemPosition(i, &recipe.row, &recipe.column, &recipe.rows, &recipe.columns);
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
        else if (auto* table = qobject_cast<QTableWidget*>(widget))
        {
            recipe.kind = Recipe::Table;
            for (int row = 0; row < table->rowCount(); ++row)
                recipe.items << table->item(row, 0)->text();
            recipe.fixed = table->size();
        }
        else
        {
            recipe.kind = Recipe::Number;
            recipe.value = widget->property("value").toDouble();
            recipe.minimum = widget->property("minimum").toDouble();
            recipe.maximum = widget->property("maximum").toDouble();
            recipe.decimals = widget->property("decimals").toInt();
        }
        recipes.push_back(recipe);
    }
    return recipes;
}

QWidget* Make(const Recipe& recipe)
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
    case Recipe::Table:
    {
        auto* table = new QTableWidget(int(recipe.items.size()), 1);
        table->horizontalHeader()->hide();
        table->verticalHeader()->hide();
        for (int row = 0; row < recipe.items.size(); ++row)
            table->setItem(row, 0, new QTableWidgetItem(recipe.items[row]));
        table->setColumnWidth(0, table->sizeHint().width() - 15);
        table->setFixedSize(recipe.fixed);
        return table;
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

Bench::Sides ChangeOfDemodulation()
{
    static const auto model = JobModel::Load();
    for (const auto& parameter : model->FindGroup(QStringLiteral("G_DEMOD_HF"), Band::Hf)->GetParameters())
        Tree::Instance()->CreateValue(basePath + parameter->GetUniqueParameterName(), parameter->GetValueDescriptor());
    auto* selection = Tree::Instance()->FindValue(basePath + Keys::DEMODULATOR_HF_DDC_MODTYPE);

    auto dialog = std::make_shared<DemodulatorDlg>(basePath, false, nullptr, false);
    dialog->BuildPanel();
    dialog->resize(800, 600);
    dialog->show();
    std::vector<Panel> panels;
    for (const char* name : names)
    {
        selection->SetFromText(QString::fromLatin1(name));
        Paint();
        panels.push_back(Record(*dialog->findChild<DemodulatorPanel*>()));
    }

    // The yardstick's dialog has the same top row in the same frame, which stays.
    auto bare = std::make_shared<QWidget>();
    auto* outer = new QGridLayout(bare.get());
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QGroupBox;
    outer->addWidget(frame);
    auto* top = new QGridLayout(frame);
    for (int column : {0, 1})
        top->addWidget(new QComboBox, 0, column);
    top->setRowStretch(1, 1);
    bare->resize(800, 600);
    bare->show();
    Paint();

    // A run changes to each of the demodulations once.
    const auto ours = [=, keep = dialog]
    {
        return Bench::Time(
            [&]
            {
                for (const char* name : names)
                {
                    selection->SetFromText(QString::fromLatin1(name));
                    Paint();
                }
            });
    };
    const auto child = std::make_shared<QWidget*>(nullptr);
    const auto yardstick = [=]
    {
        return Bench::Time(
            [&]
            {
                for (const Panel& recipes : panels)
                {
                    delete *child;
                    *child = new QWidget(bare.get());
                    auto* grid = new QGridLayout(*child);
                    for (const Recipe& recipe : recipes)
                        grid->addWidget(Make(recipe), recipe.row, recipe.column, recipe.rows, recipe.columns);
                    (*child)->setGeometry(0, 40, 800, 560);
                    (*child)->show();
                    Paint();
                }
            });
    };
    return {ours, yardstick};
}

} // namespace

int main(int argc, char** argv)
{
    Bench::TakeOptions(argc, argv);
    QApplication application(argc, argv);
    Bench::Register({17, "change of the demodulation", Bench::Kind::Share, 1.10, 0.95}, 120, ChangeOfDemodulation);
    return Bench::Run(argc, argv);
}
