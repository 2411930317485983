#include "application/errorhandler.h"
#include "value/tree.h"
#include "valuewidgets/decimal.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vcbuttongroup.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vcdatetimeedit.h"
#include "valuewidgets/vcfrequency.h"
#include "valuewidgets/vclabel.h"
#include "valuewidgets/vclineedit.h"
#include "valuewidgets/vcnumericfloatspin.h"

#include <QtTest>
#include <QtWidgets>
#include <deque>
#include <set>

using namespace TKE;

namespace
{

const QString path = QStringLiteral("/Job/Value");
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale english(QLocale::English, QLocale::UnitedStates);

std::deque<ValueDescriptor> s_descriptors;

ValueDescriptor& Described(ValueKind kind)
{
    ValueDescriptor& descriptor = s_descriptors.emplace_back();
    descriptor.kind = kind;
    return descriptor;
}

ValueBase* Make(const QString& at, ValueKind kind, const QString& stored)
{
    ValueDescriptor& descriptor = Described(kind);
    if (kind == ValueKind::Selection)
        descriptor.items = {{0, "Off"}, {1, "On"}, {5, "Auto & more"}};
    descriptor.precision = 1;
    descriptor.defaultText = stored;
    return Tree::Instance()->CreateValue(at, descriptor);
}

ValueBase* MakeNumber(ValueKind kind, const QString& stored, double minimum, double maximum, double step = 1.0)
{
    ValueBase* value = Make(path, kind, stored);
    ValueDescriptor& descriptor = s_descriptors.back();
    descriptor.minimum = minimum;
    descriptor.maximum = maximum;
    descriptor.step = step;
    return value;
}

// Each kind of widget with a value of its own, a content to begin with and another one.
struct Subject
{
    ValueKind kind;
    QString first;
    QString second;
    std::function<QWidget*(QWidget*)> make;
    std::function<bool(QWidget*, ValueBase*)> bind;
    std::function<void(QWidget*)> lock;
    std::function<QString(QWidget*)> look;
};

template <class W> Subject Of(ValueKind kind, const QString& first, const QString& second, QString (*look)(W*))
{
    return {kind,
            first,
            second,
            [](QWidget* parent) { return new W(parent); },
            [](QWidget* widget, ValueBase* value) { return static_cast<W*>(widget)->Bind(value); },
            [](QWidget* widget) { static_cast<W*>(widget)->Lock(); },
            [look](QWidget* widget) { return look(static_cast<W*>(widget)); }};
}

QString CheckedButton(VCButtonGroup* group)
{
    for (QRadioButton* button : group->GetButtons())
    {
        if (button->isChecked())
            return button->text();
    }
    return {};
}

const std::vector<std::pair<const char*, Subject>>& Subjects()
{
    static const std::vector<std::pair<const char*, Subject>> subjects{
        {"check box", Of<VCCheckBox>(ValueKind::Bool, "true", "false",
                                     [](VCCheckBox* w) { return w->isChecked() ? QString("on") : QString(); })},
        {"check box of a selection",
         Of<VCCheckBox>(ValueKind::Selection, "5", "0",
                        [](VCCheckBox* w) { return w->isChecked() ? QString("on") : QString(); })},
        {"combo box",
         Of<VCComboBoxClassic>(ValueKind::Selection, "1", "5", [](VCComboBoxClassic* w) { return w->currentText(); })},
        {"button group", Of<VCButtonGroup>(ValueKind::Selection, "1", "5", CheckedButton)},
        {"label", Of<VCLabel>(ValueKind::Selection, "1", "5", [](VCLabel* w) { return w->text(); })},
        {"line edit", Of<VCLineEdit>(ValueKind::Text, "abc", "xyz", [](VCLineEdit* w) { return w->text(); })},
        {"spin box of an integer",
         Of<VCNumericFloatSpin>(ValueKind::Int, "7", "9", [](VCNumericFloatSpin* w) { return w->text(); })},
        {"spin box of a number",
         Of<VCNumericFloatSpin>(ValueKind::Double, "7.5", "9", [](VCNumericFloatSpin* w) { return w->text(); })},
        {"date and time", Of<VCDateTimeEdit>(ValueKind::DateTime, "2020-01-15T10:20:30", "2021-02-03T04:05:06",
                                             [](VCDateTimeEdit* w) { return w->text().trimmed(); })},
        {"frequency", Of<VCFrequency>(ValueKind::Frequency, "433920000", "100",
                                      [](VCFrequency* w) { return w->GetNumberField()->text(); })},
    };
    return subjects;
}

void AddSubjectRows()
{
    QTest::addColumn<size_t>("index");
    for (size_t i = 0; i < Subjects().size(); ++i)
        QTest::newRow(Subjects()[i].first) << i;
}

const Subject& CurrentSubject()
{
    QFETCH(size_t, index);
    return Subjects()[index].second;
}

class Counter : public IObserver
{
public:
    explicit Counter(std::function<void()> then = {}) : m_then(std::move(then)) {}
    void Update(Observable*, TChangeCode code) override
    {
        if (code != ccContent)
            return;
        ++count;
        if (m_then)
            m_then();
    }
    int count = 0;

private:
    std::function<void()> m_then;
};

// A window with the widget under test and another field to go to.
struct Window : QWidget
{
    Window()
    {
        auto* box = new QVBoxLayout(this);
        panel = new QWidget(this);
        new QVBoxLayout(panel);
        other = new QLineEdit(this);
        box->addWidget(panel);
        box->addWidget(other);
    }
    ~Window() override { delete panel; }
    template <class W> W* Add(W* widget)
    {
        panel->layout()->addWidget(widget);
        return widget;
    }
    void Open()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
    QPointer<QWidget> panel;
    QLineEdit* other;
};

void Wheel(QWidget* widget)
{
    const QPointF at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(widget, &event);
}

bool HasRedFrame(QWidget* widget)
{
    const QImage image = widget->grab().toImage();
    const QColor edge = image.pixelColor(image.width() / 2, 1);
    return edge.red() > 150 && edge.green() < 100;
}

} // namespace

class TestValueWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(german);
        GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Mega);
    }
    void cleanup()
    {
        Tree::Instance()->SetJournal({});
        Tree::Instance()->Clear();
        s_descriptors.clear();
    }

    void numbersAreUnderstoodAsTheyAreTyped_data();
    void numbersAreUnderstoodAsTheyAreTyped();
    void frequenciesAreReadInExactHertz_data();
    void frequenciesAreReadInExactHertz();
    void frequenciesAreShownExactly_data();
    void frequenciesAreShownExactly();

    void aWidgetShowsItsValueAndFollowsIt_data() { AddSubjectRows(); }
    void aWidgetShowsItsValueAndFollowsIt();
    void aWidgetFollowsTheStateOfItsValue_data() { AddSubjectRows(); }
    void aWidgetFollowsTheStateOfItsValue();
    void aLockedWidgetStaysDisabled_data() { AddSubjectRows(); }
    void aLockedWidgetStaysDisabled();
    void anUnboundWidgetIsDisabledAndEmpty_data() { AddSubjectRows(); }
    void anUnboundWidgetIsDisabledAndEmpty();
    void rebindingLetsGoOfTheOldValue_data() { AddSubjectRows(); }
    void rebindingLetsGoOfTheOldValue();
    void aReleasedValueLeavesTheLook_data() { AddSubjectRows(); }
    void aReleasedValueLeavesTheLook();
    void viewingNeverWrites();
    void anUncheckedGroupBoxKeepsItsRowsOff();

    void aWidgetMayBeDeletedByItsOwnWrite_data();
    void aWidgetMayBeDeletedByItsOwnWrite();
    void theWriterIsNotTold();
    void theWheelWorksInAFocusedWidgetOnly_data();
    void theWheelWorksInAFocusedWidgetOnly();

    void aSelectionIsCheckedByAnyKeyButZero();
    void anUnknownKeyIsShownAndKept();
    void comboBoxesShareHintsByTheirItems();
    void aButtonGroupIsChosenFromByKeysAndMouse();

    void refusedEntriesStayInPlace_data();
    void refusedEntriesStayInPlace();
    void refusalsAreReportedUnlessSuppressed();
    void aLineEditWritesOnReturnAndOnLeaving();
    void aLineEditShowsNumbersInItsFormat();
    void aLineEditShowsFrequenciesInItsUnit();
    void aLineEditReadsDatesAndTimes();
    void aLongTextIsNotCutByEditing();

    void aSpinBoxKeepsWhatItRounds();
    void aSpinBoxShowsWhatLiesOutsideItsRange();
    void aSpinBoxStepsWithinItsRange();
    void aFactorWorksBothWays_data();
    void aFactorWorksBothWays();
    void escapeRestoresWhatTheTreeHolds();

    void aFrequencyIsShownInTheCommonUnit();
    void aTypedUnitGoesBeforeTheCommonOne();
    void aMissingDateIsKeptUntilItIsEdited();
    void aDateIsWrittenByStepsAndByReturn();
};

void TestValueWidgets::numbersAreUnderstoodAsTheyAreTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("expected"); // NaN: refused
    const double refused = std::nan("");
    const auto row = [](const QString& text, const QLocale& locale, double expected)
    { QTest::addRow("%s %s", qPrintable(text), qPrintable(locale.bcp47Name())) << text << locale << expected; };
    row("12", german, 12);
    row(" -0,5 ", german, -0.5);
    row(QString::fromUtf8("−3"), german, -3);
    row("433.92", german, 433.92);
    row("433,92", english, 433.92);
    row("1,234", german, 1.234);
    row("1.234", english, 1.234);
    row("1.234", german, refused); // 1234 or 1,234?
    row("1,234", english, refused);
    row("0.125", german, 0.125); // no group begins with 0
    row("1234.567", german, 1234.567);
    row("1.234,5", english, 1234.5);
    row("1,234.5", german, 1234.5);
    row("1.234.567", english, 1234567);
    row("1 234 567,5", german, 1234567.5);
    row(QString::fromUtf8("1’000"), german, 1000);
    row("12.34.567", german, refused);
    row("1.2.3", german, refused);
    row("1.234,5,6", german, refused);
    row("1,234 5", german, refused);
    row("12 34", german, refused);
    row("1e3", german, 1000);
    row(".5", german, 0.5);
    row("5,", german, 5);
    row(",", german, refused);
    row("", german, refused);
    row("nan", german, refused);
    row("1e999", german, refused);
    row("0x10", german, refused);
    row("--1", german, refused);
}

