#include "value/tree.h"
#include "widgets/vccheckablegroupbox.h"
#include "widgets/vcdateperiod.h"
#include "widgets/vctimeperiod.h"

#include <QtTest>
#include <QtWidgets>

using namespace TKE;

namespace
{

const QString startPath = QStringLiteral("/Job/Start");
const QString stopPath = QStringLiteral("/Job/Stop");
const QString switchPath = QStringLiteral("/Job/Switch");

ValueDescriptor Switch()
{
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind::Selection;
    descriptor.items = {{0, "Off"}, {1, "On"}, {5, "Auto"}};
    descriptor.defaultText = "0";
    return descriptor;
}
const ValueDescriptor described = Switch();

TextValue* MakeText(const QString& path, const QString& text)
{
    auto* value = Tree::Instance()->CreateValue<TextValue>(path);
    value->SetValue(text);
    return value;
}

struct Hearer : IObserver
{
    void Update(Observable*, TChangeCode code) override
    {
        if (code == ccContent && then)
            then();
        count += code == ccContent;
    }
    int count = 0;
    std::function<void()> then;
};

template <class Widget> struct Heard : Widget
{
    using Widget::Widget;
    void Update(Observable* source, TChangeCode code) override
    {
        codes.push_back(code);
        Widget::Update(source, code);
    }
    std::vector<int> codes;
};

void Open(QWidget& window)
{
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

class TestPeriodWidgets : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Tree::Instance()->SetJournal({});
        Tree::Instance()->Clear();
    }

    void aGroupBoxIsDisabledUntilAValueEnablesIt();
    void aGroupBoxTakesBooleansAndSelectionsOnly();
    void aGroupBoxShowsAnyKeyButZeroAsChecked();
    void aGroupBoxWritesWhatIsToggled();
    void aGroupBoxForgetsAReleasedValue();
    void aLockedGroupBoxStaysDisabled();
    void aGroupBoxMayBeDeletedByItsOwnWrite();

    void aPeriodNeedsBothValues_data();
    void aPeriodNeedsBothValues();
    void emptyValuesTakeWhatTheEditorsShow();
    void loadingWritesNothingElse();
    void aTimePeriodWritesAndIsNotTold();
    void aDatePeriodHearsItsOwnWrite();
    void datesKeepToTheirRange();
    void aPeriodFollowsTheStatesOfItsValues();
    void escapeTakesBackWhatIsTyped();
    void aPeriodMayBeDeletedByItsOwnWrite_data();
    void aPeriodMayBeDeletedByItsOwnWrite();
    void theOtherValueMayGoWhileAPeriodIsBound();
};

void TestPeriodWidgets::aGroupBoxIsDisabledUntilAValueEnablesIt()
{
    auto* value = Tree::Instance()->CreateValue<BoolValue>(switchPath);
    value->SetState(stDisabled);
    VCCheckableGroupBox box(nullptr, "Box", "Tip");
    QVERIFY(!box.isEnabled());
    QVERIFY(box.isCheckable());
    QVERIFY(box.SetValue(value));
    QVERIFY(!box.isEnabled());
    value->SetState(stEnabled);
    QVERIFY(box.isEnabled());
    value->SetState(stDisabled);
    QVERIFY(!box.isEnabled());
}

void TestPeriodWidgets::aGroupBoxTakesBooleansAndSelectionsOnly()
{
    auto* boolean = Tree::Instance()->CreateValue<BoolValue>(switchPath);
    auto* text = MakeText(startPath, "true");
    VCCheckableGroupBox box(nullptr, "Box", {});
    QVERIFY(!box.SetValue(text));
    QVERIFY(!box.SetValue(nullptr));
    QVERIFY(!box.SetBoolValue(nullptr));
    QVERIFY(!text->IsObserved());
    QVERIFY(box.SetBoolValue(boolean));
    QVERIFY(!box.isChecked());
    QVERIFY(!box.SetSelectionValue(nullptr)); // lets go all the same
    QVERIFY(!boolean->IsObserved());
}

