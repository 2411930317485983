#include "editorfixture.h"
#include "jobedit/compareactions.h"
#include "jobedit/differencemodel.h"
#include "jobedit/editor.h"
#include "jobedit/guidewindow.h"
#include "jobedit/languages.h"
#include "jobedit/panelwindow.h"
#include "jobedit/recoveryfile.h"
#include "jobedit/recoveryjournal.h"
#include "jobedit/valuetexts.h"

#include <QLockFile>

using namespace JOBEDIT;
using namespace TKE;
using EditorTest::frequencyPath;
using EditorTest::tunerPath;

class TestLanguages : public QObject
{
    Q_OBJECT

    std::optional<EditorTest::Surroundings> m_place;
    std::unique_ptr<Editor> m_editor;

    MainWindow& Window() { return m_editor->Window(); }
    QString File(const QString& name = "a.job.xml") const { return m_place->File(name); }

    QTabWidget* Dialog() { return Window().Dialog().GetDialog(); }
    static ValueBase* Frequency() { return Tree::Instance()->FindValue(frequencyPath); }
    QLineEdit* FrequencyField()
    {
        return Dialog()->findChild<QWidget*>(Keys::TUNER_HF_NB_FREQUENCY)->findChild<QLineEdit*>();
    }
    void Type(const QString& text)
    {
        FrequencyField()->setFocus();
        FrequencyField()->selectAll();
        QTest::keyClicks(FrequencyField(), text);
    }
    /// As the user does: through the menus of the window that is up.
    void Choose(const QString& language)
    {
        const QPointer<MainWindow> before = &Window();
        for (QAction* action : Window().findChild<Languages*>()->actions())
            if (action->text().remove('&') == language)
                action->trigger();
        QTRY_VERIFY(!before);
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
    }
    QString FirstMenu() { return Window().menuBar()->actions().first()->text().remove('&'); }

private Q_SLOTS:
    void initTestCase() { InitCatalogues(); }
    void init()
    {
        m_place.emplace();
        Languages::Apply("en");
        m_editor = std::make_unique<Editor>(JobModel::Load());
        Window().show();
        QVERIFY(QTest::qWaitForWindowActive(&Window()));
        QVERIFY(Window().NewFromSample());
        QVERIFY(Window().Nodes().SelectNode(tunerPath));
    }

    void cleanup()
    {
        m_editor.reset();
        m_place.reset();
        Languages::Apply("en");
    }

    void allTextsFollowTheLanguageAndItIsKept()
    {
        QCOMPARE(FirstMenu(), "File");
        Choose("Deutsch");
        QCOMPARE(FirstMenu(), "Datei");
        QCOMPARE(Languages::GetChoice(), "de");
        QCOMPARE(QLocale().toString(1.5), "1,5");
        // Texts of the library, of the model's units, and of Qt.
        const auto labels = Dialog()->findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(labels, [](auto* label) { return label->text().contains("Frequenz"); }));
        QCOMPARE(QDialogButtonBox(QDialogButtonBox::Cancel).buttons().first()->text().remove('&'),
                 QStringLiteral("Abbrechen"));
        QVERIFY(Frequency()->SetStoredText("7040500"));
        QVERIFY2(FrequencyField()->text().contains("7040,5"), qPrintable(FrequencyField()->text()));
        QCOMPARE(ValueTexts::Label(*Frequency()), "Frequenz");
        // And why the platform refuses a content.
        const auto refusal = [](QLatin1StringView key, const QString& text)
        {
            QString reason;
            return Tree::Instance()->FindValue(tunerPath + key)->SetFromText(text, nullptr, &reason) ? QString()
                                                                                                     : reason;
        };
        QVERIFY(refusal(Keys::TUNER_HF_NB_FREQUENCY, "1").contains("ist kleiner als"));
        QVERIFY(refusal(Keys::TUNER_HF_NB_FREQUENCY, "99999999999").contains(QStringLiteral("ist größer als")));
        QVERIFY(refusal(Keys::TUNER_HF_NB_IFSHIFT, "wenig").contains("keine ganze Zahl"));