void TestValueWidgets::numbersAreUnderstoodAsTheyAreTyped()
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

void TestValueWidgets::frequenciesAreReadInExactHertz_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("expected"); // -1: refused
    const auto row = [](const QString& text, qint64 expected) { QTest::newRow(qPrintable(text)) << text << expected; };
    row("433.92M", 433920000);
    row("433,92 MHz", 433920000);
    row("7040 k", 7040000);
    row("433,9200001", -1); // MHz: a tenth of a Hz
    row("433,92000100", 433920001);
    row("1.000000001 ghz", 1000000001);
    row("9007199254740993 Hz", 9007199254740993); // no double holds it
    row("9999999999999 GHz", -1);
    row("5 mHz", -1);
    row("5 m", 5000000);
    row("5 furlongs", -1);
    row("MHz", -1);
    row("", -1);
}

void TestValueWidgets::frequenciesAreReadInExactHertz()
{
    QFETCH(QString, text);
    QFETCH(qint64, expected);
    qint64 hertz = -1;
    QString reason;
    QCOMPARE(SuffixedDouble::FromText(text, SuffixedDouble::Mega, german, hertz, reason), expected >= 0);
    QCOMPARE(hertz, expected);
    QCOMPARE(reason.isEmpty(), expected >= 0);
}

void TestValueWidgets::frequenciesAreShownExactly_data()
{
    QTest::addColumn<qint64>("hertz");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("expected");
    QTest::newRow("trailing zeros go") << qint64(433920000) << 3 << "433,92";
    QTest::newRow("whole") << qint64(7000000) << 3 << "7";
    QTest::newRow("small") << qint64(1) << 4 << "0,000000001";
    QTest::newRow("negative") << qint64(-1500) << 2 << "-1,5";
    QTest::newRow("Hz keep their zeros") << qint64(100) << 1 << "100";
    QTest::newRow("zero") << qint64(0) << 3 << "0";
}

void TestValueWidgets::frequenciesAreShownExactly()
{
    QFETCH(qint64, hertz);
    QFETCH(int, unit);
    QFETCH(QString, expected);
    QCOMPARE(SuffixedDouble::ToText(hertz, SuffixedDouble::ESuffix(unit), german), expected);
}

void TestValueWidgets::aWidgetShowsItsValueAndFollowsIt()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    const std::unique_ptr<QWidget> widget(subject.make(nullptr));
    QVERIFY(subject.bind(widget.get(), value));
    QVERIFY(widget->isEnabled());
    const QString first = subject.look(widget.get());
    QVERIFY(!first.isEmpty());
    QVERIFY(value->SetStoredText(subject.second));
    const QString second = subject.look(widget.get());
    QVERIFY2(second != first, qPrintable(second));
    QVERIFY(value->SetStoredText(subject.first));
    QCOMPARE(subject.look(widget.get()), first);
}

void TestValueWidgets::aWidgetFollowsTheStateOfItsValue()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    value->SetState(stDisabled);
    const std::unique_ptr<QWidget> widget(subject.make(nullptr));
    QVERIFY(subject.bind(widget.get(), value));
    QVERIFY(!widget->isEnabled());
    QVERIFY(!subject.look(widget.get()).isEmpty());
    value->SetState(stEnabled);
    QVERIFY(widget->isEnabled());
    value->SetState(stDisabled);
    QVERIFY(!widget->isEnabled());
}

void TestValueWidgets::aLockedWidgetStaysDisabled()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    const std::unique_ptr<QWidget> widget(subject.make(nullptr));
    subject.bind(widget.get(), value);
    subject.lock(widget.get());
    QVERIFY(!widget->isEnabled());
    value->SetState(stDisabled);
    value->SetState(stEnabled);
    QVERIFY(!widget->isEnabled());
    subject.bind(widget.get(), value);
    QVERIFY(!widget->isEnabled());
    value->SetStoredText(subject.second);
    const QString second = subject.look(widget.get());
    value->SetStoredText(subject.first);
    QVERIFY(subject.look(widget.get()) != second); // disabled, but up to date
}

void TestValueWidgets::anUnboundWidgetIsDisabledAndEmpty()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    ValueBase* list = Make("/Job/List", ValueKind::DoubleList, "1;2");
    const std::unique_ptr<QWidget> widget(subject.make(nullptr));
    const bool showsLists = qobject_cast<VCLabel*>(widget.get());
    for (ValueBase* none : {static_cast<ValueBase*>(nullptr), list})
    {
        if (none && showsLists)
            continue;
        QVERIFY(subject.bind(widget.get(), value));
        QVERIFY(!subject.bind(widget.get(), none));
        QVERIFY(!widget->isEnabled());
        QCOMPARE(subject.look(widget.get()), QString());
        QVERIFY(!list->IsObserved() && !value->IsObserved());
    }
}

