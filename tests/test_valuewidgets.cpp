#include "common.h"
#include "valuewidgets/guicentral.h"
#include "valuewidgets/vcbuttongroup.h"
#include "valuewidgets/vccheckbox.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vcdatetimeedit.h"
#include "valuewidgets/vcfrequency.h"
#include "valuewidgets/vclabel.h"
#include "valuewidgets/vclineedit.h"
#include "valuewidgets/vcnumericfloatspin.h"
#include "widgetfixture.h"
#include "widgets/vccheckablegroupbox.h"
#include "widgets/vctimeperiod.h"

#include <set>

using namespace TKE;
using namespace WidgetFixture;

namespace
{

QString CheckedButton(const VCButtonGroup& group)
{
    for (QRadioButton* button : group.GetButtons())
        if (button->isChecked())
            return button->text();
    return {};
}

template <class W> QString LookOf(const W& widget)
{
    if constexpr (std::is_same_v<W, VCButtonGroup>)
        return CheckedButton(widget);
    else if constexpr (std::is_same_v<W, VCComboBoxClassic>)
        return widget.currentText();
    else if constexpr (std::is_same_v<W, VCFrequency>)
        return widget.GetNumberField()->text();
    else if constexpr (std::is_same_v<W, VCCheckBox> || std::is_same_v<W, VCCheckableGroupBox>)
        return widget.isChecked() ? "on" : "";
    else
        return widget.text().trimmed();
}

// Each kind of widget with a value of its own, a content to begin with and another one.
struct Subject
{
    ValueKind kind;
    QString first, second;
    QWidget* (*make)();
    bool (*bind)(QWidget*, ValueBase*);
    void (*lock)(QWidget*);
    QString (*look)(QWidget*);
};

template <class W> Subject Of(ValueKind kind, const QString& first, const QString& second)
{
    Subject subject{kind, first, second, {}, {}, {}, {}};
    if constexpr (std::is_same_v<W, VCCheckableGroupBox>)
    {
        subject.make = []() -> QWidget* { return new W(nullptr, "Box", {}); };
        subject.bind = [](QWidget* widget, ValueBase* value) { return static_cast<W*>(widget)->SetValue(value); };
    }
    else
    {
        subject.make = []() -> QWidget* { return new W; };
        subject.bind = [](QWidget* widget, ValueBase* value) { return static_cast<W*>(widget)->Bind(value); };
    }
    subject.lock = [](QWidget* widget) { static_cast<W*>(widget)->Lock(); };
    subject.look = [](QWidget* widget) { return LookOf(*static_cast<W*>(widget)); };
    return subject;
}

const QMap<QString, Subject>& Subjects()
{
    static const QMap<QString, Subject> subjects{
        {"check box", Of<VCCheckBox>(ValueKind::Bool, "true", "false")},
        {"check box of a selection", Of<VCCheckBox>(ValueKind::Selection, "5", "0")},
        {"group box", Of<VCCheckableGroupBox>(ValueKind::Bool, "true", "false")},
        {"group box of a selection", Of<VCCheckableGroupBox>(ValueKind::Selection, "5", "0")},
        {"combo box", Of<VCComboBoxClassic>(ValueKind::Selection, "1", "5")},
        {"button group", Of<VCButtonGroup>(ValueKind::Selection, "1", "5")},
        {"label", Of<VCLabel>(ValueKind::Selection, "1", "5")},
        {"line edit", Of<VCLineEdit>(ValueKind::Text, "abc", "xyz")},
        {"spin box of an integer", Of<VCNumericFloatSpin>(ValueKind::Int, "7", "9")},
        {"spin box of a number", Of<VCNumericFloatSpin>(ValueKind::Double, "7.5", "9")},
        {"date and time", Of<VCDateTimeEdit>(ValueKind::DateTime, "2020-01-15T10:20:30", "2021-02-03T04:05:06")},
        {"frequency", Of<VCFrequency>(ValueKind::Frequency, "433920000", "100")}};
    return subjects;
}

void AddSubjectRows(const char* pattern = "")
{
    EachText("name", QStringList(Subjects().keys()).filter(QRegularExpression(pattern)));
}

// The subject of the row, bound to its value.
struct Bound
{
    Bound()
    {
        QFETCH(QString, name);
        subject = Subjects()[name];
        value = Make(path, subject.kind, subject.first);
        widget = window.Add(subject.make());
        subject.bind(widget, value);
    }
    bool Bind(ValueBase* to) const { return subject.bind(widget, to); }
    QString Look() const { return subject.look(widget); }
    Window window;
    Subject subject;
    ValueBase* value;
    QWidget* widget;
};

using Act = std::function<void(Window&, QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Act)

class TestValueWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QLocale::setDefault(german);
        GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Mega);
    }
    void cleanup() { CleanUp(); }

    void aWidgetFollowsTheContentAndTheStateOfItsValueUnlessLocked_data() { AddSubjectRows(); }
    void aWidgetFollowsTheContentAndTheStateOfItsValueUnlessLocked()
    {
        const Bound bound;
        QVERIFY(bound.widget->isEnabled());
        const QString first = bound.Look();
        QVERIFY(!first.isEmpty());
        QVERIFY(bound.value->SetStoredText(bound.subject.second));
        QVERIFY2(bound.Look() != first, qPrintable(first));
        QVERIFY(bound.value->SetStoredText(bound.subject.first));
        QCOMPARE(bound.Look(), first);
        bound.value->SetState(stDisabled);
        QVERIFY(!bound.widget->isEnabled());
        bound.value->SetState(stEnabled);
        QVERIFY(bound.widget->isEnabled());
        bound.value->SetState(stDisabled);
        bound.Bind(nullptr);
        QVERIFY(bound.Bind(bound.value)); // bound to what is disabled already
        QVERIFY(!bound.widget->isEnabled());
        QCOMPARE(bound.Look(), first);
        // A locked one stays disabled, and up to date.
        bound.subject.lock(bound.widget);
        bound.value->SetState(stEnabled);
        QVERIFY(!bound.widget->isEnabled());
        bound.Bind(bound.value);
        QVERIFY(!bound.widget->isEnabled());
        bound.value->SetStoredText(bound.subject.second);
        QVERIFY(bound.Look() != first);
    }

    // Without a value, a group box is a box only.
    void aWidgetLetsGoOfTheValueItHad_data() { AddSubjectRows("^(?!group)"); }
    void aWidgetLetsGoOfTheValueItHad()
    {
        const Bound bound;
        const QString first = bound.Look();
        ValueBase* list = Make("/Job/List", ValueKind::DoubleList, "1;2"); // labels alone show lists
        for (ValueBase* none : {static_cast<ValueBase*>(nullptr), list})
        {
            if (none && qobject_cast<VCLabel*>(bound.widget))
                continue;
            QVERIFY(bound.Bind(bound.value));
            QVERIFY(!bound.Bind(none));
            QVERIFY(!bound.widget->isEnabled());
            QCOMPARE(bound.Look(), QString());
            QVERIFY(!list->IsObserved() && !bound.value->IsObserved());
        }
        bound.Bind(bound.value);
        QVERIFY(bound.Bind(Make("/Job/Other", bound.subject.kind, bound.subject.second)));
        QVERIFY(!bound.value->IsObserved());
        const QString second = bound.Look();
        QVERIFY(second != first);
        bound.value->SetStoredText(bound.subject.second);
        bound.value->SetStoredText(bound.subject.first);
        bound.value->SetState(stDisabled);
        QCOMPARE(bound.Look(), second);
        QVERIFY(bound.widget->isEnabled());
    }

    void aReleasedValueLeavesTheLook_data() { AddSubjectRows(); }
    void aReleasedValueLeavesTheLook()
    {
        Bound bound;
        bound.window.Open();
        const QString look = bound.Look();
        Tree::Instance()->RemoveBranch(u"/Job");
        QCOMPARE(bound.Look(), look);
        // An edit that has no value any more goes nowhere, and hurts nobody.
        bound.widget->setFocus();
        for (const auto key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_5, Qt::Key_Return, Qt::Key_Escape})
            QTest::keyClick(QApplication::focusWidget(), key);
        bound.window.other->setFocus();
    }

    void viewingNeverWrites()
    {
        // Contents that no widget shows as they are.
        const QMap<QString, QString> contents{
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
        for (const QString& name : contents.keys())
        {
            const Subject subject = Subjects()[name];
            ValueBase* value = Make(path + name, subject.kind, {});
            value->SetStoredText(contents[name]);
            QVERIFY(subject.bind(window.Add(subject.make()), value));
        }
        MakeNumber(ValueKind::Double, "1000", 0, 10)->SetStoredText("1000");
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
        QVERIFY(visited.size() >= size_t(contents.size()));
        QLocale::setDefault(english);
        for (QWidget* child : window.findChildren<QWidget*>())
            child->setLocale(english);
        GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Giga);
        window.hide();
        QCOMPARE(writes, 0);
        for (const QString& name : contents.keys())
            QCOMPARE(Tree::Instance()->FindValue(path + name)->GetStoredText(), contents[name]);
    }

    void whatAnUncheckedGroupBoxHoldsStaysDisabled()
    {
        ValueBase* on = Make("/Job/On", ValueKind::Bool, "false");
        const std::vector values{Make(path, ValueKind::Bool, "true"), Make("/Job/Start", ValueKind::Text, "10:00"),
                                 Make("/Job/Stop", ValueKind::Text, "11:00")};
        VCCheckableGroupBox outer(nullptr, "Outer", {});
        outer.SetValue(on);
        auto* check = new VCCheckBox(&outer);
        auto* inner = new VCCheckableGroupBox(&outer, "Inner", {});
        auto* period = new VCTimePeriod(&outer, "Period");
        check->Bind(values[0]);
        inner->SetValue(values[0]);
        period->SetPeriod_ValuePath("/Job/Start", "/Job/Stop");
        for (ValueBase* value : values)
        {
            value->SetState(stDisabled);
            value->SetState(stEnabled);
        }
        QVERIFY(!check->isEnabled() && !inner->isEnabled() && !period->isEnabled());
        on->SetBool(true);
        QVERIFY(check->isEnabled() && inner->isEnabled() && period->isEnabled());
    }

    void aWidgetMayBeDeletedByItsOwnWrite_data()
    {
        const Table<QString, Act> row("name", "act");
        const auto key = [](Qt::Key pressed) { return [=](Window&, QWidget* w) { QTest::keyClick(w, pressed); }; };
        const Act wheel = [](Window&, QWidget* w) { Wheel(w); };
        const auto clickMark = [](QWidget* button) {
            QTest::mouseClick(button, Qt::LeftButton, {}, {8, button->height() / 2});
        };
        row("check box, mouse", "check box", [=](Window&, QWidget* w) { clickMark(w); });
        row("check box, key", "check box", key(Qt::Key_Space));
        row("group box, key", "group box", key(Qt::Key_Space));
        row("combo box, arrow key", "combo box", key(Qt::Key_Down));
        row("combo box, wheel", "combo box", wheel);
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
                // The popup takes earlier clicks for the opening one.
                QTest::qWait(QApplication::doubleClickInterval() + 50);
                const QRect item = combo->view()->visualRect(combo->model()->index(2, 0));
                QTest::mouseMove(combo->view()->viewport(), item.center());
                QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, item.center());
            });
        row("button group, arrow key", "button group",
            [](Window&, QWidget* w)
            { QTest::keyClick(static_cast<VCButtonGroup*>(w)->GetButtons()[1], Qt::Key_Down); });
        row("button group, mouse", "button group",
            [=](Window&, QWidget* w) { clickMark(static_cast<VCButtonGroup*>(w)->GetButtons()[2]); });
        row("line edit, Return", "line edit", [](Window&, QWidget* w) { Enter(static_cast<QLineEdit*>(w), "new"); });
        row("line edit, leaving", "line edit",
            [](Window& window, QWidget* w)
            {
                Type(static_cast<QLineEdit*>(w), "new");
                window.other->setFocus();
            });
        row("spin box, arrow key", "spin box of an integer", key(Qt::Key_Up));
        row("spin box, wheel", "spin box of an integer", wheel);
        row("spin box, arrow button", "spin box of an integer",
            [](Window&, QWidget* w) {
                QTest::mousePress(w, Qt::LeftButton, {}, {w->width() - 8, 6});
            });
        row("spin box, Return", "spin box of a number",
            [](Window&, QWidget* w) { Enter(static_cast<QAbstractSpinBox*>(w), "3,5"); });
        row("date and time, arrow key", "date and time", key(Qt::Key_Up));
        row("date and time, wheel", "date and time", wheel);
        row("frequency, Return", "frequency",
            [](Window&, QWidget* w) { Enter(static_cast<VCFrequency*>(w)->GetNumberField(), "7040 k"); });
    }
    void aWidgetMayBeDeletedByItsOwnWrite()
    {
        QFETCH(Act, act);
        Bound bound;
        Hearer rebuild([&] { delete bound.window.panel; });
        bound.value->Attach(&rebuild);
        bound.window.Open();
        bound.widget->setFocus();
        act(bound.window, bound.widget);
        QTRY_COMPARE(rebuild.codes.size(), size_t(1));
        QVERIFY(!bound.window.panel);
        QVERIFY(bound.value->GetStoredText() != bound.subject.first);
    }

    void theWriterIsNotTold()
    {
        ValueBase* value = Make(path, ValueKind::Bool, "false");
        Heard<VCCheckBox> writer, other;
        writer.Set_ValuePath(path);
        other.Set_ValuePath(path);
        writer.click();
        QVERIFY(value->GetBool());
        QVERIFY(writer.codes.empty());
        QCOMPARE(other.codes, std::vector<int>{ccContent});
        QVERIFY(other.isChecked());
    }

    void theWheelWorksInAFocusedWidgetOnly_data() { AddSubjectRows("combo|spin|date"); }
    void theWheelWorksInAFocusedWidgetOnly()
    {
        Bound bound;
        bound.window.Open();
        bound.window.other->setFocus();
        Wheel(bound.widget);
        QCOMPARE(bound.value->GetStoredText(), bound.subject.first);
        QVERIFY(!bound.widget->hasFocus());
        bound.widget->setFocus();
        Wheel(bound.widget);
        QVERIFY(bound.value->GetStoredText() != bound.subject.first);
    }

    void aSelectionIsCheckedByAnyKeyButZero_data() { AddSubjectRows("box of a selection"); }
    void aSelectionIsCheckedByAnyKeyButZero()
    {
        Bound bound;
        QCOMPARE(bound.value->GetStoredText(), "5"); // it is no edit to key 1
        for (const char* stored : {"0", "1", "0"})
        {
            QTest::keyClick(bound.widget, Qt::Key_Space);
            QCOMPARE(bound.value->GetStoredText(), stored);
        }
        bound.value->SetStoredText("5");
        QCOMPARE(bound.Look(), "on");
        bound.value->SetStoredText("99"); // no item
        QCOMPARE(bound.Look(), "on");
        bound.value->SetStoredText("1");
        static_cast<ValueSelection*>(bound.value)->SetItems({{1, "On"}}); // nothing to uncheck to: the write is refused
        QTest::keyClick(bound.widget, Qt::Key_Space);
        QCOMPARE(bound.Look(), "on");
    }

    void aGroupBoxTakesBooleansAndSelectionsOnly()
    {
        auto* boolean = static_cast<BoolValue*>(Make(path, ValueKind::Bool, "false"));
        ValueBase* text = Make("/Job/Text", ValueKind::Text, "true");
        VCCheckableGroupBox box(nullptr, "Box", {});
        QVERIFY(!box.SetValue(text) && !box.SetValue(nullptr) && !box.SetBoolValue(nullptr));
        QVERIFY(!box.isEnabled());
        QVERIFY(!text->IsObserved());
        QVERIFY(box.SetBoolValue(boolean));
        QVERIFY(!box.isChecked());
        QVERIFY(!box.SetSelectionValue(nullptr)); // lets go all the same
        QVERIFY(!boolean->IsObserved());
    }

    void anUnknownKeyIsShownAndKept()
    {
        auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "99"));
        Window window;
        auto* combo = window.Edit<VCComboBoxClassic>(value);
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

    void comboBoxesShareHintsByTheirItems()
    {
        const auto hintOf = [](const QStringList& names)
        {
            QComboBox bare;
            bare.addItems(names);
            return bare.sizeHint();
        };
        auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "1"));
        VCComboBoxClassic first, second, third;
        first.BindPath(path);
        second.BindPath(path);
        QCOMPARE(first.sizeHint(), hintOf({"Off", "On", "Auto & more"}));
        QCOMPARE(second.sizeHint(), first.sizeHint());
        const QString wide("A much longer name than all of the others");
        value->SetItems({{1, "On"}, {2, wide}});
        third.BindPath(path);
        QCOMPARE(third.sizeHint(), hintOf({"On", wide}));
        QFont font = third.font();
        font.setPointSize(font.pointSize() * 2);
        third.setFont(font);
        QVERIFY(third.sizeHint().height() > first.sizeHint().height());
    }

    void aButtonGroupShowsItemsThatItsValueHas()
    {
        auto* value = static_cast<ValueSelection*>(Make(path, ValueKind::Selection, "0"));
        VCButtonGroup group;
        group.Bind(value);
        QCOMPARE(group.GetButtons().size(), size_t(3));
        value->SetStoredText("99");
        QCOMPARE(CheckedButton(group), QString());
        value->SelectKey(1);
        QCOMPARE(CheckedButton(group), QString("On"));
        value->SetItems({{1, "Only"}});
        QCOMPARE(CheckedButton(group), QString("Only"));
    }
};

QTEST_MAIN(TestValueWidgets)
#include "test_valuewidgets.moc"
