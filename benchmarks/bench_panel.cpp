// Bound panels against the same bare Qt widgets: building, showing, deleting, heap, and changes that come through the
// tree.

#include "harness.h"

#include "ipcparam/parameterdlg.h"
#include "value/tree.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

using namespace TKE;

namespace
{

constexpr int labels = 30, combos = 10, spins = 10, doubleSpins = 4, checks = 5, lineEdits = 1;
constexpr int manyTabs = 10;
const QString basePath = QStringLiteral("/Jobs/Bench/Task/");
const QStringList items{"100 Hz", "300 Hz", "600 Hz", "1 kHz", "2.7 kHz", "10 kHz"};

QString LabelText(int i)
{
    return QStringLiteral("Parameter %1 :").arg(i);
}
QString Key(const char* kind, int i)
{
    return QStringLiteral("BENCH_PANEL_%1_%2").arg(QLatin1String(kind)).arg(i);
}

ValueDescriptor Described(ValueKind kind, double minimum, double maximum, int precision)
{
    ValueDescriptor descriptor;
    descriptor.kind = kind;
    descriptor.minimum = minimum;
    descriptor.maximum = maximum;
    descriptor.precision = precision;
    return descriptor;
}

void FillTree()
{
    static const ValueDescriptor number = Described(ValueKind::Int, -10000, 10000, 0);
    static const ValueDescriptor real = Described(ValueKind::Double, -1000, 1000, 2);
    static const ValueDescriptor choice = []
    {
        ValueDescriptor descriptor;
        descriptor.kind = ValueKind::Selection;
        for (int i = 0; i < items.size(); ++i)
            descriptor.items.emplace_back(i, items[i]);
        descriptor.defaultText = "1";
        return descriptor;
    }();
    Tree& tree = *Tree::Instance();
    for (int i = 0; i < combos; ++i)
        tree.CreateValue(basePath + Key("COMBO", i), choice);
    for (int i = 0; i < spins; ++i)
        tree.CreateValue<IntValue>(basePath + Key("SPIN", i), number)->SetValue(100 * i);
    for (int i = 0; i < doubleSpins; ++i)
        tree.CreateValue<DoubleValue>(basePath + Key("DOUBLE", i), real)->SetValue(1.25 * i);
    for (int i = 0; i < checks; ++i)
        tree.CreateValue<BoolValue>(basePath + Key("CHECK", i))->SetValue(i % 2 == 0);
    for (int i = 0; i < lineEdits; ++i)
        tree.CreateValue<TextValue>(basePath + Key("TEXT", i))->SetValue("remark");
}

// The i-th editor's place: three columns of label and editor.
int Row(int i)
{
    return i / 3;
}
int Column(int i)
{
    return i % 3 * 2;
}

class BoundPanel : public ParameterDlg
{
public:
    explicit BoundPanel(QWidget* parent) : ParameterDlg(basePath, parent, QStringLiteral("BoundPanel"), false, true)
    {
        SetTranslationNamespace("BoundPanel");
        for (int i = 0; i < labels; ++i)
            AddLabel(Grid(), Row(i), Column(i), 1, 1, GetTranslation(LabelText(i)));
        int place = 0;
        const auto at = [&](auto build)
        {
            build(Row(place), Column(place) + 1);
            ++place;
        };
        for (int i = 0; i < combos; ++i)
            at([&](int row, int column) { AddComboFromVT(Grid(), row, column, 1, 1, Key("COMBO", i), false); });
        for (int i = 0; i < spins; ++i)
            at([&](int row, int column) { AddIntSpinFromVT(Grid(), row, column, 1, 1, Key("SPIN", i), false, 1.0); });
        for (int i = 0; i < doubleSpins; ++i)
            at([&](int row, int column)
               { AddFloatSpinFromVT(Grid(), row, column, 1, 1, Key("DOUBLE", i), 2, false, 1.0); });
        for (int i = 0; i < checks; ++i)
            at([&](int row, int column)
               { AddCheckBoxFromVT(Grid(), row, column, 1, 1, Key("CHECK", i), LabelText(i), false); });
        for (int i = 0; i < lineEdits; ++i)
            at([&](int row, int column) { AddLineEditFromVT(Grid(), row, column, 1, 1, Key("TEXT", i), true, false); });
        SetDefaultStretchFactor();
    }
};

struct BareFields
{
    std::vector<QComboBox*> combos;
    std::vector<QSpinBox*> spins;
    std::vector<QDoubleSpinBox*> doubles;
    std::vector<QCheckBox*> checks;
    std::vector<QLineEdit*> texts;
};

BareFields FillBare(QWidget* page)
{
    BareFields fields;
    auto* grid = new QGridLayout(page);
    for (int i = 0; i < labels; ++i)
    {
        auto* label = new QLabel(LabelText(i), page);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, Row(i), Column(i));
    }
    int place = 0;
    const auto add = [&](QWidget* widget)
    {
        grid->addWidget(widget, Row(place), Column(place) + 1);
        ++place;
    };
    for (int i = 0; i < combos; ++i)
    {
        auto* combo = new QComboBox(page);
        combo->addItems(items);
        combo->setCurrentIndex(1);
        fields.combos.push_back(combo);
        add(combo);
    }
    for (int i = 0; i < spins; ++i)
    {
        auto* spin = new QSpinBox(page);
        spin->setRange(-10000, 10000);
        spin->setValue(100 * i);
        fields.spins.push_back(spin);
        add(spin);
    }
    for (int i = 0; i < doubleSpins; ++i)
    {
        auto* spin = new QDoubleSpinBox(page);
        spin->setDecimals(2);
        spin->setRange(-1000, 1000);
        spin->setValue(1.25 * i);
        fields.doubles.push_back(spin);
        add(spin);
    }
    for (int i = 0; i < checks; ++i)
    {
        auto* check = new QCheckBox(LabelText(i), page);
        check->setChecked(i % 2 == 0);
        fields.checks.push_back(check);
        add(check);
    }
    for (int i = 0; i < lineEdits; ++i)
    {
        auto* edit = new QLineEdit("remark", page);
        fields.texts.push_back(edit);
        add(edit);
    }
    grid->setRowStretch(grid->rowCount() + 1, 1);
    grid->setColumnStretch(grid->columnCount() + 1, 1);
    return fields;
}

