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

#include <set>

using namespace TKE;
using namespace WidgetFixture;

namespace
{

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
    void cleanup() { CleanUp(); }

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
};

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

QTEST_MAIN(TestValueWidgets)
#include "test_valuewidgets.moc"
