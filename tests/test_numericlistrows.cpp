#include "numericlistwindow.h"

using namespace TKE;
using namespace NumericListTest;

class TestNumericListRows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { CleanUp(); }

    void aNewRowIsStoredWhenItIsComplete()
    {
        DoubleListValue* value = MakeList("1e6;2e6;7e6;8e6");
        const ListWindow window(2, 0, 5, true, megahertz);
        Counter counter;
        value->Attach(&counter);
        window.list->setCurrentCell(0, 0);
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->currentRow(), 2); // a sorted list takes it at its end
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->rowCount(), 3);
        TypeAndLeave(window.list, "5"); // on to the cell that is missing
        QCOMPARE(counter.count, 0);
        TypeAndLeave(window.list, "x"); // refused: it is still missing
        Editor(window.list)->selectAll();
        TypeAndLeave(window.list, "4");
        QCOMPARE(value->GetStoredText(), "1000000;2000000;4000000;5000000;7000000;8000000");
        QCOMPARE(window.list->currentRow(), 1);
        QCOMPARE(counter.count, 1);
    }

    void aNewRowOfAnUnsortedListComesBelowTheCurrentOne()
    {
        DoubleListValue* value = MakeList("3e6;1e6");
        const ListWindow window(1, 0, 3, false, megahertz);
        window.list->setCurrentCell(0, 0);
        QCOMPARE(OpenMenu(window.list)[0]->text(), "&New row");
        OpenMenu(window.list)[0]->trigger();
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
        QCOMPARE(value->GetValue().size(), 8);
        Counter counter;
        value->Attach(&counter);
        Paste(window.list, "nothing\nof use");
        QCOMPARE(counter.count, 0);
    }
};

QTEST_MAIN(TestNumericListRows)
#include "test_numericlistrows.moc"
