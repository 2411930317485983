#include "application/translationcenter.h"
#include "editorfixture.h"
#include "jobedit/chaintitles.h"
#include "jobedit/report.h"
#include "jobedit/reportactions.h"

#include <QXmlStreamReader>

using namespace EditorTest;

namespace
{

/// What a reader sees of a report.
struct Document
{
    QString fault{}; ///< why it is no XML; empty when it is
    QString text{};
    QSet<QString> ids{};
    QSet<QString> links{};              ///< to places of the document
    QHash<QString, QStringList> rows{}; ///< cells of each value by its key; the last of a key counts
    bool reachesOutside = false;
};

Document Read(const QByteArray& html)
{
    Document document;
    QXmlStreamReader reader(html);
    QStringList cells;
    while (!reader.atEnd())
    {
        reader.readNext();
        if (reader.isStartElement())
        {
            const auto attributes = reader.attributes();
            document.ids << '#' + attributes.value("id").toString();
            if (attributes.hasAttribute("href"))
                document.links << attributes.value("href").toString();
            document.reachesOutside |=
                attributes.hasAttribute("src") || reader.name() == u"link" || reader.name() == u"script";
            if (reader.name() == u"tr")
                cells.clear();
            else if (reader.name() == u"td")
                cells << QString();
            else if (reader.name() == u"span" && !cells.isEmpty())
                cells.last() += '|';
        }
        else if (reader.isCharacters())
        {
            document.text += reader.text().toString() + ' ';
            if (!cells.isEmpty())
                cells.last() += reader.text().toString();
        }
        else if (reader.isEndElement() && reader.name() == u"tr" && cells.size() == 5)
            document.rows.insert(cells.last(), cells);
    }
    if (reader.hasError())
        document.fault = QString("%1: %2").arg(reader.lineNumber()).arg(reader.errorString());
    return document;
}

} // namespace

class TestReport : public DeskTest
{
    Q_OBJECT

    JobDocument& Job() { return Window().Document(); }
    Document Html(const ReportOptions& options = {}) { return Read(ReadAll(Write("report.html", options))); }
    QString Write(const QString& name, const ReportOptions& options = {})
    {
        FileError error;
        if (!WriteReport(Job(), File(name), options, {}, error))
            qWarning("%s", qPrintable(error.ToText()));
        return File(name);
    }
    /// -1: that is no PDF.
    qsizetype Pages(const QString& fileName)
    {
        const QByteArray bytes = ReadAll(fileName);
        return bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF") ? bytes.count("/Type /Page\n") : -1;
    }

private Q_SLOTS:
    void init() { Begin(); }
    void cleanup() { End(); }

    void everyValueOfTheJobIsInTheHtml()
    {
        const Document html = Html();
        QVERIFY2(html.fault.isEmpty(), qPrintable(html.fault));
        QVERIFY(!html.reachesOutside);
        QVERIFY(html.links.size() > 50 && (html.links - html.ids).isEmpty());
        QCOMPARE(ReadAll(File("report.html")).count("<td class=\"k\">"), qsizetype(Tree::Instance()->ValueCount()));
        QVERIFY(html.text.contains("Monitoring of HF and V/UHF channels"));
        QVERIFY(!Job().IsModified());
    }