void TestPeriodWidgets::aGroupBoxShowsAnyKeyButZeroAsChecked()
{
    auto* value = Tree::Instance()->CreateValue<ValueSelection>(switchPath, described);
    value->SelectKey(5);
    int writes = 0;
    Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
    VCCheckableGroupBox box(nullptr, "Box", {});
    box.setChecked(false);
    QVERIFY(box.SetValue(value));
    QVERIFY(box.isChecked());
    QCOMPARE(writes, 0); // key 5 is no edit to key 1
    value->SelectKey(0);
    QVERIFY(!box.isChecked());
    value->SelectKey(5);
    QVERIFY(box.isChecked());
    value->SetStoredText("99"); // no item, no news
    QVERIFY(box.isChecked());
    QCOMPARE(writes, 3);
}

void TestPeriodWidgets::aGroupBoxWritesWhatIsToggled()
{
    auto* value = Tree::Instance()->CreateValue<ValueSelection>(switchPath, described);
    value->SelectKey(5);
    Heard<VCCheckableGroupBox> box(nullptr, "Box", QString());
    box.setTitle("Title");
    box.SetValue(value);
    QCOMPARE(box.codes, (std::vector<int>{2, 4, 7, 3}));
    Open(box);
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(value->GetCurrentKey(), 0);
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(value->GetCurrentKey(), 1);
    QCOMPARE(box.codes.size(), size_t(4)); // not told of its own writes

    auto* boolean = Tree::Instance()->CreateValue<BoolValue>(u"/Job/Bool");
    box.SetValue(boolean);
    QVERIFY(!box.isChecked());
    box.setChecked(true);
    QVERIFY(boolean->GetValue());
    QCOMPARE(value->GetCurrentKey(), 1);
}

void TestPeriodWidgets::aGroupBoxForgetsAReleasedValue()
{
    auto* value = Tree::Instance()->CreateValue<BoolValue>(switchPath);
    value->SetValue(true);
    VCCheckableGroupBox box(nullptr, "Box", {});
    box.SetValue(value);
    value->SetState(stReleased);
    value->SetState(stDisabled);
    value->SetValue(false);
    QVERIFY(box.isChecked() && box.isEnabled()); // it keeps its look
    box.SetValue(value);
    Tree::Instance()->Clear();
    box.setChecked(!box.isChecked());
}

void TestPeriodWidgets::aLockedGroupBoxStaysDisabled()
{
    auto* value = Tree::Instance()->CreateValue<BoolValue>(switchPath);
    VCCheckableGroupBox box(nullptr, "Box", {});
    box.SetValue(value);
    box.Lock();
    QVERIFY(!box.isEnabled());
    value->SetState(stDisabled);
    value->SetState(stEnabled);
    QVERIFY(!box.isEnabled());
    value->SetValue(true);
    QVERIFY(box.isChecked());
}

void TestPeriodWidgets::aGroupBoxMayBeDeletedByItsOwnWrite()
{
    auto* value = Tree::Instance()->CreateValue<BoolValue>(switchPath);
    QPointer<VCCheckableGroupBox> box(new VCCheckableGroupBox(nullptr, "Box", {}));
    box->setTitle("Title");
    box->SetValue(value);
    Hearer rebuild;
    rebuild.then = [&] { delete box; };
    value->Attach(&rebuild);
    Open(*box);
    QTest::mouseClick(box, Qt::LeftButton, {}, {10, 8});
    QVERIFY(!box);
    QVERIFY(value->GetValue());
}

void TestPeriodWidgets::aPeriodNeedsBothValues_data()
{
    QTest::addColumn<bool>("start");
    QTest::addColumn<bool>("stop");
    QTest::newRow("no start") << false << true;
    QTest::newRow("no stop") << true << false;
    QTest::newRow("neither") << false << false;
}

