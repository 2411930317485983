#include "editorfixture.h"
#include "jobedit/checkdock.h"
#include "jobedit/checker.h"

using namespace EditorTest;

class TestCheck : public DeskTest
{
    Q_OBJECT

    CheckDock* Dock() { return Window().findChild<CheckDock*>(); }
    int Found() { return List()->topLevelItemCount(); }
    QTreeWidget* List() { return Window().findChild<QTreeWidget*>("checkList"); }
    QString Summary() { return Window().findChild<QLabel*>("checkSummary")->text(); }
    bool WaitUntilChecked()
    {
        return QTest::qWaitFor([this] { return !Dock()->IsRunning(); });
    }

private Q_SLOTS:
    void init()
    {
        Begin();
        QVERIFY(WaitUntilChecked());
    }
    void cleanup() { End(); }

    void whatIsWrongWithAValueIsFound_data()
    {
        // content: stored form; says: empty when nothing is wrong
        const Table<QString, QString, bool, QString> row("path", "content", "isError", "says");
        const QString period = "/Jobs/Demo/TDS_HF1/CS_DATA/DATATRANS/SURVEILLANCE_";
        const QString scan = tunerPath + "SCAN_";
        row("unknown item", tunerPath + Keys::TUNER_HF_NB_IFSOURCE, "77", false, "77");
        row("known item", tunerPath + Keys::TUNER_HF_NB_IFSOURCE, "2", false, "");
        row("start after stop", scan + "START_FREQUENCY", "4000000", true, "3500000 Hz");
        row("stop before start", scan + "STOP_FREQUENCY", "1000000", true, "1000000 Hz");
        row("start at stop", scan + "START_FREQUENCY", "3500000", true, "");
        row("list of half a row", scan + "SEQ_EXCL_FREQ_RANGE", "100000;200000;300000", true, "rows of 2");
        row("range turned round", scan + "SEQ_EXCL_FREQ_RANGE", "100000;200000;400000;300000", true, "Row 2");
        row("list too long", scan + "SEQ_FREQUENCY", QString("10000;").repeated(200) + "10000", true, "200");
        row("list full", scan + "SEQ_FREQUENCY", QString("10000;").repeated(199) + "10000", true, "");
        row("dates turned round", period + "DATEPERIOD_START", "2030-01-01", true, "2024-12-31");
        row("no date", period + "DATEPERIOD_STOP", "31.12.2024", true, "yyyy-MM-dd");
        row("past midnight", period + "TIMEPERIOD_START", "22:00", true, "");
        row("no time", period + "TIMEPERIOD_START", "25:00", true, "25:00");
    }
    void whatIsWrongWithAValueIsFound()
    {
        QFETCH(QString, path);
        QFETCH(QString, content);
        QFETCH(bool, isError);
        QFETCH(QString, says);
        QVERIFY2(Value(path), qPrintable(path));
        const Checker checker(*Tree::Instance(), *Window().Document().GetModel());
        QVERIFY(checker.CheckValues().empty());
        Value(path)->SetState(stEnabled);
        Set(path, content);
        const auto findings = checker.CheckValues();
        QCOMPARE(findings.size(), size_t(!says.isEmpty()));
        if (says.isEmpty())
            return;
        QVERIFY2(findings[0].text.contains(says), qPrintable(findings[0].text));
        QCOMPARE(findings[0].severity == FileError::Severity::Error, isError);
        const qsizetype slash = path.lastIndexOf('/');
        QVERIFY(findings[0].path.startsWith(path.left(slash)));
        QVERIFY(!findings[0].label.isEmpty());

        Value(findings[0].path)->SetState(stDisabled);
        QVERIFY(checker.CheckValues().empty());
    }

