#include "numericlistwindow.h"

using namespace TKE;
using namespace NumericListTest;

class TestNumericList : public QObject
{
    Q_OBJECT

private slots:
    void init() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { Tree::Instance()->Clear(); }

    void storedRowsAreShownInTheirOrder_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("minRows");
        QTest::addColumn<double>("factor");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("ranges") << 2 << 0 << megahertz << "1500000;1600000;4000000;4063000"
                                << "1.5-1.6 4-4.063";
        QTest::newRow("overlap and order") << 2 << 0 << 1000.0 << "3000000;4000000;1e6;35e5"
                                           << "3000-4000 1000-3500";
        QTest::newRow("rounded") << 1 << 0 << megahertz << "7040500.4;100000000"
                                 << "7.0405 100";
        QTest::newRow("tenths") << 1 << 0 << 10.0 << "10005;10000"
                                << "1000.5 1000";
        QTest::newRow("no factor") << 1 << 0 << 1.0 << "9000.126;9100"
                                   << "9000.13 9100";
        QTest::newRow("incomplete last row") << 2 << 0 << 1000.0 << "10000;20000;30000"
                                             << "10-20";
        QTest::newRow("more rows than allowed") << 1 << 0 << 1000.0 << "11000;12000;13000;14000;15000;16000"
                                                << "11 12 13 14 15 16";
        QTest::newRow("filled up") << 1 << 3 << 1000.0 << "20000"
                                   << "20 9 9";
        QTest::newRow("empty") << 1 << 0 << 1.0 << ""
                               << "";
    }
    void storedRowsAreShownInTheirOrder()
    {
        QFETCH(int, columns);
        QFETCH(int, minRows);
        QFETCH(double, factor);
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        DoubleListValue* value = MakeList(stored);
        const QString before = value->GetStoredText();
        const Window window(columns, minRows, 5, true, factor);
        QCOMPARE(Shown(window.list), shown);
        QCOMPARE(value->GetStoredText(), before);
    }

    void numbersAreShownInTheLanguageOfTheUser()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        MakeList("1500500;1600000000");
        const Window window(1, 0, 5, true, megahertz);
        QCOMPARE(Shown(window.list), "1,5005 1600");
    }

    void anEditStoresTheWholeListInOrder_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("minRows");
        QTest::addColumn<bool>("sorted");
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("cell"); // counted row by row
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("currentRow");
        QTest::newRow("exact") << 1 << 0 << true << "1000000" << 0 << "7.0405"
                               << "7040500" << 0;
        QTest::newRow("comma") << 1 << 0 << true << "1000000" << 0 << "7,0405"
                               << "7040500" << 0;
        QTest::newRow("rounded") << 1 << 0 << true << "1000000" << 0 << "7.04050012349"
                                 << "7040500.123" << 0;
        QTest::newRow("max below min") << 2 << 0 << true << "2e6;3e6" << 1 << "1"
                                       << "1000000;2000000" << 0;
        QTest::newRow("overlap") << 2 << 0 << true << "1e6;2e6;2.5e6;3e6" << 2 << "1.5"
                                 << "1000000;3000000" << 0;
        QTest::newRow("touch") << 2 << 0 << true << "1e6;2e6;2.5e6;3e6" << 2 << "2"
                               << "1000000;3000000" << 0;
        QTest::newRow("exchanged, then joined") << 2 << 0 << true << "1e6;9e6;11e6;12e6" << 3 << "3"
                                                << "1000000;11000000" << 0;
        QTest::newRow("least rows") << 2 << 2 << true << "1e6;2e6;2.5e6;3e6" << 2 << "1.5"
                                    << "1000000;2000000;1500000;3000000" << 0;
        QTest::newRow("moves") << 2 << 0 << true << "1e6;2e6;4e6;5e6" << 1 << "8"
                               << "1000000;8000000" << 0;
        QTest::newRow("sorts") << 1 << 0 << true << "1e6;2e6;3e6" << 0 << "9"
                               << "2000000;3000000;9000000" << 2;
        QTest::newRow("duplicate") << 1 << 0 << true << "1e6;2e6;3e6" << 0 << "3"
                                   << "2000000;3000000" << 1;
        QTest::newRow("order kept") << 1 << 0 << false << "3e6;1e6;2e6" << 1 << "3"
                                    << "3000000;3000000;2000000" << 1;
        QTest::newRow("fill") << 1 << 3 << false << "" << 1 << "5"
                              << "9000;5000000;9000" << 1;
    }
    void anEditStoresTheWholeListInOrder()
    {
        QFETCH(int, columns);
        QFETCH(int, minRows);
        QFETCH(bool, sorted);
        QFETCH(QString, before);
        QFETCH(int, cell);
        QFETCH(QString, typed);
        QFETCH(QString, after);
        QFETCH(int, currentRow);
        DoubleListValue* value = MakeList(before);
        const Window window(columns, minRows, 5, sorted, megahertz);
        Listener other(value);
        Press(Type(window.list, cell / columns, cell % columns, typed), Qt::Key_Return);
        QCOMPARE(value->GetStoredText(), after);
        QCOMPARE(window.list->currentRow(), currentRow);
        QCOMPARE(other.heard, 1);
    }

    void whatIsNoNumberOrOutsideTheLimitsLeavesTheCellAsItWas_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed : {"", "abc", "1.5x", "1.000,5", "1,000.5", "3001", "0.0089", "-2", "inf", "nan", "1 5"})
            QTest::newRow(typed) << typed;
    }
    void whatIsNoNumberOrOutsideTheLimitsLeavesTheCellAsItWas()
    {
        QFETCH(QString, typed);
        DoubleListValue* value = MakeList("2000000;3000000.25");
        const Window window(2, 0, 5, true, megahertz);
        QLineEdit* editor = Type(window.list, 0, 1, typed);
        if (typed.isEmpty())
            QTest::keyClick(editor, Qt::Key_Backspace);
        Press(editor, Qt::Key_Return);
        QCOMPARE(Shown(window.list), "2-3");
        QCOMPARE(value->GetStoredText(), "2000000;3000000.25");
    }

    void leavingACellByAnyWayStoresIt_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("stores");
        QTest::addColumn<int>("column"); // where the editor is open afterwards
        QTest::newRow("Return") << int(Qt::Key_Return) << true << -1;
        QTest::newRow("Tab") << int(Qt::Key_Tab) << true << 2;
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << true << 0;
        QTest::newRow("Down") << int(Qt::Key_Down) << true << -1;
        QTest::newRow("another field") << 0 << true << -1;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false << -1;
    }
    void leavingACellByAnyWayStoresIt()
    {
        QFETCH(int, key);
        QFETCH(bool, stores);
        QFETCH(int, column);
        DoubleListValue* value = MakeList("1e6;2e6;3e6;4e6;5e6;6e6");
        const Window window(3, 0, 5, false, megahertz);
        QLineEdit* editor = Type(window.list, 0, 1, "9");
        if (key == 0)
            window.after->setFocus();
        else
            Press(editor, Qt::Key(key));
        QCOMPARE(value->GetStoredText(), stores ? "1000000;9000000;3000000;4000000;5000000;6000000"
                                                : "1000000;2000000;3000000;4000000;5000000;6000000");
        QCOMPARE(Editor(window.list) ? window.list->currentColumn() : -1, column);
    }

    void aCellThatWasOnlyLookedIntoKeepsItsHiddenDigits()
    {
        DoubleListValue* value = MakeList("2000000.125;3000000.25");
        const Window window(2, 0, 5, true, megahertz);
        Listener other(value);
        window.list->setCurrentCell(0, 0);
        QTest::keyClick(window.list, Qt::Key_F2);
        for (int i = 0; i < 2; ++i)
            Press(Editor(window.list), Qt::Key_Tab);
        QCOMPARE(other.heard, 0);
        QVERIFY(window.after->hasFocus());
    }

    void tabMovesThroughTheCellsAndLeavesTheTableAtItsEnds()
    {
        MakeList("1e6;2e6;3e6;4e6");
        const Window window(2, 0, 5, true, megahertz);
        window.before->setFocus();
        for (int i = 0; i < 4; ++i)
        {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(window.list->hasFocus());
            QCOMPARE(window.list->currentRow() * 2 + window.list->currentColumn(), i);
        }
        QTest::keyClick(window.list, Qt::Key_Tab);
        QVERIFY(window.after->hasFocus());
        window.list->setCurrentCell(0, 1);
        window.list->setFocus();
        QTest::keyClick(window.list, Qt::Key_Backtab);
        QVERIFY(window.list->hasFocus());
        QTest::keyClick(window.list, Qt::Key_Backtab);
        QVERIFY(window.before->hasFocus());
    }

    void aChangeFromOutsideDiscardsTheEdit()
    {
        DoubleListValue* value = MakeList("1e6;2e6");
        const Window window(1, 0, 5, true, megahertz);
        const QPointer<QLineEdit> editor = Type(window.list, 0, 0, "5");
        value->SetStoredText("3000000;4000000");
        QVERIFY(!Editor(window.list));
        QCOMPARE(Shown(window.list), "3 4");
        window.after->setFocus();
        QCOMPARE(value->GetStoredText(), "3000000;4000000");
    }

    void theTableFollowsTheStateOfItsValueUnlessItIsLocked()
    {
        DoubleListValue* value = MakeList("1e6");
        VCListBoxNumeric list(nullptr, "list", 1, 0, 5, true, {}, megahertz);
        QVERIFY(!list.isEnabled());
        QVERIFY(list.SetList_ValuePath(path));
        QVERIFY(list.isEnabled());
        value->SetState(stDisabled);
        QVERIFY(!list.isEnabled());
        value->SetState(stEnabled);
        list.Lock();
        value->SetState(stDisabled);
        value->SetState(stEnabled);
        QVERIFY(!list.isEnabled());
        Tree::Instance()->Clear();
        QCOMPARE(Shown(&list), "1"); // keeps its look
        QTest::keyClick(&list, Qt::Key_Insert);
        QCOMPARE(list.rowCount(), 1);
    }

    void onlyListsOfNumbersAreBound()
    {
        MakeList("1e6");
        Tree::Instance()->CreateValue<IntValue>(QStringLiteral("/J/INT"));
        VCListBoxNumeric list(nullptr, "list", 1, 0, 5, true, {}, megahertz);
        for (const char* other : {"/J/INT", "/J/NOTHING", ""})
        {
            QVERIFY(list.SetList_ValuePath(path));
            QVERIFY(!list.SetList_ValuePath(other));
            QCOMPARE(list.rowCount(), 0);
            QVERIFY(!list.isEnabled());
        }
    }

    void whoHearsOfAnEditMayDeleteTheTable_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way :
             {"Return", "Tab", "another field", "another window", "Down", "Delete", "paste", "new row", "menu"})
            QTest::newRow(way) << way;
    }
    void whoHearsOfAnEditMayDeleteTheTable()
    {
        QFETCH(QString, way);
        DoubleListValue* value = MakeList("1e6;2e6");
        const Window window(1, 0, 5, true, megahertz);
        Listener destroyer(value, [&] { delete window.list; });
        QWidget* editor = window.list;
        window.list->setCurrentCell(0, 0);
        if (way == "new row")
        {
            Press(window.list, Qt::Key_Insert);
            editor = Editor(window.list);
            QTest::keyClicks(editor, "5");
            Press(editor, Qt::Key_Return);
        }
        else if (way == "Delete")
            Press(window.list, Qt::Key_Delete);
        else if (way == "menu")
            OpenMenu(window.list)->actions()[1]->trigger();
        else if (way == "paste")
        {
            QApplication::clipboard()->setText("5");
            Press(window.list, Qt::Key_V, Qt::ControlModifier);
        }
        else
        {
            editor = Type(window.list, 0, 0, "5");
            QWidget other;
            if (way == "another field")
                window.after->setFocus();
            else if (way == "another window")
            {
                other.show();
                other.activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(&other));
            }
            else
                Press(editor, way == "Tab" ? Qt::Key_Tab : way == "Down" ? Qt::Key_Down : Qt::Key_Return);
        }
        QVERIFY(!window.list);
        QCOMPARE(destroyer.heard, 1);
    }
};

QTEST_MAIN(TestNumericList)
#include "test_numericlist.moc"