void TestPeriodWidgets::aPeriodNeedsBothValues()
{
    QFETCH(bool, start);
    QFETCH(bool, stop);
    auto* first = Tree::Instance()->CreateValue<BoolValue>(u"/Job/NoText");
    auto* startValue = start ? MakeText(startPath, {}) : nullptr;
    auto* stopValue = stop ? MakeText(stopPath, {}) : nullptr;
    const auto try_ = [&](auto& period)
    {
        QVERIFY(!period.SetPeriod_ValuePath(startPath, stopPath));
        QVERIFY(!period.isEnabled());
        QVERIFY(!period.SetPeriod_ValuePath(start ? startPath : "/Job/NoText", stop ? stopPath : "/Job/NoText"));
        for (TextValue* value : {startValue, stopValue})
            QVERIFY(!value || (!value->IsObserved() && value->GetValue().isEmpty()));
        QVERIFY(!first->IsObserved());
    };
    VCTimePeriod time(nullptr, "Time");
    VCDatePeriod date(nullptr, "Date");
    try_(time);
    try_(date);
}

void TestPeriodWidgets::emptyValuesTakeWhatTheEditorsShow()
{
    auto* start = MakeText(startPath, {});
    auto* stop = MakeText(stopPath, {});
    auto time = std::make_unique<VCTimePeriod>(nullptr, "Time");
    const QTime shown = time->findChild<QTimeEdit*>("StartTime")->time();
    QCOMPARE(shown.second() * 1000 + shown.msec(), 0);
    QVERIFY(time->SetPeriod_ValuePath(startPath, stopPath));
    QCOMPARE(start->GetValue(), shown.toString("hh:mm"));
    QCOMPARE(stop->GetValue(), shown.addSecs(60).toString("hh:mm")); // past midnight too

    time.reset();
    start->SetValue("2020-02-29");
    stop->SetValue({});
    VCDatePeriod date(nullptr, "Date");
    const QDate today = date.findChild<QDateEdit*>("StopDate")->date();
    QVERIFY(date.SetPeriod_ValuePath(startPath, stopPath));
    QCOMPARE(date.findChild<QDateEdit*>("StartDate")->date(), QDate(2020, 2, 29));
    QCOMPARE(stop->GetValue(), today.toString(Qt::ISODate));
    stop->SetValue({}); // emptied later, it takes the editor's content again
    QCOMPARE(stop->GetValue(), today.toString(Qt::ISODate));
}

void TestPeriodWidgets::loadingWritesNothingElse()
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

void TestPeriodWidgets::aTimePeriodWritesAndIsNotTold()
{
    auto* start = MakeText(startPath, "10:20");
    auto* stop = MakeText(stopPath, "11:30");
    Heard<VCTimePeriod> period(nullptr, "Time");
    period.SetPeriod_ValuePath(startPath, stopPath);
    auto* edit = period.findChild<QTimeEdit*>("StopTime");
    edit->setTime(QTime(12, 34));
    QCOMPARE(stop->GetValue(), QString("12:34"));
    QCOMPARE(start->GetValue(), QString("10:20"));
    QVERIFY(period.codes.empty());
    stop->SetValue("23:59");
    QCOMPARE(edit->time(), QTime(23, 59));
}

void TestPeriodWidgets::aDatePeriodHearsItsOwnWrite()
{
    auto* start = MakeText(startPath, "2020-01-02");
    MakeText(stopPath, "2020-01-03");
    Heard<VCDatePeriod> period(nullptr, "Date");
    period.SetPeriod_ValuePath(startPath, stopPath);
    period.findChild<QDateEdit*>("StartDate")->setDate(QDate(2021, 12, 31));
    QCOMPARE(start->GetValue(), QString("2021-12-31"));
    QCOMPARE(period.codes, std::vector<int>{3});
}

void TestPeriodWidgets::datesKeepToTheirRange()
{
    auto* start = MakeText(startPath, "1970-01-01");
    auto* stop = MakeText(stopPath, "2999-12-31");
    VCDatePeriod period(nullptr, "Date");
    period.SetPeriod_ValuePath(startPath, stopPath);
    Open(period);
    auto* first = period.findChild<QDateEdit*>("StartDate");
    auto* last = period.findChild<QDateEdit*>("StopDate");
    for (const auto section : {QDateEdit::DaySection, QDateEdit::MonthSection, QDateEdit::YearSection})
    {
        first->setSelectedSection(section);
        QTest::keyClick(first, Qt::Key_Down);
        last->setSelectedSection(section);
        QTest::keyClick(last, Qt::Key_Up);
    }
    QCOMPARE(start->GetValue(), QString("1970-01-01"));
    QCOMPARE(stop->GetValue(), QString("2999-12-31"));
}

