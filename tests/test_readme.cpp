// The two pieces of code that the README shows.
#include "ipcparam/ipcparam.h"
#include "ipcparam/parameterdlg.h"
#include "jobmodel/jobfile.h"
#include "value/tree.h"

#include <QTest>
#include <QtWidgets>

namespace
{

void ShowVoiceChain(TKE::JobFile& job, const QString& fileName)
{
    TKE::FileError error;
    if (!job.Load(fileName, &error)) // fills the value tree; on an error nothing has changed
    {
        qWarning().noquote() << error.ToText(); // file:line:column: item path: reason
        return;
    }
    const QString task = "/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/";
    std::vector<QString> resources{"HF receiver 1"};
    auto* dialog = new TKE::IPCParam("/Jobs/Demo/TDS_HF1/CS_VOICE/", task, resources, task, task, "", task, "TKE");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->VoiceDlg(1); // one entry point per kind of chain; tabs count from 1
    dialog->show();
}

class SquelchDlg : public TKE::ParameterDlg
{
public:
    SquelchDlg(const QString& basePath, QWidget* parent, bool readOnly)
        : ParameterDlg(basePath, parent, "SquelchDlg", readOnly, false)
    {
        SetTranslationNamespace("SquelchDlg");
        AddLabel(Grid(), 0, 0, 1, 1, GetTranslation("Squelch :"));
        AddComboFromVT(Grid(), 0, 1, 1, 1, "TUNER_HF_NB_SQUELCHMODE", false);
        AddLabel(Grid(), 1, 0, 1, 1, GetTranslation("Threshold :"));
        AddIntSpinFromVT(Grid(), 1, 1, 1, 1, "TUNER_HF_NB_SQUELCH_THRESHOLD", false, 1.0);
        AddLeftLabel(Grid(), 1, 2, 1, 1, "dBµV");
        SetDefaultStretchFactor();
    }
};

} // namespace

class TestReadme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHostsCodeOpensTheDialog()
    {
        QTemporaryDir directory;
        const QString fileName = directory.filePath("demo.job.xml");
        TKE::JobFile job;
        TKE::FileError error;
        QVERIFY2(job.LoadSample(&error), qPrintable(error.ToText()));
        QVERIFY2(job.SaveAs(fileName, &error), qPrintable(error.ToText()));
        ShowVoiceChain(job, fileName);
        const auto windows = QApplication::topLevelWidgets();
        const auto dialog = std::find_if(windows.begin(), windows.end(),
                                         [](QWidget* window) { return qobject_cast<TKE::IPCParam*>(window); });
        QVERIFY(dialog != windows.end());
        QCOMPARE((*dialog)->windowTitle(), QString("Voice HF Configuration"));
        delete *dialog;
        TKE::Tree::Instance()->Clear();
    }

    void aPanelOfOnesOwnFollowsTheTree()
    {
        TKE::JobFile job;
        QVERIFY(job.LoadSample(nullptr));
        const QString base = "/Jobs/Demo/TDS_HF1/CS_VOICE/VOICE/";
        SquelchDlg panel(base, nullptr, false);
        auto* combo = panel.findChild<QComboBox*>();
        auto* threshold = panel.findChild<QAbstractSpinBox*>();
        QVERIFY(combo && threshold);
        QVERIFY(!threshold->isEnabled()); // the squelch is off
        TKE::Tree::Instance()->FindValue(QString(base + "TUNER_HF_NB_SQUELCHMODE"))->SetFromText("Level");
        QCOMPARE(combo->currentText(), QString("Level"));
        QVERIFY(threshold->isEnabled());
        TKE::Tree::Instance()->Clear();
    }
};

QTEST_MAIN(TestReadme)
#include "test_readme.moc"
