#include "common.h"
#include "jobmodel/exciterparameter.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using TKE::ExciterParameter;
using TKE::ExciterParameterGroup;

namespace
{

const QString fileName = QStringLiteral("exciter_hf.xml");

QByteArray OriginalFile()
{
    const ExciterParameter parameters; // makes the compiled-in files available
    return ReadAll(QStringLiteral(":/models/") + fileName);
}

std::vector<const ExciterParameterGroup*> GroupsOf(const ExciterParameter& parameters)
{
    return {&parameters.SMU(),        &parameters.SCU(),
            &parameters.WDE(),        &parameters.ScanSettings(),
            &parameters.WDEExciter(), &parameters.RasterDetector(),
            &parameters.Simulation(), &parameters.SingleChannelDetector()};
}

} // namespace

class TestExciterParameter : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_directory;

    void Write(const QByteArray& content) const { WriteAll(m_directory->filePath(fileName), content); }
    // The compiled-in file with `from` exchanged.
    static QByteArray Changed(const QByteArray& from, const QByteArray& to)
    {
        QByteArray content = OriginalFile();
        return content.contains(from) ? content.replace(from, to) : QByteArray();
    }

private slots:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }

    void theCompiledInFilesAreComplete_data()
    {
        const Table<bool, QString> row("vuhf", "unit");
        row("HF", false, "[kHz]");
        row("V/UHF", true, "[MHz]");
    }
    void theCompiledInFilesAreComplete()
    {
        QFETCH(bool, vuhf);
        QFETCH(QString, unit);
        const ExciterParameter parameters(QString(), vuhf);
        QCOMPARE(parameters.GetLoadErrorText(), QString());
        QVERIFY(!parameters.HasLoadError());
        QCOMPARE(parameters.ExciterMode().GetUniqueParameterName(), "ExciterMode");
        QCOMPARE(parameters.Autostart().GetUniqueParameterName(), "ExciterAutostart");
        size_t count = 0;
        for (const ExciterParameterGroup* group : GroupsOf(parameters))
        {
            for (const auto* parameter : group->GetParameters())
            {
                ++count;
                QVERIFY2(!parameter->GetLabel().isEmpty(), qPrintable(parameter->GetUniqueParameterName()));
                if (parameter->GetControlType() == JOBXMLGENERATOR::ControlType::Frequency)
                    QVERIFY2(parameter->GetUnit().isEmpty(), qPrintable(parameter->GetUniqueParameterName()));
                // A frequency as text says its unit in the label.
                if (parameter->GetControlSubType() == 2)
                    QVERIFY2(parameter->GetLabel().contains(unit), qPrintable(parameter->GetLabel()));
            }
        }
        QCOMPARE(count, size_t(92));
    }

    void aFaultyFileGivesOneErrorWithItsPlace_data()
    {
        // content: null: no file; error: after the name of the file
        const Table<QByteArray, QString> row("content", "error");
        const QByteArray original = OriginalFile();
        const auto at = [&](const char* text, const char* rest)
        { return QStringLiteral(":%1:\\d+: ").arg(1 + original.left(original.indexOf(text)).count('\n')) + rest; };
        row("missing", {}, ": .+");
        row("empty", "", ".*: .+");
        row("not well-formed", "<JobModel version=\"1\">\n<Group></JobModel>", ":2:\\d+: .+");
        row("cut off", original.left(original.size() / 2), ":\\d+:\\d+: .+");
        row("faulty attribute", Changed("name=\"SmuLevel\" kind=\"double\"", "name=\"SmuLevel\" kind=\"doubel\""),
            at("\"SmuLevel\"", "G_EXC_SMU/SmuLevel: kind: .+"));
        row("parameters missing", Changed("\"SmuLevel\"", "\"Other\"").replace("\"SmuMessage\"", "\"Another\""),
            at("\"G_EXC_SMU\"", "G_EXC_SMU: .*: SmuLevel, SmuMessage"));
        row("mode missing", Changed("\"ExciterMode\"", "\"Other\""),
            at("\"G_EXC_MODE\"", "G_EXC_MODE: .*: ExciterMode"));
        row("group missing", Changed("\"G_EXC_SCU\"", "\"G_OTHER\""), ": G_EXC_SCU: .*ScuRemark");
        row("file of the other band", Changed("\"HF\"", "\"VUHF\""),
            at("\"G_EXC_MODE\"", "G_EXC_MODE: .*: ExciterMode, ExciterAutostart"));
    }
    void aFaultyFileGivesOneErrorWithItsPlace()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, error);
        if (!content.isNull())
            Write(content);
        const ExciterParameter parameters(m_directory->path(), false);
        QVERIFY(parameters.HasLoadError());
        const QString pattern = QRegularExpression::escape(m_directory->filePath(fileName)) + error;
        const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
        QVERIFY2(expression.match(parameters.GetLoadErrorText()).hasMatch(), qPrintable(parameters.GetLoadErrorText()));

        // All can be asked for, and what is missing still has its key.
        QCOMPARE(parameters.ExciterMode().GetUniqueParameterName(), "ExciterMode");
        QCOMPARE(parameters.SMU().Level().GetUniqueParameterName(), "SmuLevel");
        QCOMPARE(parameters.SCU().Remark().GetUniqueParameterName(), "ScuRemark");
        QCOMPARE(parameters.SMU().GetParameters().size(), size_t(15));
    }

    void aFileThatCannotBeReadGivesAnError()
    {
        QVERIFY(QDir(m_directory->path()).mkdir(fileName));
        QVERIFY(ExciterParameter(m_directory->path(), false).HasLoadError());
    }

    void whatTheFileHasIsThereInSpiteOfAnError()
    {
        Write(Changed("\"SmuLevel\"", "\"Other\""));
        const ExciterParameter parameters(m_directory->path(), false);
        QCOMPARE(parameters.SMU().Level().GetLabel(), QString());
        QCOMPARE(parameters.SMU().Frequency().GetLabel(), "Frequency :");
    }

    void anUnchangedFileIsReadOnce()
    {
        const auto* first = &ExciterParameter().SMU();
        QCOMPARE(&ExciterParameter().SMU(), first);
        QVERIFY(&ExciterParameter({}, true).SMU() != first);
    }

    void aChangedFileIsReadAnewAndSetsInUseStay()
    {
        Write("<JobModel");
        const ExciterParameter faulty(m_directory->path(), false);
        QVERIFY(faulty.HasLoadError());
        Write(Changed("\"Level :\"", "\"Power :\""));
        const ExciterParameter changed(m_directory->path(), false);
        QCOMPARE(changed.GetLoadErrorText(), QString());
        QCOMPARE(changed.SMU().Level().GetLabel(), "Power :");
        QVERIFY(faulty.HasLoadError());
        QCOMPARE(faulty.SMU().Level().GetLabel(), QString());
    }
};

QTEST_GUILESS_MAIN(TestExciterParameter)
#include "test_exciterparameter.moc"