void TestValueWidgets::rebindingLetsGoOfTheOldValue()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    ValueBase* other = Make("/Job/Other", subject.kind, subject.second);
    const std::unique_ptr<QWidget> widget(subject.make(nullptr));
    subject.bind(widget.get(), value);
    const QString first = subject.look(widget.get());
    QVERIFY(subject.bind(widget.get(), other));
    QVERIFY(!value->IsObserved());
    const QString second = subject.look(widget.get());
    QVERIFY(second != first);
    value->SetStoredText(subject.second);
    value->SetStoredText(subject.first);
    value->SetState(stDisabled);
    QCOMPARE(subject.look(widget.get()), second);
    QVERIFY(widget->isEnabled());
}

void TestValueWidgets::aReleasedValueLeavesTheLook()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    Window window;
    QWidget* widget = window.Add(subject.make(nullptr));
    subject.bind(widget, value);
    window.Open();
    const QString look = subject.look(widget);
    Tree::Instance()->RemoveBranch(u"/Job");
    QCOMPARE(subject.look(widget), look);
    // An edit that has no value any more goes nowhere, and hurts nobody.
    widget->setFocus();
    for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_5, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(QApplication::focusWidget(), key);
    window.other->setFocus();
}

void TestValueWidgets::viewingNeverWrites()
{
    // Contents that no widget shows as they are.
    const std::vector<std::pair<const char*, QString>> contents{
        {"check box of a selection", "77"},
        {"combo box", "77"},
        {"button group", "77"},
        {"line edit", " two\nlines "},
        {"spin box of a number", "1.23456789"},
        {"spin box of an integer", "7"},
        {"date and time", ""},
        {"frequency", "-1"},
    };
    Window window;
    std::vector<ValueBase*> values;
    for (const auto& [name, content] : contents)
    {
        const auto subject = std::find_if(Subjects().begin(), Subjects().end(),
                                          [&, n = name](const auto& s) { return qstrcmp(s.first, n) == 0; });
        values.push_back(Make(path + name, subject->second.kind, {}));
        values.back()->SetStoredText(content);
        QVERIFY(subject->second.bind(window.Add(subject->second.make(nullptr)), values.back()));
    }
    auto* outside = static_cast<DoubleValue*>(MakeNumber(ValueKind::Double, "1000", 0, 10));
    outside->SetStoredText("1000");
    auto* spin = window.Add(new VCNumericFloatSpin);
    spin->BindPath(path);
    spin->setAdditionalPrecision(0);

    int writes = 0;
    Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
    window.Open();
    std::set<QWidget*> visited;
    for (int i = 0; i < 40; ++i)
    {
        QTest::keyClick(&window, Qt::Key_Tab);
        visited.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    QVERIFY(visited.size() >= contents.size());
    QLocale::setDefault(english);
    for (QWidget* child : window.findChildren<QWidget*>())
        child->setLocale(english);
    GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Giga);
    window.hide();
    QCOMPARE(writes, 0);
    for (size_t i = 0; i < contents.size(); ++i)
        QCOMPARE(values[i]->GetStoredText(), contents[i].second);
}

void TestValueWidgets::anUncheckedGroupBoxKeepsItsRowsOff()
{
    ValueBase* value = Make(path, ValueKind::Bool, "true");
    QGroupBox box;
    box.setCheckable(true);
    box.setChecked(false);
    auto* layout = new QVBoxLayout(&box);
    auto* check = new VCCheckBox;
    check->Set_ValuePath(path);
    layout->addWidget(check);
    value->SetState(stDisabled);
    value->SetState(stEnabled);
    QVERIFY(!check->isEnabled());
    box.setChecked(true);
    QVERIFY(check->isEnabled());
}

