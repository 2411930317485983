#include "common.h"
#include "numericlistwindow.h"
#include "widgets/vclistboxstring.h"

using namespace TKE;
using namespace NumericListTest;

namespace
{

ValueSelection* MakeSelection(bool multiple, const QString& stored)
{
    ValueBase* value = Make(path, ValueKind::Selection, "20");
    s_descriptors.back().multiple = multiple;
    s_descriptors.back().items = {{10, "ten"}, {20, "twenty"}, {30, "thirty"}};
    value->SetStoredText(stored);
    return static_cast<ValueSelection*>(value);
}

QString CheckedLines(const VCListBoxString& list)
{
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
        if (list.item(row)->checkState() == Qt::Checked)
            lines << list.item(row)->text();
    return lines.join(' ');
}

void ClickBox(VCListBoxString& list, int row)
{
    const QPoint box(10, list.visualItemRect(list.item(row)).center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
}

} // namespace

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { CleanUp(); }

    void storedRowsAreShownInTheirOrder()
    {
        const struct
        {
            int columns, minRows;
            double factor;
            const char *stored, *shown;
        } looks[]{{2, 0, megahertz, "1500000;1600000;4000000;4063000", "1.5-1.6 4-4.063"},
                  {2, 0, 1000, "3000000;4000000;1e6;35e5", "3000-4000 1000-3500"}, // overlap and order stay
                  {1, 0, megahertz, "7040500.4;100000000", "7.0405 100"},
                  {1, 0, 1, "9000.126;9100", "9000.13 9100"},
                  {2, 0, 1000, "10000;20000;30000", "10-20"},                  // the last row is incomplete
                  {1, 0, 1e4, "1e5;2e5;3e5;4e5;5e5;6e5", "10 20 30 40 50 60"}, // more than allowed
                  {1, 3, 1000, "20000", "20 9 9"}};
        for (const auto& [columns, minRows, factor, stored, shown] : looks)
        {
            DoubleListValue* value = MakeList(stored);
            const QString before = value->GetStoredText();
            const ListWindow window(columns, minRows, 5, true, factor);
            QCOMPARE(Shown(window.list), shown);
            QCOMPARE(value->GetStoredText(), before);
            CleanUp();
        }
        QLocale::setDefault(german);
        MakeList("1500500;1600000000");
        QCOMPARE(Shown(ListWindow(1, 0, 5, true, megahertz).list), "1,5005 1600");
    }

    void anEditStoresTheWholeListInOrder()
    {
        const struct
        {
            int columns, minRows;
            bool sorted;
            const char* before;
            int cell; // counted row by row
            const char *typed, *after;
            int currentRow;
        } edits[]{{1, 0, true, "1e6", 0, "7,0405", "7040500", 0},
                   {1, 0, true, "1e6", 0, "1.000,5", "1000500000", 0},
                  {1, 0, true, "1e6", 0, "7.04050012349", "7040500.123", 0},         // rounded
                  {2, 0, true, "2e6;3e6", 1, "1", "1000000;2000000", 0},             // exchanged
                  {2, 0, true, "1e6;2e6;2.5e6;3e6", 2, "1.5", "1000000;3000000", 0}, // overlap
                  {2, 0, true, "1e6;2e6;2.5e6;3e6", 2, "2", "1000000;3000000", 0},   // touch
                  {2, 0, true, "1e6;9e6;11e6;12e6", 3, "3", "1000000;11000000", 0},  // exchanged, then joined
                  {2, 2, true, "1e6;2e6;2.5e6;3e6", 2, "1.5", "1000000;2000000;1500000;3000000", 0}, // least rows
                  {2, 0, true, "1e6;2e6;4e6;5e6", 1, "8", "1000000;8000000", 0},     // swallows the next
                  {1, 0, true, "1e6;2e6;3e6", 0, "9", "2000000;3000000;9000000", 2}, // sorts
                  {1, 0, true, "1e6;2e6;3e6", 0, "3", "2000000;3000000", 1},         // twice
                  {1, 0, false, "3e6;1e6;2e6", 1, "3", "3000000;3000000;2000000", 1},
                  {1, 3, false, "", 1, "5", "9000;5000000;9000", 1}};
        for (const auto& [columns, minRows, sorted, before, cell, typed, after, currentRow] : edits)
        {
            DoubleListValue* value = MakeList(before);
            const ListWindow window(columns, minRows, 5, sorted, megahertz);
            Hearer counter;
            value->Attach(&counter);
            Press(Type(window.list, cell / columns, cell % columns, typed), Qt::Key_Return);
            QCOMPARE(value->GetStoredText(), after);
            QCOMPARE(window.list->currentRow(), currentRow);
            QCOMPARE(counter.codes.size(), size_t(1));
            CleanUp();
        }
    }

