#include "common.h"
#include "jobmodel/nodetemplate.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using JOBXMLGENERATOR::Parameter;
using TKE::Band;
using TKE::JobModel;

namespace
{

// A model of a good group, with more between its first and its last parameter.
QByteArray Parameters(const QByteArray& more)
{
    return "<JobModel version=\"1\">\n<Group name=\"G_A\" title=\"a\">\n"
           "<Parameter name=\"FIRST\" kind=\"bool\" at=\"M\" default=\"true\" description=\"d\"/>\n" +
           more +
           "\n<Parameter name=\"LAST\" kind=\"int\" at=\"M\" default=\"5\" "
           "description=\"d\"/>\n</Group>\n</JobModel>\n";
}

} // namespace

class JobModelTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_directory;
    std::shared_ptr<const JobModel> m_model;

    QString Write(const QString& name, const QByteArray& text)
    {
        WriteAll(m_directory.filePath(name), text);
        return m_directory.filePath(name);
    }
    std::shared_ptr<const JobModel> Read(const QByteArray& text)
    {
        return JobModel::LoadFiles({Write("one.xml", text)});
    }
    // The parameter with these attributes; it lives until the next one is read.
    const Parameter* ReadParameter(const QByteArray& attributes)
    {
        m_model = Read(Parameters("<Parameter name=\"P\" at=\"U\" description=\"d\" " + attributes + "/>"));
        return m_model->FindGroup(u"G_A", Band::Hf)->FindParameter("P");
    }