void TestValueWidgets::aWidgetMayBeDeletedByItsOwnWrite_data()
{
    using Act = std::function<void(Window&, QWidget*)>;
    QTest::addColumn<size_t>("index");
    QTest::addColumn<std::shared_ptr<Act>>("act");
    const auto row = [](const char* name, const char* subject, Act act)
    {
        const auto found = std::find_if(Subjects().begin(), Subjects().end(),
                                        [&](const auto& s) { return qstrcmp(s.first, subject) == 0; });
        QTest::newRow(name) << size_t(found - Subjects().begin()) << std::make_shared<Act>(std::move(act));
    };
    const auto key = [](Qt::Key pressed) { return [key = pressed](Window&, QWidget* w) { QTest::keyClick(w, key); }; };
    const auto type = [](const QString& text, QWidget* field)
    {
        static_cast<QLineEdit*>(field)->selectAll();
        QTest::keyClicks(field, text);
    };
    row("check box, mouse", "check box",
        [](Window&, QWidget* w) {
            QTest::mouseClick(w, Qt::LeftButton, {}, {8, w->height() / 2});
        });
    row("check box, key", "check box", key(Qt::Key_Space));
    row("combo box, arrow key", "combo box", key(Qt::Key_Down));
    row("combo box, letter", "combo box", key(Qt::Key_A));
    row("combo box, wheel", "combo box", [](Window&, QWidget* w) { Wheel(w); });
    row("combo box, popup by key", "combo box",
        [](Window&, QWidget* w)
        {
            auto* combo = static_cast<QComboBox*>(w);
            combo->showPopup();
            QTest::keyClick(combo->view(), Qt::Key_Down);
            QTest::keyPress(combo->view(), Qt::Key_Return);
        });
    row("combo box, popup by mouse", "combo box",
        [](Window&, QWidget* w)
        {
            auto* combo = static_cast<QComboBox*>(w);
            combo->showPopup();
            QTest::qWait(QApplication::doubleClickInterval() +
                         50); // the popup takes earlier clicks for the opening one
            const QRect item = combo->view()->visualRect(combo->model()->index(2, 0));
            QTest::mouseMove(combo->view()->viewport(), item.center());
            QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, item.center());
        });
    row("button group, arrow key", "button group",
        [](Window&, QWidget* w) { QTest::keyClick(static_cast<VCButtonGroup*>(w)->GetButtons()[1], Qt::Key_Down); });
    row("button group, mouse", "button group",
        [](Window&, QWidget* w)
        {
            QWidget* button = static_cast<VCButtonGroup*>(w)->GetButtons()[2];
            QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
        });
    row("button group, click", "button group",
        [](Window&, QWidget* w) { static_cast<VCButtonGroup*>(w)->GetButtons()[0]->click(); });
    row("line edit, Return", "line edit",
        [type](Window&, QWidget* w)
        {
            type("new", w);
            QTest::keyClick(w, Qt::Key_Return);
        });
    row("line edit, leaving", "line edit",
        [type](Window& window, QWidget* w)
        {
            type("new", w);
            window.other->setFocus();
        });
    row("line edit, leaving by mouse", "line edit",
        [type](Window& window, QWidget* w)
        {
            type("new", w);
            QTest::mouseClick(window.other, Qt::LeftButton);
        });
    row("spin box, arrow key", "spin box of an integer", key(Qt::Key_Up));
    row("spin box, page key", "spin box of a number", key(Qt::Key_PageDown));
    row("spin box, wheel", "spin box of an integer", [](Window&, QWidget* w) { Wheel(w); });
    row("spin box, arrow button", "spin box of an integer",
        [](Window&, QWidget* w) {
            QTest::mousePress(w, Qt::LeftButton, {}, {w->width() - 8, 6});
        });
    row("spin box, stepUp", "spin box of an integer",
        [](Window&, QWidget* w) { static_cast<QAbstractSpinBox*>(w)->stepUp(); });
    row("spin box, Return", "spin box of a number",
        [](Window&, QWidget* w)
        {
            static_cast<QAbstractSpinBox*>(w)->selectAll();
            QTest::keyClicks(w, "3,5");
            QTest::keyClick(w, Qt::Key_Return);
        });
    row("date and time, arrow key", "date and time", key(Qt::Key_Up));
    row("date and time, wheel", "date and time", [](Window&, QWidget* w) { Wheel(w); });
    row("frequency, Return", "frequency",
        [type](Window&, QWidget* w)
        {
            QLineEdit* field = static_cast<VCFrequency*>(w)->GetNumberField();
            type("7040 k", field);
            QTest::keyClick(field, Qt::Key_Return);
        });
}

void TestValueWidgets::aWidgetMayBeDeletedByItsOwnWrite()
{
    const Subject& subject = CurrentSubject();
    QFETCH(std::shared_ptr<std::function<void(Window&, QWidget*)>>, act);
    ValueBase* value = Make(path, subject.kind, subject.first);
    Window window;
    QWidget* widget = window.Add(subject.make(nullptr));
    QVERIFY(subject.bind(widget, value));
    Counter rebuild([&] { delete window.panel; });
    value->Attach(&rebuild);
    window.Open();
    widget->setFocus();
    (*act)(window, widget);
    QTRY_COMPARE(rebuild.count, 1);
    QVERIFY(!window.panel);
    QVERIFY(value->GetStoredText() != subject.first);
}

void TestValueWidgets::theWriterIsNotTold()
{
    class Listening : public VCCheckBox
    {
    public:
        void Update(Observable* source, TChangeCode code) override
        {
            ++heard;
            VCCheckBox::Update(source, code);
        }
        int heard = 0;
    };
    ValueBase* value = Make(path, ValueKind::Bool, "false");
    Listening writer;
    Listening other;
    writer.Set_ValuePath(path);
    other.Set_ValuePath(path);
    writer.click();
    QVERIFY(value->GetBool());
    QCOMPARE(writer.heard, 0);
    QCOMPARE(other.heard, 1);
    QVERIFY(other.isChecked());
}

void TestValueWidgets::theWheelWorksInAFocusedWidgetOnly_data()
{
    QTest::addColumn<size_t>("index");
    for (size_t i = 0; i < Subjects().size(); ++i)
    {
        const QByteArray name = Subjects()[i].first;
        if (name.startsWith("combo") || name.startsWith("spin") || name.startsWith("date"))
            QTest::newRow(name.constData()) << i;
    }
}

void TestValueWidgets::theWheelWorksInAFocusedWidgetOnly()
{
    const Subject& subject = CurrentSubject();
    ValueBase* value = Make(path, subject.kind, subject.first);
    Window window;
    QWidget* widget = window.Add(subject.make(nullptr));
    subject.bind(widget, value);
    window.Open();
    window.other->setFocus();
    Wheel(widget);
    QCOMPARE(value->GetStoredText(), subject.first);
    QVERIFY(!widget->hasFocus());
    widget->setFocus();
    Wheel(widget);
    QVERIFY(value->GetStoredText() != subject.first);
}

