#include "editorfixture.h"
#include "jobedit/changemark.h"
#include "jobedit/fieldmarks.h"
#include "jobedit/fields.h"
#include "jobedit/nightcolours.h"
#include "jobedit/panelwindow.h"
#include "valuewidgets/vclineedit.h"
#include "widgets/vccheckablegroupbox.h"
#include "widgets/vctimeperiod.h"

using namespace EditorTest;

namespace
{

/// What the screen shows beside the field: "", "filled", "outlined" or "both".
QString MarkBeside(QWidget* field)
{
    auto* window = field->window();
    const QImage picture = window->grab().toImage();
    const QPoint corner = field->mapTo(window, QPoint(-ChangeMark::width - 1, 0));
    const int lineHeight = field->fontMetrics().height();
    const QRgb filled = window->palette().color(QPalette::Link).rgb();
    const bool isFilled = picture.pixel(corner + QPoint(2, 3)) == filled;
    const auto isOutlined = [&](int y)
    { return picture.pixel(corner + QPoint(0, y)) != picture.pixel(corner + QPoint(2, y)); };
    if (isFilled)
        return isOutlined(lineHeight) ? "both" : "filled";
    return isOutlined(lineHeight) ? "outlined" : "";
}

/// Another content that the value takes.
QString OtherContent(const ValueBase& value)
{
    const QString least = QString::number(value.GetDescriptor().minimum.value_or(7), 'f', 0);
    const QString most = QString::number(value.GetDescriptor().maximum.value_or(8), 'f', 0);
    Tree tree;
    ValueBase* trial = tree.CreateValue(u"/A", value.GetDescriptor());
    for (const QString& text : {QString("11:11"), QString("2020-01-02T03:04:05"), QString("true"), QString("false"),
                                least + ';' + most, least, most, QString("0"), QString("1")})
        if (text != value.GetStoredText() && trial->SetStoredText(text))
            return text;
    return {};
}

QMenu* OpenMenu()
{
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

QAction* Entry(const QMenu* menu, const QString& start)
{
    for (QAction* action : menu->actions())
        if (action->text().remove('&').startsWith(start))
            return action;
    return nullptr;
}

/// Clicks the entry, as a user does.
void Choose(QMenu* menu, QAction* entry)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
    QCoreApplication::processEvents();
}

/// The menu that comes up then.
QMenu* RightClick(QWidget* widget, QPoint place = {})
{
    QWidget* window = widget->window();
    if (place.isNull())
        place = widget->rect().center();
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, widget->mapTo(window, place));
    return OpenMenu();
}

} // namespace

class TestFieldMarks : public DeskTest
{
    Q_OBJECT

    /// The first visible, enabled field of this class that any dialog shows.
    Fields::Field FieldOfClass(const char* name)
    {
        QWidget* widget = m_desk->FirstWhere<QWidget>(
            [&](QWidget& each) { return each.inherits(name) && Fields::IsEditable(Fields::Of(&each)); });
        return widget ? Fields::Of(widget) : Fields::Field();
    }

private Q_SLOTS:
    void init()
    {
        Begin();
        Window().resize(1400, 950);
    }
    void cleanup()
    {
        End();
        NightColours::Switch(false);
    }

