// Tabs of the library against the same tabs of bare Qt widgets: building, showing, deleting, heap.

#include "baretwin.h"
#include "harness.h"

#include "analysis/demodulatordlg.h"
#include "analysis/demodulatorpanel.h"
#include "analysis/detectiondlg.h"
#include "analysis/tdsheaderwbdlg.h"
#include "jobmodel/jobfile.h"
#include "value/tree.h"

#include <QApplication>
#include <QTabWidget>

using namespace TKE;

namespace
{

constexpr int manyTabs = 10;
const QString tds = QStringLiteral("/Jobs/Demo/");

using MakePanel = ParameterDlg* (*)(QWidget* parent);

ParameterDlg* MakeDemodulator(QWidget* parent)
{
    auto* panel = new DemodulatorDlg(tds + "TDS_HF1/CS_DATA/DATATRANS/", false, parent, false);
    panel->BuildPanel();
    return panel;
}
ParameterDlg* MakeDetection(QWidget* parent)
{
    return new DetectionDlg(tds + "TDS_HFWB/CS_DETCONV/DETECTION/", false, parent, false);
}
ParameterDlg* MakeHeader(QWidget* parent)
{
    return new TdsHeaderWBDlg(tds + "TDS_VUHFWB/HEADER/", parent, false, true, true, false);
}

struct Twin
{
    BareTwin::Panel panel;
    BareTwin::Panel child; // of the demodulator, which stands beside the layout
    QRect childPlace;
};

Twin RecordTwin(MakePanel make)
{
    const std::unique_ptr<ParameterDlg> panel(make(nullptr));
    panel->show();
    QCoreApplication::processEvents();
    Twin twin{BareTwin::Record(panel->layout()), {}, {}};
    if (auto* child = panel->findChild<DemodulatorPanel*>())
    {
        twin.child = BareTwin::Record(child->layout());
        twin.childPlace = child->geometry();
    }
    return twin;
}

using Dialog = std::unique_ptr<QTabWidget>;

Dialog BuildBound(MakePanel make, int tabs)
{
    auto dialog = std::make_unique<QTabWidget>();
    for (int i = 0; i < tabs; ++i)
    {
        // As the dialog host inserts its panels.
        ParameterDlg* panel = make(dialog.get());
        panel->layout()->setEnabled(false);
        dialog->addTab(panel, QStringLiteral("Tab"));
        panel->layout()->setEnabled(true);
    }
    return dialog;
}

Dialog BuildBare(const Twin& twin, int tabs)
{
    auto dialog = std::make_unique<QTabWidget>();
    for (int i = 0; i < tabs; ++i)
    {
        auto* page = new QWidget(dialog.get());
        dialog->addTab(page, QStringLiteral("Tab"));
        BareTwin::Fill(page, twin.panel);
        if (twin.child.empty())
            continue;
        auto* child = new QWidget(page);
        BareTwin::Fill(child, twin.child);
        child->setGeometry(twin.childPlace);
    }
    return dialog;
}

void Show(QWidget& dialog)
{
    dialog.show();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

using Build = std::function<Dialog()>;

double Building(const Build& build)
{
    Dialog dialog;
    return Bench::Time([&] { dialog = build(); });
}
double WholeLife(const Build& build)
{
    return Bench::Time([&] { Show(*build()); });
}
double Destroying(const Build& build)
{
    Dialog dialog = build();
    Show(*dialog);
    return Bench::Time([&] { dialog.reset(); });
}
double HeapOf(const Build& build)
{
    Dialog dialog;
    return Bench::Heap([&] { dialog = build(); });
}

void Register(const Bench::Goal& goal, int pairs, MakePanel make, double (*measure)(const Build&), int tabs)
{
    Bench::Register(goal, pairs,
                    [=]
                    {
                        const auto twin = std::make_shared<Twin>(RecordTwin(make));
                        return Bench::Sides{[=] { return measure([=] { return BuildBound(make, tabs); }); },
                                            [=] { return measure([=] { return BuildBare(*twin, tabs); }); }};
                    });
}

} // namespace

int main(int argc, char** argv)
{
    Bench::TakeOptions(argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    JobFile job;
    FileError error;
    if (!job.LoadSample(&error))
    {
        std::fprintf(stderr, "%s\n", qPrintable(error.ToText()));
        return 1;
    }
    const std::pair<const char*, MakePanel> panels[] = {
        {"demodulator", MakeDemodulator}, {"detection", MakeDetection}, {"WB header", MakeHeader}};
    for (const auto& [name, make] : panels)
    {
        using Bench::Kind;
        const std::string tab(name);
        Register({1, tab + ": build", Kind::Share, 1.15, 1.06}, 60, make, Building, 1);
        Register({2, tab + ": build, show, paint, delete", Kind::Share, 1.03, 0.90}, 60, make, WholeLife, 1);
        Register({3, tab + ": the same, 10 tabs", Kind::Share, 0.75, 0.62}, 20, make, WholeLife, manyTabs);
        Register({4, tab + ": destroy", Kind::Share, 1.12, 1.05}, 60, make, Destroying, 1);
        Register({5, tab + ": heap", Kind::Share, 1.08, 1.00}, 5, make, HeapOf, manyTabs);
    }
    return Bench::Run(argc, argv);
}
