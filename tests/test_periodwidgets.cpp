#include "common.h"
#include "widgetfixture.h"
#include "widgets/vcdateperiod.h"
#include "widgets/vctimeperiod.h"

using namespace TKE;
using namespace WidgetFixture;

namespace
{

const QString startPath = QStringLiteral("/Job/Start");
const QString stopPath = QStringLiteral("/Job/Stop");
TextValue* MakeText(const QString& at, const QString& text)
{
    return static_cast<TextValue*>(Make(at, ValueKind::Text, text));
}

template <class Widget> struct Period : Heard<Widget>
{
    Period(const QString& startText, const QString& stopText) : Heard<Widget>(nullptr, "Period")
    {
        start = MakeText(startPath, startText);
        stop = MakeText(stopPath, stopText);
        this->SetPeriod_ValuePath(startPath, stopPath);
        const auto editors = this->template findChildren<QDateTimeEdit*>();
        startEdit = editors[0];
        stopEdit = editors[1];
    }
    TextValue* start;
    TextValue* stop;
    QDateTimeEdit* startEdit;
    QDateTimeEdit* stopEdit;
};
using Times = Period<VCTimePeriod>;
using Dates = Period<VCDatePeriod>;

void Open(QWidget& window)
{
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class TestPeriodWidgets : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { CleanUp(); }

    void aPeriodNeedsBothValues_data() { EachText("missing", {"start", "stop", "start and stop"}); }
    void aPeriodNeedsBothValues()
    {
        QFETCH(QString, missing);
        const bool start = !missing.contains("start");
        const bool stop = !missing.contains("stop");
        Make(path, ValueKind::Bool, "false");
        TextValue* startValue = start ? MakeText(startPath, {}) : nullptr;
        TextValue* stopValue = stop ? MakeText(stopPath, {}) : nullptr;
        const auto tryIt = [&](auto&& period)
        {
            QVERIFY(!period.SetPeriod_ValuePath(startPath, stopPath));
            QVERIFY(!period.isEnabled());
            QVERIFY(!period.SetPeriod_ValuePath(start ? startPath : path, stop ? stopPath : path)); // it is no text
            for (TextValue* value : {startValue, stopValue})
                QVERIFY(!value || (!value->IsObserved() && value->GetValue().isEmpty()));
        };
        tryIt(VCTimePeriod(nullptr, "Time"));
        tryIt(VCDatePeriod(nullptr, "Date"));
    }

    void emptyValuesTakeWhatTheEditorsShow()
    {
        {
            const Times times({}, {});
            const QTime shown = times.startEdit->time();
            QCOMPARE(shown.second() * 1000 + shown.msec(), 0);
            QCOMPARE(times.start->GetValue(), shown.toString("hh:mm"));
            QCOMPARE(times.stop->GetValue(), shown.addSecs(60).toString("hh:mm")); // past midnight too
        }
        Tree::Instance()->Clear();
        const Dates dates("2020-02-29", {});
        const QString today = dates.stopEdit->date().toString(Qt::ISODate);
        QCOMPARE(dates.startEdit->date(), QDate(2020, 2, 29));
        QCOMPARE(dates.stop->GetValue(), today);
        dates.stop->SetValue({}); // emptied later, it takes the editor's content again
        QCOMPARE(dates.stop->GetValue(), today);
    }

    void loadingWritesNothingElse()
    {
        auto* start = MakeText(startPath, "07:05:30"); // neither of them is a time as the editor writes it
        auto* stop = MakeText(stopPath, "later");
        int writes = 0;
        Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
        QWidget window;
        auto* time = new VCTimePeriod(&window, "Time");
        auto* date = new VCDatePeriod(&window, "Date");
        time->SetPeriod_ValuePath(startPath, stopPath);
        date->SetPeriod_ValuePath(startPath, stopPath);
        Open(window);
        for (int i = 0; i < 6; ++i)
        {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QTest::keyClick(&window, Qt::Key_Tab);
        }
        QCOMPARE(writes, 0);
        QCOMPARE(start->GetValue(), QString("07:05:30"));
        QCOMPARE(stop->GetValue(), QString("later"));
    }

    void aTimePeriodIsNotToldOfItsOwnWriteAndADatePeriodIs()
    {
        {
            const Times times("10:20", "11:30");
            times.stopEdit->setTime(QTime(12, 34));
            QCOMPARE(times.stop->GetValue(), QString("12:34"));
            QCOMPARE(times.start->GetValue(), QString("10:20"));
            QVERIFY(times.codes.empty());
            times.stop->SetValue("23:59");
            QCOMPARE(times.stopEdit->time(), QTime(23, 59));
        }
        Tree::Instance()->Clear();
        const Dates dates("2020-01-02", "2020-01-03");
        dates.startEdit->setDate(QDate(2021, 12, 31));
        QCOMPARE(dates.start->GetValue(), QString("2021-12-31"));
        QCOMPARE(dates.codes, std::vector<int>{ccContent});
    }

    void datesKeepToTheirRange()
    {
        Dates dates("1970-01-01", "2999-12-31");
        Open(dates);
        for (const auto section : {QDateEdit::DaySection, QDateEdit::MonthSection, QDateEdit::YearSection})
        {
            dates.startEdit->setSelectedSection(section);
            QTest::keyClick(dates.startEdit, Qt::Key_Down);
            dates.stopEdit->setSelectedSection(section);
            QTest::keyClick(dates.stopEdit, Qt::Key_Up);
        }
        QCOMPARE(dates.start->GetValue(), QString("1970-01-01"));
        QCOMPARE(dates.stop->GetValue(), QString("2999-12-31"));
    }

    void aPeriodFollowsTheStatesOfItsValues()
    {
        Times times("10:20", "11:30");
        QVERIFY(times.isEnabled());
        times.stop->SetState(stDisabled);
        QVERIFY(!times.isEnabled());
        times.stop->SetState(stEnabled);
        QVERIFY(times.isEnabled());
        Tree::Instance()->RemoveValue(startPath);
        times.startEdit->setTime(QTime(1, 1)); // goes nowhere
        times.stopEdit->setTime(QTime(1, 2));
        QCOMPARE(times.stop->GetValue(), QString("01:02"));
        times.Lock();
        times.stop->SetState(stDisabled);
        times.stop->SetState(stEnabled);
        QVERIFY(!times.isEnabled());
        VCDatePeriod dates(nullptr, "Date");
        dates.Lock();
        QVERIFY(!dates.isEnabled());
    }

    void escapeAndTheLossOfTheValueTakeBackWhatIsTyped()
    {
        Times times("10:20", "11:30");
        Open(times);
        QDateTimeEdit* edit = times.startEdit;
        edit->setFocus();
        edit->setSelectedSection(QTimeEdit::HourSection);
        QTest::keyClicks(edit, "15");
        QCOMPARE(times.start->GetValue(), QString("10:20")); // not while it is typed
        QTest::keyClick(edit, Qt::Key_Escape);
        QCOMPARE(edit->text(), QString("10:20"));
        edit->setSelectedSection(QTimeEdit::HourSection);
        QTest::keyClicks(edit, "15");
        times.stopEdit->setFocus();
        QCOMPARE(times.start->GetValue(), QString("15:20"));
        edit->setFocus();
        edit->setSelectedSection(QTimeEdit::HourSection);
        QTest::keyClicks(edit, "16");
        times.start->SetState(stDisabled);
        QCOMPARE(times.start->GetValue(), QString("15:20"));
        QCOMPARE(edit->text(), QString("15:20"));
    }

    void aPeriodMayBeDeletedByItsOwnWrite()
    {
        const auto stepIn = [](auto* period)
        {
            const QPointer<QWidget> alive(period);
            Hearer rebuild([&] { delete alive; });
            period->start->Attach(&rebuild);
            Open(*period);
            period->startEdit->setFocus();
            QTest::keyClick(period->startEdit, Qt::Key_Up);
            QVERIFY(!alive);
            QCOMPARE(rebuild.codes.size(), size_t(1));
            Tree::Instance()->Clear();
        };
        stepIn(new Times("10:20", "11:30"));
        stepIn(new Dates("2020-01-02", "2020-01-03"));
    }

    void theOtherValueMayGoWhileAPeriodIsBound()
    {
        auto* start = MakeText(startPath, {});
        MakeText(stopPath, {});
        Hearer remove([] { Tree::Instance()->RemoveValue(stopPath); });
        start->Attach(&remove);
        VCTimePeriod period(nullptr, "Time");
        period.SetPeriod_ValuePath(startPath, stopPath);
        QCOMPARE(remove.codes.size(), size_t(1));
        QVERIFY(!start->GetValue().isEmpty());
    }
};

QTEST_MAIN(TestPeriodWidgets)
#include "test_periodwidgets.moc"