    void aFieldIsMarkedByWhatItDiffersFrom_data() { WithAndWithout("night"); }
    void aFieldIsMarkedByWhatItDiffersFrom()
    {
        QFETCH(bool, night);
        NightColours::Switch(night);
        ValueBase* value = Value(frequencyPath);
        QVERIFY(value->SetToDefault());
        QVERIFY(Window().SaveTo(File()));
        QLineEdit* field = m_desk->FrequencyField();
        QCOMPARE(MarkBeside(field), "");
        m_desk->TypeFrequency("7040 k\t");
        QCOMPARE(MarkBeside(field), "both");
        // It is said in words as well.
        QTRY_VERIFY(field->accessibleDescription().contains("Differs from the saved file"));
        QHelpEvent help(QEvent::ToolTip, QPoint(3, 3), field->mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(field, &help);
        QVERIFY2(QToolTip::text().contains("saved file: 10 MHz"), qPrintable(QToolTip::text()));
        QVERIFY(Window().Save());
        QCOMPARE(MarkBeside(field), "outlined");
        QVERIFY(value->SetToDefault());
        QCOMPARE(MarkBeside(field), "filled");
        QVERIFY(value->SetStoredText("7040000"));
        QCOMPARE(MarkBeside(field), "outlined");
        QTRY_VERIFY(!field->accessibleDescription().contains("saved file"));
        QVERIFY(field->isVisible() && Window().childAt(field->mapTo(&Window(), QPoint(5, 5))) == field);
    }

    void theMarksAreSwitchedInTheViewMenuAndStaySo()
    {
        Set(frequencyPath, "7100000");
        QVERIFY(MarkBeside(m_desk->FrequencyField()) != "");
        QAction* action = Window().findChild<FieldMarks*>()->GetAction();
        action->trigger();
        QCOMPARE(MarkBeside(m_desk->FrequencyField()), "");
        Window().Nodes().SelectNode("/Jobs/Demo");
        QCOMPARE(MarkBeside(m_desk->FrequencyField()), "");
        QVERIFY(!Editor().window.findChild<FieldMarks*>()->GetAction()->isChecked());
    }

    void marksFollowScrollingAndWhatIsScrolledAwayHasNone()
    {
        Window().resize(700, 420);
        QCoreApplication::processEvents();
        Set(frequencyPath, "7100000");
        QLineEdit* field = m_desk->FrequencyField();
        auto* area = Window().Dialog().findChild<QScrollArea*>();
        QScrollBar* bar = area->verticalScrollBar();
        QVERIFY(bar->maximum() > 20);
        bar->setValue(20);
        QCOMPARE(MarkBeside(field), "both");
        bar->setValue(0);
        QCOMPARE(MarkBeside(field), "both");
        bar->setValue(field->mapTo(area->widget(), QPoint(0, field->height() + 2)).y());
        QVERIFY(field->visibleRegion().isEmpty());
        QVERIFY(MarkBeside(field) != "both" && MarkBeside(field) != "filled");
    }

    void theMarksOfAPanelWindowGoWithTheValuesThatTheyStandFor()
    {
        const auto hasPanel = [](const JobNode& node) { return !FindDirectPanels(node).empty(); };
        const JobNode node = *std::ranges::find_if(Window().Nodes().GetNodes(), hasPanel);
        Window().Nodes().SelectNode(node.path);
        auto* panel = new PanelWindow(node, *FindDirectPanels(node).front(), &Window());
        panel->show();
        QVERIFY(QTest::qWaitForWindowExposed(panel));
        auto fields = Fields::VisibleIn(*panel);
        std::erase_if(fields, [](const Fields::Field& field) { return !Fields::IsEditable(field); });
        QVERIFY(!fields.empty());
        QWidget* field = fields.front().widget;
        QVERIFY(fields.front().value->SetStoredText(OtherContent(*fields.front().value)));
        QVERIFY2(MarkBeside(field) != "", qPrintable(field->objectName()));
        Tree::Instance()->RemoveBranch(node.path);
        QCOMPARE(MarkBeside(field), "");
    }

    void everyKindOfFieldHasTheMenuAndIsResetByIt_data()
    {
        const Table<QByteArray, bool> row("name", "keepsOwn");
        row("line edit", "TKE::VCLineEdit", true);
        row("spin box", "TKE::VCNumericFloatSpin", true);
        row("combo box", "TKE::VCComboBoxClassic", false);
        row("check box", "TKE::VCCheckBox", false);
        row("group of buttons", "TKE::VCButtonGroup", false);
        row("list of numbers", "TKE::VCListBoxNumeric", true);
        row("date and time", "TKE::VCDateTimeEdit", true);
    }
    void everyKindOfFieldHasTheMenuAndIsResetByIt()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, keepsOwn);
        const Fields::Field field = FieldOfClass(name.constData());
        QVERIFY2(field.widget, "no dialog of the sample has one");
        const QString path = field.value->GetPathName();
        const QString saved = field.value->GetStoredText();
        QVERIFY(field.value->SetStoredText(OtherContent(*field.value)));
        QCoreApplication::processEvents();
        const auto shown = FieldOfClass(name.constData()); // the panel may be another one now
        QCOMPARE(shown.value, Value(path));