std::unique_ptr<QTabWidget> BuildBound(int tabs)
{
    auto dialog = std::make_unique<QTabWidget>();
    for (int i = 0; i < tabs; ++i)
    {
        // As the dialog host inserts its panels.
        auto* panel = new BoundPanel(dialog.get());
        panel->layout()->setEnabled(false);
        dialog->addTab(panel, QStringLiteral("Tab %1").arg(i));
        panel->layout()->setEnabled(true);
    }
    return dialog;
}

std::unique_ptr<QTabWidget> BuildBare(int tabs)
{
    auto dialog = std::make_unique<QTabWidget>();
    for (int i = 0; i < tabs; ++i)
    {
        auto* page = new QWidget(dialog.get());
        dialog->addTab(page, QStringLiteral("Tab %1").arg(i));
        FillBare(page);
    }
    return dialog;
}

void Show(QWidget& dialog)
{
    dialog.show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

using Build = std::unique_ptr<QTabWidget> (*)(int tabs);

Bench::Measure Building(Build build, int tabs)
{
    return [=]
    {
        std::unique_ptr<QTabWidget> dialog;
        return Bench::Time([&] { dialog = build(tabs); });
    };
}

Bench::Measure WholeLife(Build build, int tabs)
{
    return [=]
    {
        return Bench::Time(
            [&]
            {
                const auto dialog = build(tabs);
                Show(*dialog);
            });
    };
}

Bench::Measure Destroying(Build build, int tabs)
{
    return [=]
    {
        auto dialog = build(tabs);
        Show(*dialog);
        return Bench::Time([&] { dialog.reset(); });
    };
}

Bench::Measure HeapOf(Build build, int tabs)
{
    return [=]
    {
        std::unique_ptr<QTabWidget> dialog;
        return Bench::Heap([&] { dialog = build(tabs); });
    };
}

// The values of one panel in one of two states, set through the tree.
struct TreeFields
{
    std::vector<ValueSelection*> combos;
    std::vector<IntValue*> spins;
    std::vector<DoubleValue*> doubles;
    std::vector<BoolValue*> checks;
    std::vector<TextValue*> texts;

    TreeFields()
    {
        const auto take = [](auto& fields, const char* kind, int count)
        {
            using V = std::remove_pointer_t<typename std::decay_t<decltype(fields)>::value_type>;
            for (int i = 0; i < count; ++i)
                fields.push_back(static_cast<V*>(Tree::Instance()->FindValue(basePath + Key(kind, i))));
        };
        take(combos, "COMBO", ::combos);
        take(spins, "SPIN", ::spins);
        take(doubles, "DOUBLE", doubleSpins);
        take(checks, "CHECK", ::checks);
        take(texts, "TEXT", lineEdits);
    }
    void Set(bool other) const
    {
        for (auto* value : combos)
            value->SelectKey(other ? 4 : 2);
        for (auto* value : spins)
            value->SetValue(other ? 4711 : 815);
        for (auto* value : doubles)
            value->SetValue(other ? 47.11 : 8.15);
        for (auto* value : checks)
            value->SetValue(other);
        for (auto* value : texts)
            value->SetValue(other ? "one remark" : "another");
    }
};

void SetBare(const BareFields& fields, bool other)
{
    for (auto* combo : fields.combos)
        combo->setCurrentIndex(other ? 4 : 2);
    for (auto* spin : fields.spins)
        spin->setValue(other ? 4711 : 815);
    for (auto* spin : fields.doubles)
        spin->setValue(other ? 47.11 : 8.15);
    for (auto* check : fields.checks)
        check->setChecked(other);
    for (auto* edit : fields.texts)
        edit->setText(other ? "one remark" : "another");
}

// Changes of all fields of a visible page, there and back; `again` sets what is there already.
Bench::Sides Changing(bool again)
{
    struct Stage
    {
        std::unique_ptr<QTabWidget> bound = BuildBound(1);
        QTabWidget bare;
        BareFields fields;
        TreeFields values;
        Stage()
        {
            auto* page = new QWidget(&bare);
            bare.addTab(page, "Tab");
            fields = FillBare(page);
            Show(*bound);
            Show(bare);
        }
    };
    const auto stage = std::make_shared<Stage>();
    const auto measure = [=](auto set)
    {
        set(false);
        QCoreApplication::processEvents();
        const double time = Bench::Time(
            [&]
            {
                for (int i = 0; i < 10; ++i)
                    set(!again && i % 2 == 0);
            });
        QCoreApplication::processEvents();
        return time;
    };
    return {[=] { return measure([&](bool other) { stage->values.Set(other); }); },
            [=] { return measure([&](bool other) { SetBare(stage->fields, other); }); }};
}

} // namespace

