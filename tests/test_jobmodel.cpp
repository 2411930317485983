#include "jobmodel/jobmodel.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using JOBXMLGENERATOR::Parameter;
using TKE::Band;
using TKE::JobModel;
using TKE::ValueKind;

namespace
{

// Every parameter attribute that must be there.
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

    QString Write(const QString& name, const QByteArray& text)
    {
        QFile file(m_directory.filePath(name));
        const bool written = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        return written ? file.fileName() : QString();
    }
    std::shared_ptr<const JobModel> Read(const QByteArray& text)
    {
        return JobModel::LoadFiles({Write("one.xml", text)});
    }
    // What is said of the one parameter with these attributes.
    std::shared_ptr<const JobModel> ReadParameter(const QByteArray& attributes)
    {
        return Read(Parameters("<Parameter name=\"P\" at=\"U\" description=\"d\" " + attributes + "/>"));
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
        const auto* hf = model->FindGroup(u"G_EXC_SMU", Band::Hf);
        const auto* vuhf = model->FindGroup(u"G_EXC_SMU", Band::Vuhf);
        QVERIFY(hf && vuhf);
        const double hfMaximum = *hf->FindParameter("SmuFrequency")->GetValueDescriptor().maximum;
        const double vuhfMaximum = *vuhf->FindParameter("SmuFrequency")->GetValueDescriptor().maximum;
        QCOMPARE(hfMaximum, 30e6);
        QCOMPARE(vuhfMaximum, 3e9);
        QCOMPARE(model->FindGroup(u"G_TUNER_HF", Band::Vuhf), model->FindGroup(u"G_TUNER_HF", Band::Hf));
        QVERIFY(!model->FindGroup(u"G_NONE", Band::Hf));
    }

    void aDescriptorSaysWhatARowNeeds_data()
    {
        QTest::addColumn<QByteArray>("attributes");
        QTest::addColumn<int>("control");
        QTest::addColumn<int>("subControl"); // -1: not valid
        QTest::addColumn<QString>("numbers");

        QTest::newRow("selection") << QByteArray("kind=\"selection\" default=\"1\" control=\"0\"") << 0 << -1 << "";
        QTest::newRow("time") << QByteArray("kind=\"int\" default=\"1\" control=\"5\" subControl=\"3\" number=\"long\"")
                              << 5 << 3 << "long";
        QTest::newRow("float") << QByteArray("kind=\"double\" default=\"1\" control=\"3\" number=\"float\"") << 3 << -1
                               << "float";
        QTest::newRow("double unless said otherwise")
            << QByteArray("kind=\"double\" default=\"1\"") << 3 << -1 << "double";
        QTest::newRow("whole unless said otherwise")
            << QByteArray("kind=\"int\" default=\"1\"") << 2 << -1 << "integer";
        QTest::newRow("frequency") << QByteArray("kind=\"frequency\" default=\"1\" control=\"6\" subControl=\"0\"") << 6
                                   << 0 << "";
        QTest::newRow("list") << QByteArray("kind=\"list\" default=\"1;2\" control=\"6\"") << 6 << -1 << "list";
    }
    void aDescriptorSaysWhatARowNeeds()
    {
        QFETCH(QByteArray, attributes);
        QFETCH(int, control);
        QFETCH(int, subControl);
        QFETCH(QString, numbers);
        const auto model = ReadParameter(attributes);
        const Parameter* parameter = model->FindGroup(u"G_A", Band::Hf)->FindParameter("P");
        QVERIFY(parameter);
        QCOMPARE(int(parameter->GetControlType()), control);
        QCOMPARE(parameter->IsValidControlType(), subControl >= 0);
        if (subControl >= 0)
            QCOMPARE(parameter->GetControlSubType(), subControl);
        QStringList said;
        if (parameter->IsFloat())
            said << "float";
        if (parameter->IsDouble())
            said << "double";
        if (parameter->IsLong())
            said << "long";
        if (parameter->IsInteger())
            said << "integer";
        if (parameter->IsDoubleList())
            said << "list";
        QCOMPARE(said.join(','), numbers);
    }

    void textsRangeAndPanelUnitArriveUnchanged()
    {
        const auto model =
            ReadParameter("kind=\"double\" default=\"10.0\" min=\"-0.5\" max=\"20\" precision=\"3\" unit=\"dBµV\" "
                          "panelUnit=\"dB\" label=\"A &lt;b&gt; :\" rows=\"7\"");
        QVERIFY(model->GetErrors().isEmpty());
        const Parameter& parameter = *model->FindGroup(u"G_A", Band::Hf)->FindParameter("P");
        QCOMPARE(parameter.GetLabel(), QString("A <b> :"));
        QCOMPARE(parameter.GetUnit(), QString("dB"));
        QCOMPARE(parameter.GetDescription(), QString("d"));
        QCOMPARE(parameter.GetRowCount(), 7);
        QCOMPARE(parameter.GetFloatPrecision(), 3);
        QCOMPARE(parameter.GetDoublePrecision(), 3);
        const TKE::ValueDescriptor& descriptor = parameter.GetValueDescriptor();
        QCOMPARE(descriptor.unit, QString("dBµV"));
        QCOMPARE(*descriptor.minimum, -0.5);
        QCOMPARE(*descriptor.maximum, 20.0);
        QCOMPARE(descriptor.defaultText, QString("10")); // as the value stores it
    }