void TestValueWidgets::aSelectionIsCheckedByAnyKeyButZero()
{
    auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "5"));
    VCCheckBox check;
    check.Set_ValuePath(path);
    QVERIFY(check.isChecked());
    check.click();
    QCOMPARE(value->GetCurrentKey(), 0);
    check.click();
    QCOMPARE(value->GetCurrentKey(), 1);
    value->SetItems({{1, "On"}}); // nothing to uncheck to: the write is refused
    check.click();
    QVERIFY(check.isChecked());
}

void TestValueWidgets::anUnknownKeyIsShownAndKept()
{
    auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "99"));
    Window window;
    auto* combo = window.Add(new VCComboBoxClassic);
    combo->SetValueSelection_ValuePath(path);
    window.Open();
    combo->setFocus();
    QCOMPARE(combo->count(), 4);
    QCOMPARE(combo->currentText(), QString("99"));
    QTest::keyClick(combo, Qt::Key_Up);
    QCOMPARE(value->GetCurrentKey(), 5);
    QTest::keyClick(combo, Qt::Key_Down); // and back to what was found
    QCOMPARE(value->GetCurrentKey(), 99);
    value->SelectKey(1);
    QCOMPARE(combo->count(), 3);
    value->SetItems({{1, "Eins"}, {2, "Zwei"}});
    QCOMPARE(combo->currentText(), QString("Eins"));
    value->SetItems({{2, "Zwei"}});
    QCOMPARE(combo->currentText(), QString("1"));
    QCOMPARE(value->GetCurrentKey(), 1);
}

void TestValueWidgets::comboBoxesShareHintsByTheirItems()
{
    const auto hintOf = [](const QStringList& names)
    {
        QComboBox bare;
        bare.addItems(names);
        return bare.sizeHint();
    };
    auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "1"));
    VCComboBoxClassic first;
    first.BindPath(path);
    VCComboBoxClassic second;
    second.BindPath(path);
    QCOMPARE(first.sizeHint(), hintOf({"Off", "On", "Auto & more"}));
    QCOMPARE(second.sizeHint(), first.sizeHint());
    const QString wide("A much longer name than all of the others");
    value->SetItems({{1, "On"}, {2, wide}});
    VCComboBoxClassic third;
    third.BindPath(path);
    QCOMPARE(third.sizeHint(), hintOf({"On", wide}));
    QFont font = third.font();
    font.setPointSize(font.pointSize() * 2);
    third.setFont(font);
    QVERIFY(third.sizeHint().height() > first.sizeHint().height());
}

void TestValueWidgets::aButtonGroupIsChosenFromByKeysAndMouse()
{
    auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "0"));
    Window window;
    auto* group = window.Add(new VCButtonGroup);
    QVERIFY(group->SetValueSelection_ValuePath(path));
    window.Open();
    QCOMPARE(group->GetButtons().size(), size_t(3));
    group->GetButtons()[0]->setFocus();
    QTest::keyClick(group->GetButtons()[0], Qt::Key_Down);
    QCOMPARE(value->GetCurrentKey(), 1);
    QTest::mouseClick(group->GetButtons()[2], Qt::LeftButton, {}, {8, group->GetButtons()[2]->height() / 2});
    QCOMPARE(value->GetCurrentKey(), 5);
    value->SetStoredText("99");
    QCOMPARE(CheckedButton(group), QString());
    value->SelectKey(1);
    QCOMPARE(CheckedButton(group), QString("On"));
    value->SetItems({{1, "Only"}});
    QCOMPARE(CheckedButton(group), QString("Only"));
}

void TestValueWidgets::refusedEntriesStayInPlace_data()
{
    QTest::addColumn<ValueKind>("kind");
    QTest::addColumn<bool>("spin");
    QTest::addColumn<QString>("typed");
    QTest::newRow("spin box: no number") << ValueKind::Int << true << "abc";
    QTest::newRow("spin box: fraction of an integer") << ValueKind::Int << true << "1,5";
    QTest::newRow("spin box: above the range") << ValueKind::Int << true << "101";
    QTest::newRow("spin box: empty") << ValueKind::Double << true << "";
    QTest::newRow("spin box: ambiguous") << ValueKind::Double << true << "1.234";
    QTest::newRow("spin box: beyond any integer") << ValueKind::Int << true << "99999999999999999999";
    QTest::newRow("line edit: below the range") << ValueKind::Double << false << "-1";
    QTest::newRow("line edit: unknown unit") << ValueKind::Frequency << false << "7 yards";
    QTest::newRow("line edit: no date") << ValueKind::DateTime << false << "31.02.2020 00:00:00";
}

