// Changing the demodulation (old panel deleted, new one built, shown and painted) against the same bare widgets.

#include "baretwin.h"
#include "harness.h"

#include "analysis/demodulatordlg.h"
#include "analysis/demodulatorpanel.h"
#include "jobmodel/jobmodel.h"
#include "keys/keys.h"
#include "value/tree.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>

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
    std::vector<BareTwin::Panel> panels;
    for (const char* name : names)
    {
        selection->SetFromText(QString::fromLatin1(name));
        Paint();
        panels.push_back(BareTwin::Record(dialog->findChild<DemodulatorPanel*>()->layout()));
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
                for (const BareTwin::Panel& recipes : panels)
                {
                    delete *child;
                    *child = new QWidget(bare.get());
                    BareTwin::Fill(*child, recipes);
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