        QMenu* menu = RightClick(shown.widget, name.contains("Group") ? QPoint(4, 4) : QPoint());
        QVERIFY(menu);
        QAction* reset = Entry(menu, "Reset to Saved Value");
        QVERIFY(reset && reset->isEnabled());
        QCOMPARE(Entry(menu, "Reset to Saved") != menu->actions().front(), keepsOwn);
        const QAction* key = Entry(menu, "Key: " + Value(path)->GetName());
        QVERIFY(key && !key->isEnabled());
        Choose(menu, reset);
        QCOMPARE(Stored(path), saved);

        // And by the keyboard, now with nothing to take back.
        const auto again = FieldOfClass(name.constData());
        again.widget->setFocus();
        QTest::keyClick(again.widget, Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(OpenMenu());
        QVERIFY(!Entry(OpenMenu(), "Reset to Saved Value")->isEnabled());
        OpenMenu()->close();
    }

    void widgetsOfSeveralValuesTellTheirFieldsApart()
    {
        Tree::Instance()->CreateValue<TextValue>(u"/T/Start")->SetValue("08:00");
        Tree::Instance()->CreateValue<TextValue>(u"/T/Stop")->SetValue("09:00");
        Tree::Instance()->CreateValue<BoolValue>(u"/T/On");
        VCCheckableGroupBox box(nullptr, "box", {});
        auto* period = new VCTimePeriod(&box, "period");
        auto* other = new QLabel("other", &box);
        QVERIFY(box.SetValue(Value("/T/On")) && period->SetPeriod_ValuePath("/T/Start", "/T/Stop"));
        QCOMPARE(Fields::Of(period->findChild<QLabel*>("StopLabel")).value, Value("/T/Stop"));
        QCOMPARE(Fields::Of(period->findChild<QTimeEdit*>("StartTime")).value, Value("/T/Start"));
        QCOMPARE(Fields::Of(&box).value, Value("/T/On"));
        QVERIFY(!Fields::Of(other).value);
        VCLineEdit locked;
        QVERIFY(locked.Bind(Value("/T/Start")) && Fields::IsEditable(Fields::Of(&locked)));
        locked.Lock();
        QVERIFY(Fields::Of(&locked).value && !Fields::IsEditable(Fields::Of(&locked)));
        Tree::Instance()->RemoveBranch(u"/T");
        QVERIFY(!Fields::Of(&box).value && !Fields::Of(period).value);
    }

    void aLabelHasTheMenuOfItsField()
    {
        const QLineEdit* field = m_desk->FrequencyField();
        const auto labels = Dialog()->findChildren<QLabel*>();
        const auto label = std::ranges::find(labels, field, &QLabel::buddy);
        QVERIFY(label != labels.end() && RightClick(*label));
        Choose(OpenMenu(), Entry(OpenMenu(), "Copy Path"));
        QCOMPARE(QGuiApplication::clipboard()->text(), frequencyPath);
    }

    void nothingIsWrittenToADisabledValue()
    {
        ValueBase* value = Value(frequencyPath);
        QLineEdit* field = m_desk->FrequencyField();
        QVERIFY(value->SetStoredText("7100000"));
        QMenu* menu = RightClick(field);
        QVERIFY(menu);
        value->SetState(stDisabled); // while the menu is open
        Entry(menu, "Reset to Default")->trigger();
        menu->close();
        QCoreApplication::processEvents();
        QCOMPARE(value->GetStoredText(), "7100000");
        QVERIFY(RightClick(field));
        for (const char* entry : {"Reset to Saved", "Reset to Default"})
            QVERIFY(!Entry(OpenMenu(), entry)->isEnabled());
        OpenMenu()->close();
    }
};

QTEST_MAIN(TestFieldMarks)
#include "test_fieldmarks.moc"