        Choose("English");
        QCOMPARE(FirstMenu(), "File");
        QVERIFY2(FrequencyField()->text().contains("7040.5"), qPrintable(FrequencyField()->text()));
        QCOMPARE(QDialogButtonBox(QDialogButtonBox::Cancel).buttons().first()->text().remove('&'),
                 QStringLiteral("Cancel"));
        Choose("System");
        QCOMPARE(Languages::GetChoice(), QString());
    }

    void theJobStaysWithItsChangesItsLockAndItsFile()
    {
        QVERIFY(Window().SaveTo(File()));
        Type("7040 k"); // and not left
        const JobDocument* document = &Window().Document();
        Choose("Deutsch");
        QCOMPARE(&Window().Document(), document);
        QCOMPARE(Frequency()->GetStoredText(), "7040000");
        QVERIFY(Window().isWindowModified());
        QVERIFY(Window().windowTitle().startsWith("a.job.xml[*]"));
        QVERIFY(!QLockFile(File("a.job.xml.lock")).tryLock(0));
        QVERIFY(FrequencyField()->text().remove(' ').startsWith("7040"));
        // The new window is as good as the old one.
        Type("7,05 M\t");
        QVERIFY(Window().Save());
        QVERIFY(!Window().isWindowModified());
        QVERIFY(Window().NewFromSample());
        QCOMPARE(Window().Nodes().GetNodes().size(), size_t(99));
    }

    void editsOfBeforeAndAfterAreKeptForRecovery()
    {
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        QVERIFY(Tree::Instance()->FindValue(frequencyPath)->SetStoredText("7040000"));
        Choose("Deutsch");
        QVERIFY(Tree::Instance()->FindValue(tunerPath + Keys::TUNER_HF_NB_MGCVALUE)->SetStoredText("20"));
        auto* journal = Window().Document().findChild<RecoveryJournal*>();
        QVERIFY(journal);
        journal->Flush();
        const RecoveryFile kept = RecoveryFile::Read(journal->GetFileName());
        QVERIFY(kept.base && kept.base->file == File("a.job.xml"));
        QCOMPARE(kept.changes.size(), size_t(2));
    }

    void theNewWindowShowsWhatTheOldOneShowed()
    {
        const auto nodeOf = [this](const char* type)
        { return *std::ranges::find(Window().Nodes().GetNodes(), QString(type), &JobNode::type); };
        const QString path = nodeOf("IPC_FULL").path;
        Window().Dialog().SetForm(Form::StandAlone);
        QVERIFY(Window().Nodes().SelectNode(path));
        Dialog()->setCurrentIndex(3);
        QCOMPARE(Dialog()->currentIndex(), 3);
        Window().resize(1111, 666);
        Window().Nodes().Filter()->setText("FULL");
        Window().Messages().Add(Severity::Error, "kept");
        Window().Messages().setFocus();
        GuideWindow::Open(&Window());
        const JobNode profile = nodeOf("SHORTTIMEPROFILE");
        (new PanelWindow(profile, *FindDirectPanels(profile).front(), &Window()))->show();
        Choose("Deutsch");
        QCOMPARE(Window().size(), QSize(1111, 666));
        QCOMPARE(Window().Nodes().GetCurrentNode()->path, path);
        QCOMPARE(Window().Nodes().Filter()->text(), "FULL");
        QCOMPARE(Window().Dialog().GetForm(), Form::StandAlone);
        QCOMPARE(Dialog()->currentIndex(), 3);
        QVERIFY(Window().Messages().GetText().endsWith("kept"));
        QCOMPARE(QApplication::focusWidget(), &Window().Messages());
        const auto panels = Window().findChildren<PanelWindow*>();
        QCOMPARE(panels.size(), 1);
        QVERIFY(panels.first()->isVisible());
        QVERIFY(Window().findChild<GuideWindow*>());
    }

    void anOpenComparisonStaysWithItsTicksAndItsSides()
    {
        const QString voiceFrequency = EditorTest::voicePath + Keys::TUNER_HF_NB_FREQUENCY;
        QVERIFY(Tree::Instance()->FindValue(voiceFrequency)->SetStoredText("7040000"));
        QVERIFY(Tree::Instance()->FindValue(EditorTest::voicePath + Keys::TUNER_HF_NB_MGCVALUE)->SetStoredText("20"));
        QPointer<CompareDialog> dialog = Window().Comparing().CompareChains(tunerPath, EditorTest::voicePath);
        dialog->findChild<QPushButton*>("swap")->click();
        dialog->findChild<QLineEdit*>("differenceFilter")->setText("FREQUENCY");
        dialog->findChild<QPushButton*>("tickAll")->click();
        Choose("Deutsch");
        QTRY_VERIFY(!dialog);
        dialog = Window().findChild<CompareDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->windowTitle(), QString("Ketten vergleichen"));
        QCOMPARE(dialog->Model().headerData(DifferenceModel::Left, Qt::Horizontal, Qt::DisplayRole),
                 QString("CS_VOICE/VOICE"));
        QCOMPARE(dialog->Model().rowCount(), 2);
        dialog->findChild<QPushButton*>("takeOver")->click();
        QCOMPARE(Tree::Instance()->FindValue(voiceFrequency)->GetStoredText(), QStringLiteral("10000000"));
        QCOMPARE(dialog->Model().rowCount(), 1);
        // One with a file keeps the other job, and knows when the file is another one.
        QVERIFY(Window().SaveTo(File("a.job.xml")));
        dialog = Window().Comparing().CompareWithSaved();
        Choose("English");
        dialog = Window().findChild<CompareDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        QVERIFY(Tree::Instance()->FindValue(voiceFrequency)->SetStoredText("7050000"));
        dialog->Activate();
        QTRY_COMPARE(dialog->Model().rowCount(), 1);
        QVERIFY(Window().Save());
        QTRY_VERIFY(!dialog);
    }

    /// A text that was translated once and for all would stay in the language of the first time.
    void noDialogKeepsTextsOfTheLanguageBefore()
    {
        const auto textsOfAll = [this]
        {
            QStringList texts;
            for (const Form form : {Form::Job, Form::StandAlone})
                for (const JobNode& node : Window().Nodes().GetNodes())
                    if (const auto dialog = MakeDialog(node, form, nullptr))
                        for (const QWidget* widget : dialog->findChildren<QWidget*>())
                            texts << node.path + ' ' + widget->property("text").toString() +
                                         widget->property("title").toString() + widget->toolTip();
            return texts;
        };
        const QStringList english = textsOfAll();
        Choose("Deutsch");
        const QStringList german = textsOfAll();
        QVERIFY(german != english);
        Choose("English");
        QCOMPARE(textsOfAll(), english);
        Choose("Deutsch");
        QCOMPARE(textsOfAll(), german);
    }
};

QTEST_MAIN(TestLanguages)
#include "test_languages.moc"
