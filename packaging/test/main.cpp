// A host made of the README's code, against the installed packages: opens the dialog and the panel, and finds the German catalogue.
#include "ipcparam/parameterdlg.h"
#include "readme_code.h"

#include "application/translationcenter.h"
#include "value/tree.h"
#include "widgets/vccheckablegroupbox.h"
#include "widgets/vclistboxnumeric.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLocale>
#include <QTemporaryDir>

namespace
{

void Check(bool holds, const char* what)
{
    if (!holds)
        qFatal("%s", what);
}

/// Places what the builders return.
struct GroupPanel : TKE::ParameterDlg
{
    explicit GroupPanel(const QString& base) : ParameterDlg(base, nullptr, "GroupPanel", false, false)
    {
        TKE::VCCheckableGroupBox* box = CreateCheckableGroupBoxFromVT("USE_LIST", "List", {}, true);
        Grid()->addWidget(box, 0, 0);
        auto* grid = new QGridLayout(box);
        AddListBoxFromVT(grid, 0, 0, 1, 1, "LIST", 1, 0, 5, true, {"kHz"}, 1000.0, true)->setColumnWidth(0, 200);
    }
};

QString OpenDialog(TKE::JobFile& job, const QString& fileName)
{
    ShowVoiceChain(job, fileName);
    for (QWidget* window : QApplication::topLevelWidgets())
    {
        auto* dialog = qobject_cast<TKE::IPCParam*>(window);
        if (!dialog)
            continue;
        Check(dialog->isVisible() && dialog->count() > 1, "The dialog has no tabs");
        const QString title = dialog->windowTitle();
        delete dialog;
        return title;
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTemporaryDir directory;
    const QString fileName = directory.filePath("demo.job.xml");
    TKE::JobFile job;
    Check(job.LoadSample(nullptr) && job.SaveAs(fileName, nullptr), "The sample job cannot be saved");

    const QString title = OpenDialog(job, fileName);
    Check(title == "Voice HF Configuration", "The dialog does not open");
    Check(TKE::TranslationCenter::Instance()->Install(QLocale(QLocale::German)), "There is no German catalogue");
    Check(OpenDialog(job, fileName) != title, "The dialog is not translated");

    const QString base = "/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/";
    const SquelchDlg panel(base, nullptr, false);
    TKE::Tree::Instance()->FindValue(QString(base + "TUNER_HF_NB_SQUELCHMODE"))->SetFromText("Level");
    auto* combo = panel.findChild<QComboBox*>();
    Check(combo && combo->currentText() == "Level", "The panel does not follow the tree");

    TKE::Tree::Instance()->CreateValue<TKE::BoolValue>(QString(base + "USE_LIST"))->SetValue(true);
    TKE::Tree::Instance()->CreateValue<TKE::DoubleListValue>(QString(base + "LIST"))->SetValue({5000.0});
    const GroupPanel group(base);
    Check(group.findChild<TKE::VCCheckableGroupBox*>()->isChecked(), "The group box does not follow the tree");
    Check(group.findChild<TKE::VCListBoxNumeric*>()->item(0, 0)->text() == "5", "The list does not follow the tree");
    return 0;
}