int main(int argc, char** argv)
{
    Bench::TakeOptions(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    FillTree();

    using Bench::Kind;
    const auto pair = [](auto measure, int tabs) {
        return [=] { return Bench::Sides{measure(BuildBound, tabs), measure(BuildBare, tabs)}; };
    };
    Bench::Register({1, "build a bound panel", Kind::Share, 1.15, 1.06}, 200, pair(Building, 1));
    Bench::Register({2, "build, show, paint, delete: 1 tab", Kind::Share, 1.03, 0.90}, 100, pair(WholeLife, 1));
    Bench::Register({3, "build, show, paint, delete: 10 tabs", Kind::Share, 0.75, 0.62}, 40, pair(WholeLife, manyTabs));
    Bench::Register({4, "destroy a shown panel", Kind::Share, 1.12, 1.05}, 100, pair(Destroying, 1));
    Bench::Register({5, "heap of a bound dialog", Kind::Share, 1.08, 1.00}, 10, pair(HeapOf, manyTabs));
    Bench::Register({6, "30 visible fields changed", Kind::Share, 1.20, 1.05}, 100, [] { return Changing(false); });
    Bench::Register({7, "the same values set again", Kind::Share, 0.10, 0.03}, 100, [] { return Changing(true); });
    return Bench::Run(argc, argv);
}