void TestValueWidgets::refusedEntriesStayInPlace()
{
    QFETCH(ValueKind, kind);
    QFETCH(bool, spin);
    QFETCH(QString, typed);
    ValueBase* value = MakeNumber(kind, kind == ValueKind::DateTime ? "2020-01-31T10:20:30" : "42", 0, 100);
    const QString stored = value->GetStoredText();
    Window window;
    QWidget* widget = nullptr;
    if (spin)
    {
        auto* box = window.Add(new VCNumericFloatSpin);
        QVERIFY(box->SetNumericInt_ValuePath(path));
        widget = box;
    }
    else
    {
        auto* edit = window.Add(new VCLineEdit);
        edit->SuppressErrorMessage(true);
        QVERIFY(edit->SetText_ValuePath(path));
        widget = edit;
    }
    QLineEdit* field = spin ? widget->findChild<QLineEdit*>() : static_cast<QLineEdit*>(widget);
    widget->setToolTip("own");
    window.Open();
    widget->setFocus();
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

void TestValueWidgets::refusalsAreReportedUnlessSuppressed()
{
    ErrorHandler::Interface().Clear();
    QStringList reports;
    const auto subscription =
        ErrorHandler::Interface().Subscribe([&](const ErrorReport& report) { reports.append(report.text); });
    Make(path, ValueKind::Int, "1");
    VCLineEdit edit;
    edit.SetText_ValuePath(path);
    QTest::keyClicks(&edit, "x");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(reports, QStringList(edit.GetRefusal()));
    edit.SuppressErrorMessage(true);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(reports.size(), 1);
}

void TestValueWidgets::aLineEditWritesOnReturnAndOnLeaving()
{
    ValueBase* value = Make(path, ValueKind::Text, "old");
    Counter counter;
    value->Attach(&counter);
    Window window;
    auto* edit = window.Add(new VCLineEdit);
    edit->SetText_ValuePath(path);
    window.Open();
    edit->setFocus();
    QTest::keyClicks(edit, "er");
    QCOMPARE(value->GetText(), QString("old"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(value->GetText(), QString("older"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    window.other->setFocus();
    QCOMPARE(value->GetText(), QString("olde"));
    QCOMPARE(counter.count, 2);
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

void TestValueWidgets::aLineEditShowsNumbersInItsFormat()
{
    ValueBase* value = Make(path, ValueKind::Double, "-7.26");
    VCLineEdit edit;
    edit.SetFormat(3, 1, "<", QString::fromUtf8("°"), 10.0);
    edit.SetText_ValuePath(path);
    QCOMPARE(edit.text(), QString::fromUtf8("<-072,6°"));
    for (const char* typed : {"55", "<55", "055°", " <+55,0° "})
    {
        value->SetStoredText("0");
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(typed));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(value->GetStoredText(), QString("5.5"));
        QCOMPARE(edit.text(), QString::fromUtf8("<055,0°"));
    }
}

void TestValueWidgets::aLineEditShowsFrequenciesInItsUnit()
{
    ValueBase* value = Make(path, ValueKind::Frequency, "7040000");
    VCLineEdit edit;
    edit.SetText_ValuePath(path);
    QCOMPARE(edit.text(), QString("7040000"));
    edit.SetFrequencyForm(true);
    QCOMPARE(edit.text(), QString("7040"));
    edit.SetFrequencyForm(false);
    QCOMPARE(edit.text(), QString("7,04"));
    edit.selectAll();
    QTest::keyClicks(&edit, "14,07");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("14070000"));
    edit.selectAll();
    QTest::keyClicks(&edit, "7100k");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("7100000"));
    QCOMPARE(edit.text(), QString("7,1"));
}

void TestValueWidgets::aLineEditReadsDatesAndTimes()
{
    ValueBase* value = Make(path, ValueKind::DateTime, "2020-01-31T10:20:30");
    VCLineEdit edit;
    edit.SetText_ValuePath(path);
    QCOMPARE(edit.text(), QString("31.01.2020 10:20:30"));
    edit.selectAll();
    QTest::keyClicks(&edit, "01.02.2021 03:04:05");
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("2021-02-01T03:04:05"));
}

void TestValueWidgets::aLongTextIsNotCutByEditing()
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

void TestValueWidgets::aSpinBoxKeepsWhatItRounds()
{
    ValueBase* value = MakeNumber(ValueKind::Double, "1.23456", 0, 100);
    Window window;
    auto* spin = window.Add(new VCNumericFloatSpin);
    spin->SetNumericFloat_ValuePath(path);
    spin->setAdditionalPrecision(1);
    window.Open();
    spin->setFocus();
    QCOMPARE(spin->text(), QString("1,2"));
    QTest::keyClick(spin, Qt::Key_End);
    QTest::keyClicks(spin, "5");
    QTest::keyClick(spin, Qt::Key_Backspace); // as it was: no edit
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("1.23456"));
    QTest::keyClick(spin, Qt::Key_Up); // hidden digits count too
    QCOMPARE(value->GetStoredText(), QString("2.23456"));
    spin->selectAll();
    QTest::keyClicks(spin, "1.25");
    QTest::keyClick(spin, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("1.25"));
}

void TestValueWidgets::aSpinBoxShowsWhatLiesOutsideItsRange()
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

void TestValueWidgets::aSpinBoxStepsWithinItsRange()
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
    spin.selectAll();
    QTest::keyClicks(&spin, "0,5");
    QTest::keyClick(&spin, Qt::Key_Up); // goes on from what was typed
    QCOMPARE(value->GetValue(), 0.6);
}