    void whatIsNoNumberOrOutsideTheLimitsLeavesTheCellAsItWasAndIsExplained_data()
    {
        const Table<QString> row("reason");
        row("\b", "A number is missing");
        row("1.5x", "\"1.5x\" is not a number");
        row("1,0.5", "\"1,0.5\" is not a number");
        row("1,000", "\"1,000\" can be read as 1000 and as 1.000");
        row("3001", "3001 is more than 3000");
        row("0.0089", "0.0089 is less than 0.009");
        row("inf", "\"inf\" is not a number");
    }
    void whatIsNoNumberOrOutsideTheLimitsLeavesTheCellAsItWasAndIsExplained()
    {
        DoubleListValue* value = MakeList("2000000;3000000.25");
        const ListWindow window(2, 0, 5, true, megahertz);
        Press(Type(window.list, 0, 1, QTest::currentDataTag()), Qt::Key_Return);
        QCOMPARE(Shown(window.list), "2-3");
        QCOMPARE(value->GetStoredText(), "2000000;3000000.25");
        QFETCH(QString, reason);
        QTRY_COMPARE(QToolTip::text(), reason);
    }

    void leavingACellByAnyWayStoresIt_data()
    {
        // column: where the editor is open afterwards
        const Table<int, double, int> row("key", "stored", "column");
        row("Return", int(Qt::Key_Return), 9e6, -1);
        row("Tab", int(Qt::Key_Tab), 9e6, 2);
        row("Shift+Tab", int(Qt::Key_Backtab), 9e6, 0);
        row("Down", int(Qt::Key_Down), 9e6, -1);
        row("another field", 0, 9e6, -1);
        row("Escape", int(Qt::Key_Escape), 2e6, -1);
    }
    void leavingACellByAnyWayStoresIt()
    {
        QFETCH(int, key);
        DoubleListValue* value = MakeList("1e6;2e6;3e6;4e6;5e6;6e6");
        const ListWindow window(3, 0, 5, false, megahertz);
        QLineEdit* editor = Type(window.list, 0, 1, "9");
        if (key == 0)
            window.other->setFocus();
        else
            Press(editor, Qt::Key(key));
        QTEST(value->GetValue()[1], "stored");
        QTEST(Editor(window.list) ? window.list->currentColumn() : -1, "column");
    }

    void tabMovesThroughTheCellsAndLeavesTheTableAtItsEndsAndWritesNothing()
    {
        const QString stored = "3000000.125;4063000;1500000;1600000"; // neither in order nor to be shown in full
        Hearer counter;
        DoubleListValue* value = MakeList(stored);
        value->Attach(&counter);
        const ListWindow window(2, 0, 5, true, megahertz);
        window.before->setFocus();
        for (int cell = 0; cell < 4; ++cell)
        {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(window.list->hasFocus());
            QCOMPARE(window.list->currentRow() * 2 + window.list->currentColumn(), cell);
        }
        QTest::keyClick(window.list, Qt::Key_Tab);
        QVERIFY(window.other->hasFocus());
        window.list->setCurrentCell(0, 1);
        window.list->setFocus();
        QTest::keyClick(window.list, Qt::Key_Backtab);
        QVERIFY(window.list->hasFocus());
        QTest::keyClick(window.list, Qt::Key_Backtab);
        QVERIFY(window.before->hasFocus());
        Press(window.list, Qt::Key_F2);
        for (int cell = 1; cell < 4; ++cell)
            Press(Editor(window.list), Qt::Key_Tab); // from editor to editor
        QCOMPARE(counter.codes.size(), size_t(0));
    }

