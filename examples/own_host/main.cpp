// Shows a panel of this host beside a dialog of the library. With --check it uses the panel a little instead and exits with 0 when all
// went as it must.
#include "beacondlg.h"

#include "application/cfgcenter.h"
#include "ipcparam/ipcparam.h"
#include "jobmodel/jobfile.h"
#include "value/tree.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace
{

const QString station = "/Jobs/Station/";
const QString voice = "/Jobs/Station/TDS_HF/CS_VOICE/VOICE/";

// Values that no descriptor file describes. Descriptors outlive their values.
void MakeStationValues()
{
    static const TKE::ValueDescriptor operatorName{.kind = TKE::ValueKind::Text, .label = "Operator", .defaultText = "Night shift"};
    static const TKE::ValueDescriptor limit{
        .kind = TKE::ValueKind::Int, .unit = "W", .defaultText = "100", .minimum = 1, .maximum = 400};
    TKE::Tree::Instance()->CreateValue(QString(station + "STATION_OPERATOR"), operatorName);
    TKE::Tree::Instance()->CreateValue(QString(station + "STATION_POWER_LIMIT"), limit);
}

void Check(bool holds, const char* what)
{
    if (!holds)
        qFatal("%s", what);
}

bool Shows(const QWidget& panel, const QString& text)
{
    const auto labels = panel.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) { return label->text() == text; });
}

void Use(BeaconDlg& panel, TKE::IPCParam& dialog)
{
    TKE::Tree& tree = *TKE::Tree::Instance();
    TKE::ValueBase* power = tree.FindValue(QString(station + "BEACON/BEACON_POWER"));
    TKE::ValueBase* mode = tree.FindValue(QString(station + "BEACON/BEACON_MODE"));
    Check(power && mode, "The job lacks the values of the model");
    Check(dialog.count() > 1, "The dialog has no tabs");
    Check(Shows(panel, "Power :") && !Shows(panel, "More power than the station may use"), "The panel lacks its rows");

    int journalled = 0;
    tree.SetJournal([&](const TKE::JournalEntry&) { ++journalled; });
    auto* field = panel.findChild<QAbstractSpinBox*>();
    Check(field, "The panel has no field for the power");
    field->selectAll();
    for (const QChar key : QStringLiteral("250\r"))
    {
        QKeyEvent press(QEvent::KeyPress, key == u'\r' ? Qt::Key_Return : Qt::Key(key.unicode()), Qt::NoModifier, key);
        QApplication::sendEvent(field, &press);
    }
    Check(power->GetText() == "250", "The tree does not take what is typed");
    Check(journalled == 1, "The journal does not hear what is typed");
    tree.SetJournal({});
    Check(Shows(panel, "More power than the station may use"), "The panel does not follow its values");
    mode->SetFromText("Off");
    Check(!field->isEnabled(), "The rule of the model does not hold");
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    application.setApplicationName("own_host");
    // own_host.ini names the directory of the descriptor files, for this host and for the library's panels alike.
    TKE::CfgCenter::Instance()->SetDirectory(OWN_HOST_DIRECTORY);

    TKE::JobFile job;
    job.SetModel(TKE::JobModel::Load(OWN_HOST_DIRECTORY "/model"));
    for (const TKE::FileError& error : job.GetModel()->GetErrors())
        qFatal("%s", qPrintable(error.ToText()));
    TKE::FileError error;
    if (!job.Load(OWN_HOST_DIRECTORY "/station.job.xml", &error))
        qFatal("%s", qPrintable(error.ToText()));
    MakeStationValues(); // after loading, which replaces the content of the tree

    QWidget window;
    auto* row = new QHBoxLayout(&window);
    auto* panel = new BeaconDlg(station + "BEACON/", &window, false);
    auto* dialog = new TKE::IPCParam(voice, &window, false, false, false, voice, "TKE");
    dialog->VoiceDlg(1);
    row->addWidget(panel);
    row->addWidget(dialog, 1);
    window.show();
    if (!application.arguments().contains("--check"))
        return application.exec();
    Use(*panel, *dialog);
    return 0;
}