void TestValueWidgets::aFactorWorksBothWays_data()
{
    QTest::addColumn<ValueKind>("kind");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("Hz as kHz") << ValueKind::Int << "12500" << 0.001 << "12,500"
                               << "3,1"
                               << "3100";
    QTest::newRow("exact") << ValueKind::Double << "1" << 0.001 << "0,0010"
                           << "1,005"
                           << "1005";
    QTest::newRow("times hundred") << ValueKind::Double << "0.25" << 100.0 << "25,0"
                                   << "7"
                                   << "0.07";
    QTest::newRow("no power of ten") << ValueKind::Int << "10" << 0.5 << "5,0"
                                     << "7,5"
                                     << "15";
    QTest::newRow("frequency with a unit") << ValueKind::Frequency << "1500" << 0.001 << "1,500"
                                           << "2 MHz"
                                           << "2000000";
}

void TestValueWidgets::aFactorWorksBothWays()
{
    QFETCH(ValueKind, kind);
    QFETCH(QString, stored);
    QFETCH(double, factor);
    QFETCH(QString, shown);
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    ValueBase* value = Make(path, kind, stored);
    VCNumericFloatSpin spin;
    spin.SetFactor(factor);
    QVERIFY(spin.SetNumericInt_ValuePath(path));
    QCOMPARE(spin.text(), shown);
    spin.selectAll();
    QTest::keyClicks(&spin, typed);
    QTest::keyClick(&spin, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), expected);
}

void TestValueWidgets::escapeRestoresWhatTheTreeHolds()
{
    MakeNumber(ValueKind::Int, "7", 0, 100);
    QDialog dialog;
    auto* layout = new QVBoxLayout(&dialog);
    auto* spin = new VCNumericFloatSpin(&dialog);
    layout->addWidget(spin);
    spin->SetNumericInt_ValuePath(path);
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    spin->setFocus();
    QTest::keyClicks(spin, "5");
    QTest::keyClick(spin, Qt::Key_Escape);
    QCOMPARE(spin->text(), QString("7"));
    QVERIFY(dialog.isVisible());
    QTest::keyClick(spin, Qt::Key_Escape); // nothing to restore: the dialog's
    QVERIFY(!dialog.isVisible());
}

void TestValueWidgets::aFrequencyIsShownInTheCommonUnit()
{
    ValueBase* value = Make(path, ValueKind::Frequency, "433920000");
    ValueBase* second = Make("/Job/Second", ValueKind::Frequency, "1");
    int writes = 0;
    Tree::Instance()->SetJournal([&](const JournalEntry&) { ++writes; });
    VCFrequency frequency;
    frequency.SetFrequency_ValuePath(path);
    VCFrequency other;
    other.SetFrequency_ValuePath("/Job/Second");
    auto* unit = frequency.findChild<QComboBox*>();
    QCOMPARE(frequency.GetNumberField()->text(), QString("433,92"));
    QCOMPARE(unit->currentText(), QString("MHz"));
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
    QCOMPARE(value->GetStoredText(), QString("433920000"));
    QCOMPARE(second->GetStoredText(), QString("1"));
}

void TestValueWidgets::aTypedUnitGoesBeforeTheCommonOne()
{
    ValueBase* value = MakeNumber(ValueKind::Frequency, "10000000", 9000, 30000000);
    Window window;
    auto* frequency = window.Add(new VCFrequency);
    frequency->GetTuneButton()->hide();
    frequency->SetFrequency_ValuePath(path);
    window.Open();
    frequency->setFocus();
    QLineEdit* field = frequency->GetNumberField();
    QCOMPARE(QApplication::focusWidget(), field);
    field->selectAll();
    QTest::keyClicks(field, "7040 k");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(value->GetStoredText(), QString("7040000"));
    QCOMPARE(field->text(), QString("7,04"));
    field->selectAll();
    QTest::keyClicks(field, "433.92M");
    window.other->setFocus();
    QCOMPARE(value->GetStoredText(), QString("7040000"));
    QVERIFY2(field->toolTip().contains("30"), qPrintable(field->toolTip())); // the limit in the unit shown
}

void TestValueWidgets::aMissingDateIsKeptUntilItIsEdited()
{
    ValueBase* value = Make(path, ValueKind::DateTime, "");
    Window window;
    auto* edit = window.Add(new VCDateTimeEdit);
    edit->SetDateTime_ValuePath(path);
    window.Open();
    edit->setFocus();
    QCOMPARE(edit->text(), QString("none"));
    QTest::keyClick(edit, Qt::Key_5);
    QVERIFY(edit->text() != "none");
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QString("none"));
    window.other->setFocus();
    QCOMPARE(value->GetStoredText(), QString());
    edit->setFocus();
    const QString before = QDateTime::currentDateTime().toString("yyyy-MM-ddThh:mm:ss");
    QTest::keyClick(edit, Qt::Key_Up);
    const QString after = QDateTime::currentDateTime().toString("yyyy-MM-ddThh:mm:ss");
    QVERIFY2(value->GetStoredText() >= before && value->GetStoredText() <= after, qPrintable(value->GetStoredText()));
}

void TestValueWidgets::aDateIsWrittenByStepsAndByReturn()
{
    ValueBase* value = Make(path, ValueKind::DateTime, "2020-12-31T23:59:59");
    Window window;
    auto* edit = window.Add(new VCDateTimeEdit);
    edit->SetDateTime_ValuePath(path);
    window.Open();
    edit->setFocus();
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
}

QTEST_MAIN(TestValueWidgets)
#include "test_valuewidgets.moc"