    void eachChannelHasItsOwnDefaultWithinTheRange()
    {
        const auto model = ReadParameter("kind=\"frequency\" perChannel=\"Channel\" default=\"100\" "
                                         "defaultPerChannel=\"100+50*(n-1)\" min=\"0\" max=\"210\"");
        const Parameter& parameter = *model->FindGroup(u"G_A", Band::Hf)->FindParameter("P");
        QCOMPARE(parameter.GetValueDescriptor(3).defaultText, QString("200"));
        QCOMPARE(parameter.GetValueDescriptor(1).defaultText, QString("100"));
        QCOMPARE(parameter.GetValueDescriptor(4).defaultText, QString("210"));
        QCOMPARE(&parameter.GetValueDescriptor(3), &parameter.GetValueDescriptor(3));
    }

    void whatIsFaultyIsNamedWithItsLineAndTheRestIsUsed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("reason"); // a piece of it
        QTest::addColumn<bool>("restIsUsed");

        const auto parameter = [](const char* attributes)
        { return Parameters("\n<Parameter name=\"P\" " + QByteArray(attributes) + "/>"); };
        QTest::newRow("no kind") << parameter("at=\"M\" default=\"1\"") << 5 << "kind" << true;
        QTest::newRow("unknown kind") << parameter("kind=\"complex\" at=\"M\" default=\"1\"") << 5 << "complex" << true;
        QTest::newRow("no default") << parameter("kind=\"int\" at=\"M\"") << 5 << "default" << true;
        QTest::newRow("default of another kind")
            << parameter("kind=\"int\" at=\"M\" default=\"1.5\"") << 5 << "1.5" << true;
        QTest::newRow("default outside the range")
            << parameter("kind=\"int\" at=\"M\" default=\"0\" min=\"3\"") << 5 << "less" << true;
        QTest::newRow("range upside down")
            << parameter("kind=\"int\" at=\"M\" default=\"5\" min=\"9\" max=\"3\"") << 5 << "max" << true;
        QTest::newRow("number with a tail")
            << parameter("kind=\"int\" at=\"M\" default=\"5\" min=\"3x\"") << 5 << "3x" << true;
        QTest::newRow("unknown place") << parameter("kind=\"int\" at=\"Q\" default=\"5\"") << 5 << "at" << true;
        QTest::newRow("channel without noun")
            << parameter("kind=\"int\" at=\"N\" default=\"5\"") << 5 << "perChannel" << true;
        QTest::newRow("control") << parameter("kind=\"int\" at=\"M\" default=\"5\" control=\"7\"") << 5 << "control"
                                 << true;
        QTest::newRow("expression") << parameter("kind=\"int\" at=\"M\" default=\"5\" defaultPerChannel=\"5*n\"") << 5
                                    << "5*n" << true;
        QTest::newRow("twice") << Parameters("\n<Parameter name=\"FIRST\" kind=\"int\" at=\"M\" default=\"1\"/>") << 5
                               << "twice" << true;
        QTest::newRow("rule") << Parameters("\n<Rule target=\"LAST\" source=\"NOWHERE\" equals=\"1\"/>") << 5
                              << "NOWHERE" << true;
        QTest::newRow("rule without keys")
            << Parameters("\n<Rule target=\"LAST\" source=\"FIRST\" equals=\"on\"/>") << 5 << "on" << true;
        QTest::newRow("unknown element") << Parameters("\n<Colour/>") << 5 << "Colour" << true;
        QTest::newRow("cut off") << Parameters({}).chopped(22) << 5 << "well-formed" << true;
        QTest::newRow("empty") << QByteArray() << 1 << "well-formed" << false;
        QTest::newRow("another root") << QByteArray("<Job version=\"1\"/>") << 1 << "Job" << false;
        QTest::newRow("no group") << QByteArray("<JobModel version=\"1\"/>") << 1 << "no group" << false;
    }
    void whatIsFaultyIsNamedWithItsLineAndTheRestIsUsed()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QString, reason);
        QFETCH(bool, restIsUsed);
        const auto model = Read(text);
        QVERIFY(!model->GetErrors().isEmpty());
        const TKE::FileError& error = model->GetErrors().first();
        QVERIFY2(error.reason.contains(reason), qPrintable(error.ToText()));
        QCOMPARE(error.file, m_directory.filePath("one.xml"));
        if (text.size() > 30)
            QCOMPARE(error.line, line);
        const auto* group = model->FindGroup(u"G_A", Band::Hf);
        QCOMPARE(group != nullptr, restIsUsed);
        if (group)
        {
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
        QTemporaryDir own;
        const auto write = [&](const QByteArray& text)
        {
            QFile file(own.filePath("a.xml"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(text);
        };
        write(Parameters({}));
        QVERIFY(QFile::copy(":/models/sample.job.xml", own.filePath("sample.job.xml"))); // no descriptors
        const auto first = JobModel::Load(own.path());
        QVERIFY(first->GetErrors().isEmpty());
        QCOMPARE(first->GetGroups().size(), size_t(1));
        QCOMPARE(JobModel::Load(own.path()), first);
        write(Parameters("<Parameter name=\"NEW\" kind=\"int\" at=\"M\" default=\"1\"/>"));
        const auto second = JobModel::Load(own.path());
        QVERIFY(second->FindGroup(u"G_A", Band::Hf)->FindParameter("NEW"));
    }
};

QTEST_GUILESS_MAIN(JobModelTest)
#include "test_jobmodel.moc"
