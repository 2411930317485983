#include "application/errorhandler.h"
#include "common.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/numericvalue.h"
#include "valuewidgets/vcdatetimeedit.h"
#include "valuewidgets/vcfrequency.h"
#include "valuewidgets/vclineedit.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgetfixture.h"

using namespace TKE;
using namespace WidgetFixture;

Q_DECLARE_METATYPE(TKE::ValueKind)

class TestEntryWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(german);
        GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Mega);
    }
    void cleanup() { CleanUp(); }

    void numbersAreUnderstoodAsTheyAreTyped_data()
    {
        const Table<QString, QLocale, double> table("text", "locale", "expected"); // NaN: refused
        const double refused = std::nan("");
        const auto row = [&](const QString& text, const QLocale& locale, double expected)
        { table(text + ' ' + locale.bcp47Name(), text, locale, expected); };
        row("12", german, 12);
        row(" -0,5 ", german, -0.5);
        row(QString::fromUtf8("−3"), german, -3);
        row("433.92", german, 433.92);
        row("433,92", english, 433.92);
        row("1,234", german, 1.234);
        row("1.234", english, 1.234);
        row("1,234", english, refused);
        row("0.125", german, 0.125); // no group begins with 0
        row("1234.567", german, 1234.567);
        row("1.234,5", english, 1234.5);
        row("1,234.5", german, 1234.5);
        row("1.234.567", english, 1234567);
        row("1 234 567,5", german, 1234567.5);
        row(QString::fromUtf8("1’000"), german, 1000);
        row("1e3", german, 1000);
        row(".5", german, 0.5);
        row("5,", german, 5);
        const QLocale arabic(QLocale::Arabic, QLocale::Egypt);
        row(arabic.toString(-7.5), arabic, -7.5); // with signs of its own, and a mark of direction
        row(arabic.toString(1234567), arabic, 1234567);
        for (const char* text :
             {"1.234", "12.34.567", "1.2.3", "1.234,5,6", "1,234 5", "12 34", ",", "", "nan", "1e999", "0x10", "--1"})
            row(text, german, refused); // 1.234 is 1234 or 1,234
    }
    void numbersAreUnderstoodAsTheyAreTyped()
    {
        QFETCH(QString, text);
        QFETCH(QLocale, locale);
        QFETCH(double, expected);
        QString reason;
        const auto read = Decimal::Read(text, locale, reason);
        const auto number = read ? read->ToDouble() : std::nullopt;
        QCOMPARE(number.has_value(), !std::isnan(expected));
        if (number)
            QCOMPARE(*number, expected);
        else if (!read)
            QVERIFY(!reason.isEmpty());
    }

    void whatNoValueCanHoldExactlyIsRefused()
    {
        const struct
        {
            ValueKind kind;
            const char* text;
            double factor;
        } cases[]{{ValueKind::Int, "2147483648", 1.0},
                  {ValueKind::Frequency, "9223372036854775807", 1.0}, // ends the whole numbers
                  {ValueKind::Frequency, "1e300", 0.3},
                  {ValueKind::Double, "1e308", 0.3}, // infinite after the factor
                  {ValueKind::Double, "1e999", 1.0}};
        for (const auto& [kind, text, factor] : cases)
        {
            double stored = 0;
            QString reason;
            QVERIFY2(!NumericValue::Read(*Make(path, kind, {}), text, factor, german, stored, reason), text);
            QVERIFY(!reason.isEmpty());
            Tree::Instance()->Clear();
        }
    }

    void frequenciesAreReadAndShownInExactHertz_data()
    {
        const Table<QString, qint64> table("text", "expected"); // -1: refused
        const auto row = [&](const QString& text, qint64 expected) { table(text, text, expected); };
        row("433.92M", 433920000);
        row("433,92 MHz", 433920000);
        row("7040 k", 7040000);
        row("433,92000100", 433920001);
        row("1.000000001 ghz", 1000000001);
        row("9007199254740993 Hz", 9007199254740993); // no double holds it
        row("5 m", 5000000);
        row("100 Hz", 100);
        row("0", 0);
        for (const char* text : {"433,9200001", "9999999999999 GHz", "5 mHz", "5 furlongs", "MHz", ""})
            row(text, -1); // the first is a tenth of a Hz
    }
    void frequenciesAreReadAndShownInExactHertz()
    {
        QFETCH(QString, text);
        QFETCH(qint64, expected);
        qint64 hertz = -1;
        QString reason;
        QCOMPARE(SuffixedDouble::FromText(text, SuffixedDouble::Mega, german, hertz, reason), expected >= 0);
        QCOMPARE(hertz, expected);
        QCOMPARE(reason.isEmpty(), expected >= 0);
        for (const auto unit :
             {SuffixedDouble::Hertz, SuffixedDouble::Kilo, SuffixedDouble::Mega, SuffixedDouble::Giga})
        {
            const QString shown = SuffixedDouble::ToText(expected, unit, german);
            QVERIFY(expected < 0 ||
                    (SuffixedDouble::FromText(shown, unit, german, hertz, reason) && hertz == expected));
        }
    }

    void refusedEntriesStayInPlace_data()
    {
        const Table<ValueKind, bool, QString> row("kind", "spin", "typed");
        row("spin box: no number", ValueKind::Int, true, "abc");
        row("spin box: fraction of an integer", ValueKind::Int, true, "1,5");
        row("spin box: above the range", ValueKind::Int, true, "101");
        row("spin box: empty", ValueKind::Double, true, "");
        row("spin box: ambiguous", ValueKind::Double, true, "1.234");
        row("spin box: beyond any integer", ValueKind::Int, true, "99999999999999999999");
        row("line edit: below the range", ValueKind::Double, false, "-1");
        row("line edit: unknown unit", ValueKind::Frequency, false, "7 yards");
        row("line edit: no date", ValueKind::DateTime, false, "31.02.2020 00:00:00");
    }
    void refusedEntriesStayInPlace()
    {
        QFETCH(ValueKind, kind);
        QFETCH(bool, spin);
        QFETCH(QString, typed);
        ValueBase* value = MakeNumber(kind, kind == ValueKind::DateTime ? "2020-01-31T10:20:30" : "42", 0, 100);
        const QString stored = value->GetStoredText();
        Window window;
        auto* widget =
            spin ? static_cast<QWidget*>(window.Edit<VCNumericFloatSpin>(value)) : window.Edit<VCLineEdit>(value);
        if (auto* edit = qobject_cast<VCLineEdit*>(widget))
            edit->SuppressErrorMessage(true);
        QLineEdit* field = spin ? widget->findChild<QLineEdit*>() : static_cast<QLineEdit*>(widget);
        widget->setToolTip("own");
        const QString shown = field->text();
        field->selectAll();
        QTest::keyClick(widget, Qt::Key_Delete);
        QTest::keyClicks(widget, typed);
        QVERIFY(!HasRedFrame(widget));
        window.other->setFocus();
        QCOMPARE(value->GetStoredText(), stored);
        QCOMPARE(field->text(), typed);
        QVERIFY(widget->toolTip() != "own" && !widget->toolTip().isEmpty());
        QVERIFY(HasRedFrame(widget));
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Escape);
        QCOMPARE(field->text(), shown);
        QCOMPARE(widget->toolTip(), QString("own"));
        window.other->setFocus();
        QVERIFY(!HasRedFrame(widget));
    }

    void refusalsAreReportedUnlessSuppressed()
    {
        ErrorHandler::Interface().Clear();
        QStringList reports;
        const auto subscription =
            ErrorHandler::Interface().Subscribe([&](const ErrorReport& report) { reports.append(report.text); });
        Make(path, ValueKind::Int, "1");
        VCLineEdit edit;
        edit.SetText_ValuePath(path);
        Enter(&edit, "x");
        QCOMPARE(reports, QStringList(edit.GetRefusal()));
        edit.SuppressErrorMessage(true);
        QTest::keyClick(&edit, Qt::Key_Return);
        Make("/Job/Frequency", ValueKind::Frequency, "1");
        VCFrequency frequency;
        QVERIFY(frequency.SetFrequency_ValuePath("/Job/Frequency"));
        Enter(frequency.GetNumberField(), "x");
        QCOMPARE(frequency.GetNumberField()->text(), QString("x"));
        QCOMPARE(reports.size(), 1);
    }

    void aLineEditWritesOnReturnAndOnLeaving()
    {
        ValueBase* value = Make(path, ValueKind::Text, "old");
        Hearer counter;
        value->Attach(&counter);
        Window window;
        auto* edit = window.Edit<VCLineEdit>(value);
        QTest::keyClicks(edit, "er");
        QCOMPARE(value->GetText(), QString("old"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(value->GetText(), QString("older"));
        QTest::keyClick(edit, Qt::Key_Backspace);
        window.other->setFocus();
        QCOMPARE(value->GetText(), QString("olde"));
        QCOMPARE(counter.codes.size(), size_t(2));
        edit->setFocus();
        QTest::keyClicks(edit, "xyz");
        value->SetStoredText("other"); // the tree goes before what is being typed
        window.other->setFocus();
        QCOMPARE(value->GetText(), QString("other"));
        edit->setFocus();
        QTest::keyClicks(edit, "xyz");
        value->SetState(stDisabled); // takes the focus away, and is no leave to write
        QCOMPARE(value->GetText(), QString("other"));
        QCOMPARE(edit->text(), QString("other"));
    }

    void aLineEditShowsNumbersInItsFormat()
    {
        ValueBase* value = Make(path, ValueKind::Double, "-7.26");
        VCLineEdit edit;
        edit.SetFormat(3, 1, "<", QString::fromUtf8("°"), 10.0);
        edit.SetText_ValuePath(path);
        QCOMPARE(edit.text(), QString::fromUtf8("<-072,6°"));
        for (const char* typed : {"55", "<55", "055°", " <+55,0° "})
        {
            value->SetStoredText("0");
            Enter(&edit, QString::fromUtf8(typed));
            QCOMPARE(value->GetStoredText(), QString("5.5"));
            QCOMPARE(edit.text(), QString::fromUtf8("<055,0°"));
        }
    }

    void aLineEditShowsFrequenciesInItsUnitAndDatesAsUsual()
    {
        ValueBase* value = Make(path, ValueKind::Frequency, "7040000");
        VCLineEdit edit;
        edit.SetText_ValuePath(path);
        QCOMPARE(edit.text(), QString("7040000"));
        edit.SetFrequencyForm(true);
        QCOMPARE(edit.text(), QString("7040"));
        edit.SetFrequencyForm(false);
        QCOMPARE(edit.text(), QString("7,04"));
        Enter(&edit, "14,07");
        QCOMPARE(value->GetStoredText(), QString("14070000"));
        Enter(&edit, "7100k");
        QCOMPARE(value->GetStoredText(), QString("7100000"));
        QCOMPARE(edit.text(), QString("7,1"));

        value = Make("/Job/Date", ValueKind::DateTime, "2020-01-31T10:20:30");
        edit.Bind(value);
        QCOMPARE(edit.text(), QString("31.01.2020 10:20:30"));
        Enter(&edit, "01.02.2021 03:04:05");
        QCOMPARE(value->GetStoredText(), QString("2021-02-01T03:04:05"));
    }

    void aLongTextIsNotCutByEditing()
    {
        const QString text(40000, u'a');
        ValueBase* value = Make(path, ValueKind::Text, text);
        VCLineEdit edit;
        edit.SetText_ValuePath(path);
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClicks(&edit, "b");
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(value->GetText(), text + 'b');
    }

    void aSpinBoxKeepsWhatItRounds()
    {
        ValueBase* value = MakeNumber(ValueKind::Double, "1.23456", 0, 100);
        Window window;
        auto* spin = window.Edit<VCNumericFloatSpin>(value);
        spin->setAdditionalPrecision(1);
        QCOMPARE(spin->text(), QString("1,2"));
        QTest::keyClick(spin, Qt::Key_End);
        QTest::keyClicks(spin, "5");
        QTest::keyClick(spin, Qt::Key_Backspace); // as it was: no edit
        QTest::keyClick(spin, Qt::Key_Return);
        QCOMPARE(value->GetStoredText(), QString("1.23456"));
        QTest::keyClick(spin, Qt::Key_Up); // hidden digits count too
        QCOMPARE(value->GetStoredText(), QString("2.23456"));
        Enter(spin, "1.25");
        QCOMPARE(value->GetStoredText(), QString("1.25"));
    }

    void aSpinBoxShowsWhatLiesOutsideItsRange()
    {
        auto* value = static_cast<IntValue*>(Make(path, ValueKind::Int, "500"));
        s_descriptors.back().minimum = 0; // after the content, as a file of another version brings it
        s_descriptors.back().maximum = 100;
        VCNumericFloatSpin spin;
        spin.SetNumericInt_ValuePath(path);
        QCOMPARE(spin.text(), QString("500"));
        QCOMPARE(spin.value(), 500.0);
        QCOMPARE(spin.maximum(), 100.0);
        QTest::keyClick(&spin, Qt::Key_Up);
        QCOMPARE(value->GetValue(), 500);
        QTest::keyClick(&spin, Qt::Key_Down);
        QCOMPARE(value->GetValue(), 100);
    }

    void aSpinBoxStepsWithinItsRange()
    {
        auto* value = static_cast<DoubleValue*>(MakeNumber(ValueKind::Double, "0.1", 0, 1, 0.1));
        VCNumericFloatSpin spin;
        spin.SetNumericFloat_ValuePath(path);
        spin.stepBy(2);
        QCOMPARE(value->GetStoredText(), QString("0.3")); // not 0.30000000000000004
        spin.stepBy(100);
        QCOMPARE(value->GetValue(), 1.0);
        QTest::keyClick(&spin, Qt::Key_Up);
        QCOMPARE(value->GetValue(), 1.0);
        spin.EnableWrapAround(true);
        QTest::keyClick(&spin, Qt::Key_Up);
        QCOMPARE(value->GetValue(), 0.0);
        Type(&spin, "0,5");
        QTest::keyClick(&spin, Qt::Key_Up); // goes on from what was typed
        QCOMPARE(value->GetValue(), 0.6);
    }

    void aFactorWorksBothWays()
    {
        const struct
        {
            ValueKind kind;
            const char* stored;
            double factor;
            const char *shown, *typed, *expected;
        } cases[]{{ValueKind::Int, "12500", 0.001, "12,500", "3,1", "3100"},
                  {ValueKind::Double, "1", 0.001, "0,0010", "1,005", "1005"}, // exactly
                  {ValueKind::Double, "0.25", 100.0, "25,0", "7", "0.07"},
                  {ValueKind::Int, "10", 0.5, "5,0", "7,5", "15"},
                  {ValueKind::Frequency, "1500", 0.001, "1,500", "2 MHz", "2000000"}};
        for (const auto& [kind, stored, factor, shown, typed, expected] : cases)
        {
            ValueBase* value = Make(path, kind, stored);
            VCNumericFloatSpin spin;
            spin.SetFactor(factor);
            QVERIFY(spin.Bind(value));
            QCOMPARE(spin.text(), QString(shown));
            Enter(&spin, typed);
            QCOMPARE(value->GetStoredText(), QString(expected));
            Tree::Instance()->Clear();
        }
    }

    void escapeRestoresWhatTheTreeHolds()
    {
        MakeNumber(ValueKind::Int, "7", 0, 100);
        QDialog dialog;
        auto* spin = new VCNumericFloatSpin(&dialog);
        spin->SetNumericInt_ValuePath(path);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        spin->setFocus();
        QTest::keyClicks(spin, "5");
        QTest::keyClick(spin, Qt::Key_Escape);
        QCOMPARE(spin->text(), QString("7"));
        QVERIFY(dialog.isVisible());
        QTest::keyClick(spin, Qt::Key_Escape); // nothing to restore: the dialog's
        QVERIFY(!dialog.isVisible());
    }

    void aFrequencyIsShownInTheCommonUnit()
    {
        Make(path, ValueKind::Frequency, "433920000");
        ValueBase* small = Make("/Job/Small", ValueKind::Frequency, "1");
        int writes = 0;
        Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
        VCFrequency frequency, other;
        frequency.SetFrequency_ValuePath(path);
        other.Bind(small);
        auto* unit = frequency.findChild<QComboBox*>();
        QCOMPARE(frequency.GetNumberField()->text(), QString("433,92"));
        const QSize hint = frequency.sizeHint();
        QTest::keyClick(unit, Qt::Key_Up);
        QCOMPARE(GuiCentral::Instance().GetFrequencyUnit(), SuffixedDouble::Kilo);
        QCOMPARE(frequency.GetNumberField()->text(), QString("433920"));
        QCOMPARE(other.GetNumberField()->text(), QString("0,001"));
        QCOMPARE(frequency.sizeHint(), hint);
        GuiCentral::Instance().SetFrequencyUnit(0);
        GuiCentral::Instance().SetFrequencyUnit(5);
        QCOMPARE(GuiCentral::Instance().GetFrequencyUnit(), SuffixedDouble::Kilo);
        QCOMPARE(writes, 0);
    }

    void aTypedUnitGoesBeforeTheCommonOne()
    {
        ValueBase* value = MakeNumber(ValueKind::Frequency, "10000000", 9000, 30000000);
        Window window;
        QLineEdit* field = window.Edit<VCFrequency>(value)->GetNumberField();
        QCOMPARE(QApplication::focusWidget(), field);
        Enter(field, "7040 k");
        QCOMPARE(field->text(), QString("7,04"));
        Type(field, "433.92M");
        window.other->setFocus();
        QCOMPARE(value->GetStoredText(), QString("7040000"));
        QVERIFY2(field->toolTip().contains("30"), qPrintable(field->toolTip())); // the limit in the unit shown
    }

    void aMissingDateIsKeptUntilItIsEdited()
    {
        ValueBase* value = Make(path, ValueKind::DateTime, "");
        Window window;
        auto* edit = window.Edit<VCDateTimeEdit>(value);
        QCOMPARE(edit->text(), QString("none"));
        QTest::keyClick(edit, Qt::Key_5);
        QVERIFY(edit->text() != "none");
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(edit->text(), QString("none"));
        window.other->setFocus();
        QCOMPARE(value->GetStoredText(), QString());
        edit->setFocus();
        const auto now = [] { return QDateTime::currentDateTime().toString("yyyy-MM-ddThh:mm:ss"); };
        const QString before = now();
        QTest::keyClick(edit, Qt::Key_Up);
        const QString written = value->GetStoredText();
        QVERIFY2(written >= before && written <= now(), qPrintable(written));
    }

    void aDateIsWrittenByStepsAndByReturn()
    {
        ValueBase* value = Make(path, ValueKind::DateTime, "2020-12-31T23:59:59");
        Window window;
        auto* edit = window.Edit<VCDateTimeEdit>(value);
        QCOMPARE(edit->text(), QString("31.12.2020 23:59:59"));
        edit->setSelectedSection(QDateTimeEdit::SecondSection);
        QTest::keyClick(edit, Qt::Key_Up);
        QCOMPARE(value->GetStoredText(), QString("2020-12-31T23:59:59")); // stays within its section
        edit->SetDifferential(true);
        QTest::keyClick(edit, Qt::Key_Up);
        QCOMPARE(value->GetStoredText(), QString("2021-01-01T00:00:00"));
        QCOMPARE(edit->text(), QString("01.01.2021 00:00:00"));
        edit->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(edit, "15");
        QCOMPARE(value->GetStoredText(), QString("2021-01-01T00:00:00"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(value->GetStoredText(), QString("2021-01-15T00:00:00"));
        edit->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(edit, "16");
        window.other->setFocus();
        QCOMPARE(value->GetStoredText(), QString("2021-01-16T00:00:00"));
        edit->setFocus();
        edit->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(edit, "17");
        value->SetState(stDisabled); // which ends the edit
        QCOMPARE(value->GetStoredText(), QString("2021-01-16T00:00:00"));
        QCOMPARE(edit->text(), QString("16.01.2021 00:00:00"));
    }
};

QTEST_MAIN(TestEntryWidgets)
#include "test_entrywidgets.moc"
