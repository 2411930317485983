#include "value/tree.h"
#include "widgets/vclistboxnumeric.h"
#include "widgets/vclistboxstring.h"

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>
#include <deque>

using namespace TKE;

namespace
{

const QString path = QStringLiteral("/J/LIST");
constexpr double megahertz = 1000000;

/// A list of doubles from 9 kHz to 3 GHz.
DoubleListValue* MakeList(const QString& stored)
{
    static const ValueDescriptor descriptor = []
    {
        ValueDescriptor list;
        list.kind = ValueKind::DoubleList;
        list.minimum = 9000;
        list.maximum = 3000000000;
        return list;
    }();
    auto* value = Tree::Instance()->CreateValue<DoubleListValue>(path, descriptor);
    value->SetStoredText(stored);
    return value;
}

ValueSelection* MakeSelection(bool multiple, const QString& stored)
{
    static std::deque<ValueDescriptor> descriptors;
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind::Selection;
    descriptor.multiple = multiple;
    descriptor.items = {{10, "ten"}, {20, "twenty"}, {30, "thirty"}};
    descriptor.defaultText = "20";
    descriptors.push_back(descriptor);
    auto* value = Tree::Instance()->CreateValue<ValueSelection>(path, descriptors.back());
    value->SetStoredText(stored);
    return value;
}

/// A window with a table between two fields that can have the focus.
struct Window : QWidget
{
    Window(int columns, int minRows, int maxRows, bool sorted, double factor, const QStringList& headers = {})
        : list(new VCListBoxNumeric(this, "list", columns, minRows, maxRows, sorted, headers, factor))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(before);
        layout->addWidget(list);
        layout->addWidget(after);
        setTabOrder(before, list);
        setTabOrder(list, after);
        isBound = list->SetList_ValuePath(path);
        show();
        activateWindow();
        isActive = QTest::qWaitForWindowActive(this);
        list->setFocus();
    }

    QLineEdit* before = new QLineEdit(this);
    QPointer<VCListBoxNumeric> list;
    QLineEdit* after = new QLineEdit(this);
    bool isBound;
    bool isActive;
};

QLineEdit* Editor(const VCListBoxNumeric* list)
{
    return qobject_cast<QLineEdit*>(list->indexWidget(list->currentIndex()));
}

/// Opens the editor of a cell and types `text` in place of what stands there, without leaving it.
QLineEdit* Type(VCListBoxNumeric* list, int row, int column, const QString& text)
{
    list->setCurrentCell(row, column);
    QTest::keyClick(list, Qt::Key_F2);
    QLineEdit* editor = Editor(list);
    if (editor)
    {
        editor->selectAll();
        QTest::keyClicks(editor, text);
    }
    return editor;
}

void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(widget, key, modifiers);
    QCoreApplication::processEvents(); // Return is handled later
}

QString Shown(const VCListBoxNumeric* list)
{
    QStringList rows;
    for (int row = 0; row < list->rowCount(); ++row)
    {
        QStringList cells;
        for (int column = 0; column < list->columnCount(); ++column)
            cells << list->item(row, column)->text();
        rows << cells.join('-');
    }
    return rows.join(' ');
}

/// The menu that a click with the right button opens.
QMenu* OpenMenu(QAbstractItemView* list)
{
    emit list->customContextMenuRequested({5, 5});
    const auto menus = list->findChildren<QMenu*>();
    return menus.isEmpty() ? nullptr : menus.last();
}

/// Runs something on each change.
class Listener : public IObserver
{
public:
    explicit Listener(Observable* value, std::function<void()> reaction = {}) : m_reaction(std::move(reaction))
    {
        value->Attach(this);
    }
    void Update(Observable*, TChangeCode) override
    {
        ++heard;
        if (m_reaction)
            m_reaction();
    }
    int heard = 0;

private:
    std::function<void()> m_reaction;
};

} // namespace

