#include "value/tree.h"
#include "widgets/vclistboxstring.h"

#include <QTest>
#include <QtWidgets>
#include <deque>

using namespace TKE;

namespace
{

const QString path = QStringLiteral("/J/LIST");

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

QMenu* OpenMenu(VCListBoxString* list)
{
    emit list->customContextMenuRequested({5, 5});
    return list->findChildren<QMenu*>().last();
}

/// Deletes a list when the value changes.
class Destroyer : public IObserver
{
public:
    Destroyer(Observable* value, QPointer<VCListBoxString>& list) : m_list(list) { value->Attach(this); }
    void Update(Observable*, TChangeCode) override { delete m_list; }

private:
    QPointer<VCListBoxString>& m_list;
};

} // namespace

class TestStringList : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Tree::Instance()->Clear(); }

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
        Destroyer destroyer(value, list);
        if (way == "Space")
            QTest::keyClick(list, Qt::Key_Space);
        else if (way == "click")
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                              list->visualItemRect(list->item(0)).topLeft() + QPoint(10, 10));
        else
            OpenMenu(list)->actions()[0]->trigger();
        QVERIFY(!list);
    }
};

QTEST_MAIN(TestStringList)
#include "test_stringlist.moc"