    void aChangeFromOutsideDiscardsTheEdit()
    {
        DoubleListValue* value = MakeList("1e6;2e6");
        const ListWindow window(1, 0, 5, true, megahertz);
        Type(window.list, 0, 0, "5");
        value->SetStoredText("3000000;4000000");
        QVERIFY(!Editor(window.list));
        QCOMPARE(Shown(window.list), "3 4");
        window.other->setFocus();
        QCOMPARE(value->GetStoredText(), "3000000;4000000");
    }

    void onlyListsOfNumbersAreBoundAndALockStays()
    {
        DoubleListValue* value = MakeList("1e6");
        Tree::Instance()->CreateValue<IntValue>(QStringLiteral("/J/INT"));
        VCListBoxNumeric list(nullptr, "list", 1, 0, 5, true, {}, megahertz);
        for (const char* other : {"/J/INT", "/J/NOTHING", ""})
        {
            QVERIFY(!list.SetList_ValuePath(other));
            QVERIFY(list.rowCount() == 0 && !list.isEnabled());
            QVERIFY(list.SetList_ValuePath(path));
            QVERIFY(list.rowCount() == 1 && list.isEnabled());
        }
        list.Lock();
        value->SetState(stDisabled);
        value->SetState(stEnabled);
        QVERIFY(!list.isEnabled());
        Tree::Instance()->Clear();
        QCOMPARE(Shown(&list), "1"); // keeps its look
    }