class TestListBoxes : public QObject
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

    void theHeaderLineIsHiddenWithoutTexts_data()
    {
        QTest::addColumn<QStringList>("headers");
        QTest::addColumn<bool>("hidden");
        QTest::newRow("none") << QStringList() << true;
        QTest::newRow("empty") << QStringList{"", ""} << true;
        QTest::newRow("one") << QStringList{"", "max"} << false;
    }
    void theHeaderLineIsHiddenWithoutTexts()
    {
        QFETCH(QStringList, headers);
        QFETCH(bool, hidden);
        const VCListBoxNumeric list(nullptr, "list", 2, 0, 5, true, headers, 1);
        QCOMPARE(list.horizontalHeader()->isHidden(), hidden);
    }

    void whoHearsOfAnEditMayDeleteTheTable_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"Return", "Tab", "another field", "another window", "Down", "Delete", "paste", "new row", "menu"})
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

    void checkedLinesAreTheKeysOfTheValue()
    {
        ValueSelection* value = MakeSelection(true, "10;30");
        VCListBoxString list(nullptr, "list");
        QVERIFY(list.SetValueSelection_ValuePath(path));
        QCOMPARE(list.count(), 3);
        QCOMPARE(list.item(1)->text(), "twenty");
        QCOMPARE(list.item(0)->checkState(), Qt::Checked);
        QCOMPARE(list.item(1)->checkState(), Qt::Unchecked);
        QVERIFY(!(list.item(0)->flags() & Qt::ItemIsEditable));
        value->SetStoredText("20");
        QCOMPARE(list.item(0)->checkState(), Qt::Unchecked);
        QCOMPARE(list.item(1)->checkState(), Qt::Checked);
        value->SetItems({{20, "two"}, {40, "four"}});
        QCOMPARE(list.count(), 2);
        QCOMPARE(list.item(0)->text(), "two");
        QCOMPARE(list.item(0)->checkState(), Qt::Checked);
    }

    void spaceAndClicksToggleLines_data()
    {
        QTest::addColumn<bool>("multiple");
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("after");
        QTest::newRow("add") << true << "30" << 0 << "10;30";
        QTest::newRow("remove") << true << "10;30" << 0 << "30";
        QTest::newRow("last one") << true << "20" << 1 << "";
        QTest::newRow("unknown keys are kept") << true << "7;10;99" << 1 << "7;10;20;99";
        QTest::newRow("one of several") << false << "10" << 2 << "30";
        QTest::newRow("the one stays") << false << "10" << 0 << "10";
        QTest::newRow("unknown one") << false << "99" << 1 << "20";
    }
    void spaceAndClicksToggleLines()
    {
        QFETCH(bool, multiple);
        QFETCH(QString, before);
        QFETCH(int, row);
        QFETCH(QString, after);
        ValueSelection* value = MakeSelection(multiple, before);
        VCListBoxString list(nullptr, "list");
        list.SetValueSelection_ValuePath(path);
        list.show();
        const auto isRight = [&]
        {
            for (int i = 0; i < list.count(); ++i)
            {
                const int key = 10 * (i + 1);
                const auto& keys = value->GetKeys();
                const bool isIn =
                    multiple ? std::find(keys.begin(), keys.end(), key) != keys.end() : value->GetCurrentKey() == key;
                if ((list.item(i)->checkState() == Qt::Checked) != isIn)
                    return false;
            }
            return true;
        };
        list.setCurrentRow(row);
        QTest::keyClick(&list, Qt::Key_Space);
        QCOMPARE(value->GetStoredText(), after);
        QVERIFY(isRight());

        value->SetStoredText(before);
        QStyleOptionViewItem option;
        option.initFrom(&list);
        option.rect = list.visualItemRect(list.item(row));
        option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
        const QRect box = list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box.center());
        QCOMPARE(value->GetStoredText(), after);
        QVERIFY(isRight());
    }

    void theListIsSetToItsDefault()
    {
        ValueSelection* value = MakeSelection(true, "10;30");
        VCListBoxString list(nullptr, "list");
        list.SetValueSelection_ValuePath(path);
        QMenu* menu = OpenMenu(&list);
        QCOMPARE(menu->actions().size(), 1);
        QCOMPARE(menu->actions()[0]->text(), "Set to &Default");
        menu->actions()[0]->trigger();
        QCOMPARE(value->GetStoredText(), "20");
        QCOMPARE(list.item(0)->checkState(), Qt::Unchecked);
        QCOMPARE(list.item(1)->checkState(), Qt::Checked);
        list.Lock();
        QVERIFY(!OpenMenu(&list)->actions()[0]->isEnabled());
    }

    void onlySelectionsAreBound()
    {
        MakeSelection(true, "10");
        Tree::Instance()->CreateValue<IntValue>(QStringLiteral("/J/INT"));
        VCListBoxString list(nullptr, "list");
        QVERIFY(!list.isEnabled());
        QVERIFY(list.SetValueSelection_ValuePath(path));
        QVERIFY(list.isEnabled());
        QVERIFY(!list.SetValueSelection_ValuePath(QStringLiteral("/J/INT")));
        QCOMPARE(list.count(), 0);
        QVERIFY(!list.isEnabled());
    }

    void whoHearsOfAToggleMayDeleteTheList_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"Space", "click", "default"})
            QTest::newRow(way) << way;
    }
    void whoHearsOfAToggleMayDeleteTheList()
    {
        QFETCH(QString, way);
        ValueSelection* value = MakeSelection(true, "10");
        QPointer<VCListBoxString> list = new VCListBoxString(nullptr, "list");
        list->SetValueSelection_ValuePath(path);
        list->show();
        list->setCurrentRow(0);
        Listener destroyer(value, [&] { delete list; });
        if (way == "Space")
            QTest::keyClick(list, Qt::Key_Space);
        else if (way == "click")
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(0)).topLeft() + QPoint(10, 10));
        else
            OpenMenu(list)->actions()[0]->trigger();
        QVERIFY(!list);
        QCOMPARE(destroyer.heard, 1);
    }
};

QTEST_MAIN(TestListBoxes)
#include "test_listboxes.moc"
