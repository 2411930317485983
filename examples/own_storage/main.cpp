// Opens a dialog of the library on a job that the storage of this program keeps. With --check it uses the dialog a little instead and
// exits with 0 when all went as it must.
#include "ipcparam/ipcparam.h"
#include "jobmodel/jobfile.h"
#include "value/tree.h"
#include "valuewidgets/vccomboboxclassic.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

namespace
{

void Check(bool holds, const char* what)
{
    if (!holds)
        qFatal("%s", what);
}

// The dialog shows what the tree holds, writes into it, and lets go of what is removed.
void Use(TKE::IPCParam& dialog, const QString& task)
{
    TKE::Tree& tree = *TKE::Tree::Instance();
    TKE::ValueBase* mode = tree.FindValue(QString(task + "TUNER_HF_NB_SQUELCHMODE"));
    TKE::ValueBase* threshold = tree.FindValue(QString(task + "TUNER_HF_NB_SQUELCH_THRESHOLD"));
    Check(mode && threshold, "The job has no squelch");
    const auto combos = dialog.findChildren<TKE::VCComboBoxClassic*>();
    const auto combo = std::find_if(combos.begin(), combos.end(), [&](auto* one) { return one->GetBoundValue() == mode; });
    Check(combo != combos.end(), "The dialog does not show the squelch");

    mode->SetFromText("Level");
    Check((*combo)->currentText() == "Level", "The dialog does not follow the tree");
    Check(threshold->GetState() == TKE::stEnabled, "The rules do not follow the tree");
    QKeyEvent home(QEvent::KeyPress, Qt::Key_Home, Qt::NoModifier);
    QApplication::sendEvent(*combo, &home);
    Check(mode->GetStoredText() == "0", "The tree does not take what the dialog writes");
    Check(threshold->GetState() == TKE::stDisabled, "The rules do not follow the dialog");
    tree.Clear();
    Check(!(*combo)->GetBoundValue(), "The dialog holds a value that is gone");
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    TKE::JobFile job;
    TKE::FileError error;
    if (!job.LoadSample(&error))
        qFatal("%s", qPrintable(error.ToText()));

    const QString task = "/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/";
    TKE::IPCParam dialog(task, nullptr, false, false, false, task, "TKE");
    dialog.VoiceDlg(2);
    dialog.show();
    if (!application.arguments().contains("--check"))
        return application.exec();
    Use(dialog, task);
    return 0;
}
