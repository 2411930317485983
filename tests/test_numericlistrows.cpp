#include "numericlistwindow.h"

using namespace TKE;
using namespace NumericListTest;

class TestNumericListRows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void cleanup() { Tree::Instance()->Clear(); }

    void aNewRowIsStoredWhenItIsComplete()
    {
        DoubleListValue* value = MakeList("1e6;2e6;7e6;8e6");
        const Window window(2, 0, 5, true, megahertz);
        Listener other(value);
        window.list->setCurrentCell(0, 0);
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->currentRow(), 2); // a sorted list takes it at its end
        Press(window.list, Qt::Key_Insert);
        QCOMPARE(window.list->rowCount(), 3);
        QTest::keyClicks(Editor(window.list), "5");
        Press(Editor(window.list), Qt::Key_Return); // on to the cell that is missing
        QCOMPARE(other.heard, 0);
        QTest::keyClicks(Editor(window.list), "x");
        Press(Editor(window.list), Qt::Key_Return); // refused: it is still missing
        Editor(window.list)->selectAll();
        QTest::keyClicks(Editor(window.list), "4");
        Press(Editor(window.list), Qt::Key_Return);
        QCOMPARE(value->GetStoredText(), "1000000;2000000;4000000;5000000;7000000;8000000");
        QCOMPARE(window.list->currentRow(), 1);
        QCOMPARE(other.heard, 1);
    }

    void aNewRowOfAnUnsortedListComesBelowTheCurrentOne()
    {
        DoubleListValue* value = MakeList("3e6;1e6");
        const Window window(1, 0, 3, false, megahertz);
        window.list->setCurrentCell(0, 0);
        Press(window.list, Qt::Key_Insert);
        QTest::keyClicks(Editor(window.list), "2");
        Press(Editor(window.list), Qt::Key_Tab);
        QCOMPARE(value->GetStoredText(), "3000000;2000000;1000000");
        QCOMPARE(window.list->currentRow(), 2);
        Press(Editor(window.list), Qt::Key_Escape);
        Press(window.list, Qt::Key_Insert); // no room
        QCOMPARE(window.list->rowCount(), 3);
    }

    void anIncompleteRowIsDropped_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way :
             {"Escape", "Escape later", "another row", "another field", "change from outside", "disabled"})
            QTest::newRow(way) << way;
    }
    void anIncompleteRowIsDropped()
    {
        QFETCH(QString, way);
        DoubleListValue* value = MakeList("1e6;2e6");
        const Window window(2, 0, 5, true, megahertz);
        Press(window.list, Qt::Key_Insert);
        QTest::keyClicks(Editor(window.list), "5");
        Press(Editor(window.list), Qt::Key_Tab);
        QCOMPARE(window.list->rowCount(), 2);
        QTest::keyClicks(Editor(window.list), "6");
        if (way == "Escape")
            Press(Editor(window.list), Qt::Key_Escape);
        else if (way == "Escape later")
        {
            Editor(window.list)->setText("x");
            Press(Editor(window.list), Qt::Key_Up); // leaves the row
        }
        else if (way == "another row")
        {
            Editor(window.list)->clear();
            QTest::mouseClick(window.list->viewport(), Qt::LeftButton, {},
                              window.list->visualItemRect(window.list->item(0, 0)).center());
        }
        else if (way == "another field")
        {
            Editor(window.list)->clear();
            window.after->setFocus();
        }
        else if (way == "change from outside")
            value->SetStoredText("1000000;3000000");
        else
            value->SetState(stDisabled);
        QCOMPARE(Shown(window.list), way == "change from outside" ? "1-3" : "1-2");
        QCOMPARE(value->GetValue().size(), 2);
        QVERIFY(!Editor(window.list));
    }

    void rowsAreDeletedDownToTheLeastNumber()
    {
        DoubleListValue* value = MakeList("3e6;1e6;2e6");
        const Window window(1, 2, 5, false, megahertz);
        window.list->setCurrentIndex({});
        Press(window.list, Qt::Key_Delete);
        QCOMPARE(window.list->rowCount(), 3);
        Press(Type(window.list, 1, 0, "1"), Qt::Key_Delete); // in the editor: a character
        Press(Editor(window.list), Qt::Key_Escape);
        QCOMPARE(window.list->rowCount(), 3);
        Press(window.list, Qt::Key_Delete);
        QCOMPARE(value->GetStoredText(), "3000000;2000000");
        QCOMPARE(window.list->currentRow(), 1);
        Press(window.list, Qt::Key_Delete);
        QCOMPARE(value->GetStoredText(), "3000000;2000000");
    }

    void theMenuOffersWhatIsPossible_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("minRows");
        QTest::addColumn<int>("maxRows");
        QTest::addColumn<bool>("canAdd");
        QTest::addColumn<bool>("canDelete");
        QTest::newRow("empty") << "" << 0 << 5 << true << false;
        QTest::newRow("some rows") << "1e6;2e6" << 0 << 5 << true << true;
        QTest::newRow("full") << "1e6;2e6" << 0 << 2 << false << true;
        QTest::newRow("least") << "1e6;2e6" << 2 << 5 << true << false;
        QTest::newRow("three fixed rows") << "" << 3 << 3 << false << false;
    }
    void theMenuOffersWhatIsPossible()
    {
        QFETCH(QString, stored);
        QFETCH(int, minRows);
        QFETCH(int, maxRows);
        QFETCH(bool, canAdd);
        QFETCH(bool, canDelete);
        DoubleListValue* value = MakeList(stored);
        const Window window(1, minRows, maxRows, false, megahertz);
        window.list->setCurrentCell(0, 0);
        QMenu* menu = OpenMenu(window.list);
        QVERIFY(menu);
        QCOMPARE(menu->actions().size(), 2);
        QCOMPARE(menu->actions()[0]->text(), "&New row");
        QCOMPARE(menu->actions()[0]->isEnabled(), canAdd);
        QCOMPARE(menu->actions()[1]->text(), "&Delete row");
        QCOMPARE(menu->actions()[1]->isEnabled(), canDelete);
        const qsizetype count = value->GetValue().size();
        menu->actions()[1]->trigger();
        QCOMPARE(value->GetValue().size(), count - canDelete);
        menu->actions()[0]->trigger();
        QCOMPARE(Editor(window.list) != nullptr, canAdd);
    }

    void rowsAreCopiedAndPasted()
    {
        DoubleListValue* value = MakeList("1e6;2.5e6");
        const Window window(2, 0, 4, true, megahertz);
        window.list->setCurrentCell(0, 1);
        Press(window.list, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "1\t2.5");
        QApplication::clipboard()->setText("9\t8\r\n5\nbad\tline\n2000\t4000\n4,5\t4.6\n20\t21\n30\t31\n");
        Press(window.list, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Shown(window.list), "1-2.5 4.5-4.6 8-9 20-21"); // the first three good lines
        QCOMPARE(value->GetValue().size(), 8);
        Listener other(value);
        QApplication::clipboard()->setText("nothing\nof use");
        Press(window.list, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(other.heard, 0);
    }
};

QTEST_MAIN(TestNumericListRows)
#include "test_numericlistrows.moc"