    void aNewRowIsStoredWhenItIsComplete()
    {
        DoubleListValue* value = MakeList("1e6;2e6;7e6;8e6");
        const ListWindow window(2, 0, 5, true, megahertz);
        Hearer counter;
        value->Attach(&counter);
        window.list->setCurrentCell(0, 0);
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->currentRow(), 2); // a sorted list takes it at its end
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->rowCount(), 3);
        TypeAndLeave(window.list, "5"); // on to the cell that is missing
        QCOMPARE(counter.codes.size(), size_t(0));
        TypeAndLeave(window.list, "x"); // refused: it is still missing
        Editor(window.list)->selectAll();
        TypeAndLeave(window.list, "4");
        QCOMPARE(value->GetStoredText(), "1000000;2000000;4000000;5000000;7000000;8000000");
        QCOMPARE(window.list->currentRow(), 1);
        QCOMPARE(counter.codes.size(), size_t(1));
    }

    void aNewRowOfAnUnsortedListComesBelowTheCurrentOne()
    {
        DoubleListValue* value = MakeList("3e6;1e6");
        const ListWindow window(1, 0, 3, false, megahertz);
        window.list->setCurrentCell(0, 0);
        QCOMPARE(OpenMenu(window.list)[0]->text(), "&New row");
        OpenMenu(window.list)[0]->trigger();
        QCoreApplication::sendPostedEvents(window.list); // it waits until the menu is done
        TypeAndLeave(window.list, "2", Qt::Key_Tab);
        QCOMPARE(value->GetStoredText(), "3000000;2000000;1000000");
        QCOMPARE(window.list->currentRow(), 2);
        Press(Editor(window.list), Qt::Key_Escape);
        Press(window.list, Qt::Key_Insert); // no room
        QCOMPARE(window.list->rowCount(), 3);
        QVERIFY(!OpenMenu(window.list)[0]->isEnabled());
    }

    void anIncompleteRowIsDropped_data()
    {
        QTest::addColumn<Way>("way");
        const auto add = [](const char* name, const Way& way) { QTest::newRow(name) << way; };
        add("Escape", [](const ListWindow& window) { Press(Editor(window.list), Qt::Key_Escape); });
        add("another row", [](const ListWindow& window) { TypeAndLeave(window.list, "x", Qt::Key_Up); });
        add("another field",
            [](const ListWindow& window)
            {
                Editor(window.list)->clear();
                window.other->setFocus();
            });
        add("change from outside",
            [](const ListWindow& window) { window.list->GetBoundValue()->SetStoredText("1000000;3000000"); });
        add("disabled", [](const ListWindow& window) { window.list->GetBoundValue()->SetState(stDisabled); });
    }
    void anIncompleteRowIsDropped()
    {
        QFETCH(Way, way);
        DoubleListValue* value = MakeList("1e6;2e6");
        const ListWindow window(2, 0, 5, true, megahertz);
        Press(window.list, Qt::Key_Insert);
        TypeAndLeave(window.list, "5", Qt::Key_Tab);
        QCOMPARE(window.list->rowCount(), 2);
        QTest::keyClicks(Editor(window.list), "6");
        way(window);
        QCOMPARE(window.list->rowCount(), 1);
        QCOMPARE(value->GetValue().size(), 2);
        QVERIFY(!Editor(window.list));
    }

    void rowsAreDeletedDownToTheLeastNumber()
    {
        DoubleListValue* value = MakeList("3e6;1e6;2e6");
        const ListWindow window(1, 2, 5, false, megahertz);
        window.list->setCurrentIndex({});
        QVERIFY(!OpenMenu(window.list)[1]->isEnabled());
        Press(window.list, Qt::Key_Delete);
        Press(Type(window.list, 1, 0, "1"), Qt::Key_Delete); // in the editor: a character
        Press(Editor(window.list), Qt::Key_Escape);
        QCOMPARE(window.list->rowCount(), 3);
        QVERIFY(OpenMenu(window.list)[1]->isEnabled());
        for (int i = 0; i < 2; ++i)
        {
            Press(window.list, Qt::Key_Delete);
            QCOMPARE(value->GetStoredText(), "3000000;2000000");
            QCOMPARE(window.list->currentRow(), 1);
        }
        QCOMPARE(OpenMenu(window.list)[1]->text(), "&Delete row");
        QVERIFY(!OpenMenu(window.list)[1]->isEnabled());
    }

    void rowsAreCopiedAndPasted()
    {
        DoubleListValue* value = MakeList("1e6;2.5e6");
        const ListWindow window(2, 0, 4, true, megahertz);
        window.list->setCurrentCell(0, 1);
        Press(window.list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "1\t2.5");
        Paste(window.list, "9\t8\r\n5\nbad\tline\n2000\t4000\n4,5\t4.6\n20\t21\n30\t31\n");
        QCOMPARE(Shown(window.list), "1-2.5 4.5-4.6 8-9 20-21"); // the first three good lines
        QTRY_COMPARE(QToolTip::text(), "Not taken over:\n5\nbad\tline\n2000\t4000\n30\t31");
        QCOMPARE(value->GetValue().size(), 8);
        Hearer counter;
        value->Attach(&counter);
        Paste(window.list, "nothing\nof use");
        QCOMPARE(counter.codes.size(), size_t(0));
    }

    void whoHearsOfAnEditMayDeleteTheTable_data()
    {
        // opening: what opens an editor
        const Table<int, Way> row("opening", "edit");
        const auto press = [](Qt::Key key)
        { return Way([=](const ListWindow&) { Press(QApplication::focusWidget(), key); }); };
        row("Return", Qt::Key_F2, press(Qt::Key_Return));
        row("Tab", Qt::Key_F2, press(Qt::Key_Tab));
        row("Down", Qt::Key_F2, press(Qt::Key_Down));
        row("another field", Qt::Key_F2, [](const ListWindow& window) { window.other->setFocus(); });
        row("another window", Qt::Key_F2, [](const ListWindow&) { Window().Open(); });
        row("new row", Qt::Key_Insert, press(Qt::Key_Return));
        row("Delete", 0, press(Qt::Key_Delete));
        row("paste", 0, [](const ListWindow& window) { Paste(window.list, "5"); });
        row("menu", 0, [](const ListWindow& window) { ChooseInMenu(window.list, Qt::Key_D); });
    }
    void whoHearsOfAnEditMayDeleteTheTable()
    {
        QFETCH(int, opening);
        QFETCH(Way, edit);
        DoubleListValue* value = MakeList("1e6;2e6");
        const ListWindow window(1, 0, 5, true, megahertz);
        Hearer destroyer([&] { delete window.list; });
        value->Attach(&destroyer);
        window.list->setCurrentCell(0, 0);
        if (opening)
        {
            Press(window.list, Qt::Key(opening));
            QTest::keyClicks(Editor(window.list), "5");
        }
        edit(window);
        QVERIFY(!window.list);
        QCOMPARE(destroyer.codes.size(), size_t(1));
    }

    void checkedLinesAreTheKeysOfTheValue()
    {
        ValueSelection* value = MakeSelection(true, "10;30");
        VCListBoxString list(nullptr, "list");
        QVERIFY(list.SetValueSelection_ValuePath(path));
        QCOMPARE(list.count(), 3);
        QCOMPARE(CheckedLines(list), "ten thirty");
        QVERIFY(!(list.item(0)->flags() & Qt::ItemIsEditable));
        value->SetStoredText("20");
        QCOMPARE(CheckedLines(list), "twenty");
        value->SetItems({{20, "two"}, {40, "four"}});
        QCOMPARE(list.count(), 2);
        QCOMPARE(CheckedLines(list), "two");
    }

    void spaceAndClicksToggleLines_data()
    {
        const Table<QString, int, QString, bool, QString> table("before", "row", "after", "multiple", "checked");
        table("add", "30", 0, "10;30", true, "ten thirty");
        table("last one", "20", 1, "", true, "");
        table("unknown keys are kept", "7;10;99", 1, "7;10;20;99", true, "ten twenty");
        table("one of several", "10", 2, "30", false, "thirty");
        table("the one stays", "10", 0, "10", false, "ten");
        table("unknown one", "99", 1, "20", false, "twenty");
    }
    void spaceAndClicksToggleLines()
    {
        QFETCH(QString, before);
        QFETCH(int, row);
        QFETCH(bool, multiple);
        ValueSelection* value = MakeSelection(multiple, before);
        VCListBoxString list(nullptr, "list");
        list.SetValueSelection_ValuePath(path);
        list.show();
        list.setCurrentRow(row);
        QTest::keyClick(&list, Qt::Key_Space);
        QTEST(value->GetStoredText(), "after");
        QTEST(CheckedLines(list), "checked");

        value->SetStoredText(before);
        ClickBox(list, row);
        QTEST(value->GetStoredText(), "after");
        QTEST(CheckedLines(list), "checked");
    }

    void theListIsSetToItsDefault()
    {
        ValueSelection* value = MakeSelection(true, "10;30");
        VCListBoxString list(nullptr, "list");
        list.SetValueSelection_ValuePath(path);
        QCOMPARE(OpenMenu(&list).size(), 1);
        QCOMPARE(OpenMenu(&list)[0]->text(), "Set to &Default");
        ChooseInMenu(&list, Qt::Key_D);
        QCOMPARE(value->GetStoredText(), "20");
        QCOMPARE(CheckedLines(list), "twenty");
        list.Lock();
        QVERIFY(OpenMenu(&list).isEmpty());
    }

    void whoHearsOfAToggleMayDeleteTheList()
    {
        const std::function<void(VCListBoxString*)> ways[] = {
            [](auto* list) { QTest::keyClick(list, Qt::Key_Space); },
            [](auto* list) { ClickBox(*list, 0); },
            [](auto* list) { ChooseInMenu(list, Qt::Key_D); },
        };
        for (const auto& toggle : ways)
        {
            ValueSelection* value = MakeSelection(true, "10");
            QPointer<VCListBoxString> list = new VCListBoxString(nullptr, "list");
            list->SetValueSelection_ValuePath(path);
            list->show();
            list->setCurrentRow(0);
            Hearer destroyer([&] { delete list; });
            value->Attach(&destroyer);
            toggle(list);
            QVERIFY(!list);
            Tree::Instance()->Clear();
        }
    }
};

QTEST_MAIN(TestLists)
#include "test_lists.moc"