void TestPeriodWidgets::aPeriodFollowsTheStatesOfItsValues()
{
    auto* start = MakeText(startPath, "10:20");
    auto* stop = MakeText(stopPath, "11:30");
    VCTimePeriod period(nullptr, "Time");
    period.SetPeriod_ValuePath(startPath, stopPath);
    QVERIFY(period.isEnabled());
    stop->SetState(stDisabled);
    QVERIFY(!period.isEnabled());
    stop->SetState(stEnabled);
    QVERIFY(period.isEnabled());
    Tree::Instance()->RemoveValue(startPath);
    period.findChild<QTimeEdit*>("StartTime")->setTime(QTime(1, 1)); // goes nowhere
    period.findChild<QTimeEdit*>("StopTime")->setTime(QTime(1, 2));
    QCOMPARE(stop->GetValue(), QString("01:02"));
    Q_UNUSED(start);
    period.Lock();
    stop->SetState(stDisabled);
    stop->SetState(stEnabled);
    QVERIFY(!period.isEnabled());
}

void TestPeriodWidgets::escapeTakesBackWhatIsTyped()
{
    auto* start = MakeText(startPath, "10:20");
    MakeText(stopPath, "11:30");
    VCTimePeriod period(nullptr, "Time");
    period.SetPeriod_ValuePath(startPath, stopPath);
    Open(period);
    auto* edit = period.findChild<QTimeEdit*>("StartTime");
    edit->setFocus();
    edit->setSelectedSection(QTimeEdit::HourSection);
    QTest::keyClicks(edit, "15");
    QCOMPARE(start->GetValue(), QString("10:20")); // not while it is typed
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString("10:20"));
    edit->setSelectedSection(QTimeEdit::HourSection);
    QTest::keyClicks(edit, "15");
    period.findChild<QTimeEdit*>("StopTime")->setFocus();
    QCOMPARE(start->GetValue(), QString("15:20"));
}

void TestPeriodWidgets::aPeriodMayBeDeletedByItsOwnWrite_data()
{
    QTest::addColumn<bool>("dates");
    QTest::newRow("times") << false;
    QTest::newRow("dates") << true;
}

void TestPeriodWidgets::aPeriodMayBeDeletedByItsOwnWrite()
{
    QFETCH(bool, dates);
    auto* start = MakeText(startPath, dates ? "2020-01-02" : "10:20");
    MakeText(stopPath, dates ? "2020-01-02" : "10:20");
    QPointer<QWidget> period;
    if (dates)
        period = new VCDatePeriod(nullptr, "Date");
    else
        period = new VCTimePeriod(nullptr, "Time");
    if (dates)
        static_cast<VCDatePeriod*>(period.data())->SetPeriod_ValuePath(startPath, stopPath);
    else
        static_cast<VCTimePeriod*>(period.data())->SetPeriod_ValuePath(startPath, stopPath);
    Hearer rebuild;
    rebuild.then = [&] { delete period; };
    start->Attach(&rebuild);
    Open(*period);
    auto* edit = period->findChild<QDateTimeEdit*>(dates ? "StartDate" : "StartTime");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Up);
    QVERIFY(!period);
    QCOMPARE(rebuild.count, 1);
}

void TestPeriodWidgets::theOtherValueMayGoWhileAPeriodIsBound()
{
    auto* start = MakeText(startPath, {});
    MakeText(stopPath, {});
    Hearer remove;
    remove.then = [] { Tree::Instance()->RemoveValue(stopPath); };
    start->Attach(&remove);
    VCTimePeriod period(nullptr, "Time");
    period.SetPeriod_ValuePath(startPath, stopPath);
    QCOMPARE(remove.count, 1);
    QVERIFY(!start->GetValue().isEmpty());
}

QTEST_MAIN(TestPeriodWidgets)
#include "test_periodwidgets.moc"