    void contentsAreShownAsPeopleReadThem_data()
    {
        // value: below the job; cells: without the key
        const Table<QString, QString, QStringList> row("value", "stored", "cells");
        const QString on = "\u25cf";
        const QString tuner = "TDS_HF1/CS_TUNER/TUNER/";
        row("frequency", tuner + "TUNER_HF_NB_FREQUENCY", "7040500",
            {on, "Frequency", "7.0405|default: 10 MHz", "MHz"});
        row("selection", tuner + "TUNER_HF_NB_ANALOGDEMOD_METHOD", "4", {on, "Demodulation", "CW|default: USB", ""});
        row("selection with a unit", tuner + "TUNER_HF_NB_AGCDECAY", "50", {on, "Decay", "50|default: 500 ms", "ms"});
        row("unknown key", tuner + "TUNER_HF_NB_ANALOGDEMOD_METHOD", "77", {on, "Demodulation", "77|default: USB", ""});
        row("several keys", "JOB_RESOURCES", "1;5",
            {on, "Resources", "HF receiver 1, HF wideband tuner|default: HF receiver 1, V/UHF receiver 1", ""});
        row("list of frequencies", tuner + "SCAN_SEQ_EXCL_FREQ_RANGE", "3000000;3000100",
            {on, "Excluded ranges", "3 MHz; 3.0001 MHz|default: empty", ""});
        row("switch", tuner + "SCAN_STATUS", "true", {on, "Scan On/Off", "on|default: off", ""});
        row("emptied text", "JOB_AUTHOR", "", {on, "Author", "|default: Operator 1", ""});
        row("as by default", "JOB_AUTHOR", "Operator 1", {"", "Author", "Operator 1", ""});
        row("label with a colon and a unit of the panel", "TDS_EXC/CS_SIM/SIMULATION/Emitter2/EmitterFrequency",
            "10010000", {"", "Emitter2, Frequency", "10.01", "MHz"});
    }
    void contentsAreShownAsPeopleReadThem()
    {
        QFETCH(QString, value);
        QFETCH(QString, stored);
        QFETCH(QStringList, cells);
        Set("/Jobs/Demo/" + value, stored);
        // Several chains have the same keys; only this one is different from its default.
        const Document html = Html({.onlyChanges = !cells.first().isEmpty()});
        QVERIFY2(html.fault.isEmpty(), qPrintable(html.fault));
        const QString key = value.section('/', value.contains("Emitter") ? -2 : -1);
        QCOMPARE(html.rows.value(key), cells + QStringList{key});
    }

    void onlyChangesLeavesOutTheRest()
    {
        QCOMPARE(Html({.onlyChanges = true}).rows.keys(), QStringList{"ExciterMode"}); // the sample's own
        Set(tunerPath + "TUNER_HF_NB_FREQUENCY", "7040500");
        const Document html = Html({.onlyChanges = true});
        QCOMPARE(html.rows.size(), 2);
        QVERIFY(html.text.contains("TDS_HF1/CS_TUNER/TUNER"));
        QVERIFY(!html.text.contains("CS_VOICE"));
        Set(tunerPath + "TUNER_HF_NB_FREQUENCY", "10000000");
        Set("/Jobs/Demo/TDS_EXC_SCAN/ExciterMode", "3");
        const Document none = Html({.onlyChanges = true});
        QVERIFY(none.fault.isEmpty() && none.rows.isEmpty());
        QVERIFY(none.text.contains("No value differs"));
    }

    void hostileTextIsOnlyText()
    {
        const QString hostile = "</td><script>alert('x')</script>&amp;\"\u0001";
        Set("/Jobs/Demo/JOB_AUTHOR", hostile);
        FileError error;
        QVERIFY(Job().SaveAs(File("<i>&\".job.xml"), error));
        const Document html = Html();
        QVERIFY2(html.fault.isEmpty(), qPrintable(html.fault));
        QVERIFY(!html.reachesOutside);
        QVERIFY(html.rows.value("JOB_AUTHOR").value(2).startsWith(hostile.chopped(1)));
        QVERIFY(html.text.contains("Job <i>&\".job.xml"));
    }