private slots:
    void theCompiledInModelIsWholeAndWithoutFault()
    {
        const auto model = JobModel::Load();
        for (const TKE::FileError& error : model->GetErrors())
            QFAIL(qPrintable(error.ToText()));
        QSet<QString> names;
        size_t rows = 0;
        for (const auto& group : model->GetGroups())
        {
            names.insert(group->GetName());
            QVERIFY2(!group->GetParameters().empty(), qPrintable(group->GetName()));
            if (group->GetBand() != Band::Vuhf) // the exciter groups come once per band
                rows += group->GetParameters().size();
        }
        QCOMPARE(names.size(), 56);
        QCOMPARE(rows, size_t(871));
    }

    void theBandPicksTheGroupOfTheExciter()
    {
        const auto model = JobModel::Load();
        const auto maximum = [&](Band band)
        { return *model->FindGroup(u"G_EXC_SMU", band)->FindParameter("SmuFrequency")->GetValueDescriptor().maximum; };
        QCOMPARE(maximum(Band::Hf), 30e6);
        QCOMPARE(maximum(Band::Vuhf), 3e9);
        QCOMPARE(model->FindGroup(u"G_TUNER_HF", Band::Vuhf), model->FindGroup(u"G_TUNER_HF", Band::Hf));
        QVERIFY(!model->FindGroup(u"G_NONE", Band::Hf));
    }

    void aDescriptorSaysWhatARowNeeds_data()
    {
        // numbers: float, double, long, integer, list; subControl: -1: not valid
        const Table<QString, int, int> row("numbers", "control", "subControl");
        row("kind='selection' default='1' control='0'", "-----", 0, -1);
        row("kind='int' default='1' control='5' subControl='3' number='long'", "--L--", 5, 3);
        row("kind='double' default='1' control='3' number='float'", "F----", 3, -1);
        row("kind='double' default='1'", "-D---", 3, -1);
        row("kind='int' default='1'", "---I-", 2, -1);
        row("kind='frequency' default='1' control='6' subControl='0'", "-----", 6, 0);
        row("kind='list' default='1;2' control='6'", "----S", 6, -1);
    }
    void aDescriptorSaysWhatARowNeeds()
    {
        QFETCH(int, subControl);
        const Parameter* parameter = ReadParameter(QTest::currentDataTag());
        QVERIFY(parameter);
        const std::pair<bool, char16_t> kinds[] = {{parameter->IsFloat(), u'F'},
                                                   {parameter->IsDouble(), u'D'},
                                                   {parameter->IsLong(), u'L'},
                                                   {parameter->IsInteger(), u'I'},
                                                   {parameter->IsDoubleList(), u'S'}};
        QString numbers;
        for (const auto& [is, letter] : kinds)
            numbers += is ? letter : u'-';
        QTEST(numbers, "numbers");
        QTEST(int(parameter->GetControlType()), "control");
        QCOMPARE(parameter->IsValidControlType(), subControl >= 0);
        QVERIFY(subControl < 0 || parameter->GetControlSubType() == subControl);
    }

    void textsRangeAndPanelUnitArriveUnchanged()
    {
        const Parameter& parameter =
            *ReadParameter("kind='double' default='10.0' min='-0.5' max='20' precision='3' unit='dBµV' "
                           "panelUnit='dB' label='A &lt;b&gt; :' rows='7'");
        QVERIFY(m_model->GetErrors().isEmpty());
        QCOMPARE(parameter.GetLabel(), QString("A <b> :"));
        QCOMPARE(parameter.GetUnit(), QString("dB"));
        QCOMPARE(parameter.GetDescription(), QString("d"));
        QCOMPARE(parameter.GetRowCount(), 7);
        QCOMPARE(parameter.GetFloatPrecision(), 3);
        const TKE::ValueDescriptor& descriptor = parameter.GetValueDescriptor();
        QCOMPARE(descriptor.unit, QString("dBµV"));
        QCOMPARE(*descriptor.minimum, -0.5);
        QCOMPARE(descriptor.defaultText, QString("10")); // as the value stores it
    }

    void eachChannelHasItsOwnDefaultWithinTheRange()
    {
        const Parameter& parameter = *ReadParameter("kind='frequency' perChannel='Channel' default='100' "
                                                    "defaultPerChannel='100+50*(n-1)' min='0' max='210'");
        QCOMPARE(parameter.GetValueDescriptor(3).defaultText, QString("200"));
        QCOMPARE(parameter.GetValueDescriptor(1).defaultText, QString("100"));
        QCOMPARE(parameter.GetValueDescriptor(4).defaultText, QString("210"));
    }

    void aRuleHoldsInTheDataFormToo()
    {
        const auto model = Read(Parameters("<Parameter name='A' kind='bool' at='W' default='true' description='d'/>"
                                           "<Parameter name='B' kind='int' at='WD' default='1' description='d'/>"
                                           "<Rule target='B' source='A' equals='true'/>"));
        QVERIFY(model->GetErrors().isEmpty());
        for (const bool dataForm : {false, true})
        {
            const TKE::NodeTemplate values(*model, {.groups = {"G_A"}, .dataForm = dataForm});
            QCOMPARE(values.GetRules().size(), size_t(1));
        }
    }

    void whatIsFaultyIsNamedWithItsLineAndTheRestIsUsed_data()
    {
        const Table<QByteArray, QString, int> table("text", "reason", "line"); // reason: a piece of it
        const auto row = [&](const QByteArray& element, const char* reason)
        { table(element, Parameters("\n<" + element + "/>"), reason, 5); };
        row("Parameter name='P' at='M' default='1'", "kind");
        row("Parameter name='P' kind='complex' at='M' default='1'", "complex");
        row("Parameter name='P' kind='int' at='M'", "default");
        row("Parameter name='P' kind='int' at='M' default='1.5'", "1.5");
        row("Parameter name='P' kind='int' at='M' default='0' min='3'", "less");
        row("Parameter name='P' kind='int' at='M' default='5' min='9' max='3'", "max");
        row("Parameter name='P' kind='int' at='M' default='5' min='3x'", "3x");
        for (const char* number : {"nan", "inf", "-inf", "1e999"})
            for (const char* limit : {"min", "max", "step"})
                row("Parameter name='P' kind='double' at='M' default='5' " + QByteArray(limit) + "='" + number + "'",
                    limit);
        row("Parameter name='P' kind='double' at='M' default='inf'", "default");
        row("Parameter name='P' kind='int' at='M' default='5' precision='-1'", "precision");
        row("Parameter name='P' kind='list' at='M' default='5' rows='2000000000'", "2000000000");
        row("Parameter name='P' kind='int' at='M' default='99999999999'", "default");
        row("Parameter name='P' kind='int' at='Q' default='5'", "at");
        row("Parameter name='P' kind='int' at='N' default='5'", "perChannel");
        row("Parameter name='P' kind='int' at='M' default='5' control='7'", "control");
        row("Parameter name='P' kind='int' at='M' default='5' defaultPerChannel='5*n'", "5*n");
        row("Parameter name='P' kind='frequency' at='M' default='5' defaultPerChannel='5+9223372036854775807*(n-1)'",
            "9223372036854775807");
        row("Parameter name='P' kind='int' at='M' default='5' defaultPerChannel='5+3000000*(n-1)'", "3000000");
        row("Parameter name='FIRST' kind='int' at='M' default='1'", "twice");
        row("Rule target='LAST' source='NOWHERE' equals='1'", "NOWHERE");
        row("Rule target='LAST' source='FIRST' equals='on'", "on");
        row("Colour", "Colour");
        table("cut off", Parameters({}).chopped(22), "well-formed", 5);
        table("empty", {}, "well-formed", 0); // none of the rest is there
        table("another root", "<Job version=\"1\"/>", "Job", 0);
        table("no group", "<JobModel version=\"1\"/>", "no group", 0);
    }
    void whatIsFaultyIsNamedWithItsLineAndTheRestIsUsed()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QString, reason);
        const auto model = Read(text);
        QVERIFY(!model->GetErrors().isEmpty());
        const TKE::FileError& error = model->GetErrors().first();
        QVERIFY2(error.reason.contains(reason), qPrintable(error.ToText()));
        QCOMPARE(error.file, m_directory.filePath("one.xml"));
        const auto* group = model->FindGroup(u"G_A", Band::Hf);
        QCOMPARE(group != nullptr, line > 0);
        if (group)
        {
            QCOMPARE(error.line, line);
            QVERIFY(group->FindParameter("FIRST"));
            QVERIFY(group->FindParameter("LAST"));
            QVERIFY(!group->FindParameter("P"));
            QVERIFY(group->GetRules().empty());
        }
    }

    void missingFilesAndDirectoriesAreErrorsOfTheirOwn()
    {
        const auto noDirectory = JobModel::Load(m_directory.filePath("nowhere"));
        QCOMPARE(noDirectory->GetErrors().size(), 1);
        QCOMPARE(noDirectory->GetErrors().first().line, 0);
        QVERIFY(noDirectory->GetGroups().empty());
        const auto noFile =
            JobModel::LoadFiles({m_directory.filePath("nowhere.xml"), Write("there.xml", Parameters({}))});
        QCOMPARE(noFile->GetErrors().size(), 1);
        QCOMPARE(noFile->GetErrors().first().file, m_directory.filePath("nowhere.xml"));
        QVERIFY(noFile->FindGroup(u"G_A", Band::Hf));
    }

    void aDirectoryTakesThePlaceOfWhatIsCompiledInAndIsReadAgainWhenItChanges()
    {
        const QString own = m_directory.filePath("own/");
        QVERIFY(QDir().mkpath(own));
        Write("own/a.xml", Parameters({}));
        QVERIFY(QFile::copy(":/models/sample.job.xml", own + "sample.job.xml")); // no descriptors
        const auto first = JobModel::Load(own);
        QVERIFY(first->GetErrors().isEmpty());
        QCOMPARE(first->GetGroups().size(), size_t(1));
        QCOMPARE(JobModel::Load(own), first);
        Write("own/a.xml", Parameters("<Parameter name=\"NEW\" kind=\"int\" at=\"M\" default=\"1\"/>"));
        QVERIFY(JobModel::Load(own)->FindGroup(u"G_A", Band::Hf)->FindParameter("NEW"));
    }
};

QTEST_GUILESS_MAIN(JobModelTest)
#include "test_jobmodel.moc"