    void aNumberOutOfItsRangeIsFound()
    {
        Tree tree;
        ValueDescriptor descriptor = ValueDescriptor::Plain(ValueKind::Int);
        descriptor.label = "Gain :";
        descriptor.unit = "dB";
        descriptor.defaultText = "7";
        descriptor.minimum = 5;
        descriptor.maximum = 9;
        ValueBase* value = tree.CreateValue(u"/A/X", descriptor);
        const Checker checker(tree, *Window().Document().GetModel());
        QVERIFY(checker.CheckValues().empty());
        descriptor.minimum = 8; // as another version of the model has it
        const auto findings = checker.CheckValues();
        QCOMPARE(findings.size(), size_t(1));
        QCOMPARE(findings[0].label, QStringLiteral("Gain"));
        QVERIFY(findings[0].text.contains("7 dB") && findings[0].text.contains("8 to 9 dB"));
        QVERIFY(value->SetStoredText("8") && checker.CheckValues().empty());
    }

    void findingsFollowEditsAndAreGoneToByKeyboard()
    {
        auto* status = Window().findChild<QLabel*>("checkStatus");
        QVERIFY(!status->isVisible());
        const QString path = tunerPath + Keys::TUNER_HF_NB_IFSOURCE;
        Set(path, "77");
        Set(voicePath + "SCAN_START_FREQUENCY", "5000000");
        QTRY_VERIFY(status->isVisible());

        QTest::keyClick(&Window(), Qt::Key_F7);
        QTRY_COMPARE(Found(), 2);
        QVERIFY(WaitUntilChecked());
        QVERIFY(List()->hasFocus() && List()->isVisible());
        QCOMPARE(Summary(), QStringLiteral("Errors: 1, warnings: 1"));
        QCOMPARE(List()->topLevelItem(0)->text(2), tunerPath);
        QTest::keyClick(List(), Qt::Key_Home);
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(m_desk->CurrentPath(), tunerPath);
        auto* field = qobject_cast<QComboBox*>(QApplication::focusWidget());
        QVERIFY(field && field->objectName() == Keys::TUNER_HF_NB_IFSOURCE);

        QTest::keyClick(field, Qt::Key_Home);
        QTRY_COMPARE(Found(), 1);
        Set(voicePath + "SCAN_STOP_FREQUENCY", "6000000");
        QTRY_COMPARE(Found(), 0);
        QVERIFY(!status->isVisible());
    }

    void onlyWhatAppliesIsChecked()
    {
        // A rule switches it on, a panel switches it off.
        QCOMPARE(Value(tunerPath + Keys::TUNER_HF_NB_NF1_BANDWIDTH)->GetState(), stDisabled);
        Set(tunerPath + Keys::TUNER_HF_NB_NF1_BANDWIDTH, "12345");
        QTest::qWait(20);
        QCOMPARE(Found(), 0);
        QVERIFY(Value(tunerPath + Keys::TUNER_HF_NB_NF1_STATUS)->SetBool(true));
        QTRY_COMPARE(Found(), 1);
        FileError error;
        QVERIFY(Window().Document().NewFromSample(error));
        QTRY_COMPARE(Found(), 0);
        const QString node = "/Jobs/Demo/TDS_HF1/CS_CLASS/CLASSIFIER/";
        Window().Nodes().SelectNode(tunerPath);
        Set(node + "TUNER_HF_NB_IFSOURCE", "9");
        QTRY_COMPARE(Found(), 1);
        Value(node + "TUNER_HF_NB_IFSOURCE")->SetState(stDisabled);
        Window().Nodes().SelectNode(node);
        QTRY_COMPARE(Found(), 0);
    }

    void aCheckCanBeStopped()
    {
        for (const JobNode& node : Window().Nodes().GetNodes())
            if (ValueBase* value = Value(node.path + Keys::TUNER_HF_NB_IFSOURCE))
                value->SetStoredText("9");
        QTest::keyClick(&Window(), Qt::Key_F7);
        QVERIFY(WaitUntilChecked());
        const int all = Found();
        QVERIFY(all > 3 && Summary().contains(QString::number(all)));
        QTest::keyClick(&Window(), Qt::Key_F7);
        QVERIFY(Dock()->IsRunning());
        QTest::keyClick(List(), Qt::Key_Escape);
        QVERIFY(!Dock()->IsRunning());
        QTRY_VERIFY(Summary().startsWith("Stopped"));
        QVERIFY(Found() < all);
    }
};

QTEST_MAIN(TestCheck)
#include "test_check.moc"