    void labelsAndLanguageFollowThePanels()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        TranslationCenter::Instance()->Install(QLocale());
        const Document html = Html();
        QLocale::setDefault(QLocale::C);
        TranslationCenter::Instance()->Install(QLocale());
        QVERIFY(ReadAll(File("report.html")).contains(" lang=\"de\""));
        QCOMPARE(html.rows.value("TUNER_HF_NB_IFBANDWIDTH").value(1), QString("ZF-Bandbreite"));
    }

    void titlesAreThoseOfTheDialogs()
    {
        QSet<const Chain*> seen;
        for (const JobNode& node : Job().GetNodes())
        {
            const Chain* chain = FindChain(node);
            seen << chain;
            if (chain)
                QCOMPARE(ChainTitle(node), MakeDialog(node, Form::Job, nullptr)->windowTitle());
            QVERIFY2(!node.type.startsWith("IPC_") || HasDialog(node), qPrintable(node.path));
        }
        QCOMPARE(size_t(seen.size()), Chains().size() + 1); // and none
    }

    void thePdfHasAsManyPagesAsItTakes()
    {
        const qsizetype all = Pages(Write("all.pdf"));
        QVERIFY2(all > 30, qPrintable(QString::number(all)));
        QCOMPARE(Pages(Write("changes.pdf", {.onlyChanges = true})), qsizetype(2));
        Set("/Jobs/Demo/JOB_AUTHOR", QString("word ").repeated(10000));
        QVERIFY(Pages(Write("long.pdf", {.onlyChanges = true})) > 10);
    }

    void anyPagesWillDo()
    {
        // As a printer gives them: of another size, and begun by somebody else.
        QMap<QPageSize::PageSizeId, qsizetype> pages;
        for (const auto size : {QPageSize::A5, QPageSize::A3})
        {
            QBuffer buffer;
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter writer(&buffer);
            writer.setPageSize(QPageSize(size));
            QVERIFY(PrintReport(Job(), writer, {}, [](qint64, qint64) { return true; }));
            pages[size] = buffer.data().count("/Type /Page\n");
        }
        QVERIFY(pages[QPageSize::A3] > 10 && pages[QPageSize::A5] > 2 * pages[QPageSize::A3]);
    }

    void progressGrowsAndCancelLeavesTheFile_data() { EachText("name", {"there.html", "there.pdf"}); }
    void progressGrowsAndCancelLeavesTheFile()
    {
        QFETCH(QString, name);
        WriteAll(File(name), "kept");
        FileError error;
        int calls = 0;
        const auto cancel = [&](qint64, qint64) { return ++calls < 2; };
        QVERIFY(!WriteReport(Job(), File(name), {}, cancel, error));
        QCOMPARE(calls, 2);
        QVERIFY(error.reason.isEmpty());
        QCOMPARE(ReadAll(File(name)), QByteArray("kept"));

        qint64 last = 0;
        const auto follow = [&](qint64 done, qint64 all)
        {
            const bool grows = done >= last && done <= all;
            last = done;
            return grows;
        };
        QVERIFY(WriteReport(Job(), File(name), {}, follow, error));
        QCOMPARE(last, qint64(Tree::Instance()->ValueCount()));
    }

    void whatCannotBeWrittenIsSaid_data() { EachText("name", {"report.doc", "missing/report.html"}); }
    void whatCannotBeWrittenIsSaid()
    {
        QFETCH(QString, name);
        FileError error;
        QVERIFY(!WriteReport(Job(), File(name), {}, {}, error));
        QCOMPARE(error.file, File(name));
        QVERIFY(!error.reason.isEmpty());
        QVERIFY(!QFile::exists(File(name)));
    }

    void theMenuOffersTheReport()
    {
        const Next escape(
            [](QDialog& dialog)
            {
                QCOMPARE(dialog.objectName(), "reportDialog");
                QTest::keyClick(&dialog, Qt::Key_Escape);
            });
        m_desk->Press(Qt::Key_P);
        QVERIFY(escape.HasActed());
        QVERIFY(Window().findChild<ReportActions*>()->WriteTo(File("window.pdf"), {.onlyChanges = true}));
        QCOMPARE(Pages(File("window.pdf")), qsizetype(2));
    }
};

QTEST_MAIN(TestReport)
#include "test_report.moc"
