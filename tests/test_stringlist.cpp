#include "common.h"
#include "widgetfixture.h"
#include "widgets/vclistboxstring.h"

using namespace TKE;
using namespace WidgetFixture;

namespace
{

ValueSelection* MakeSelection(bool multiple, const QString& stored)
{
    ValueDescriptor& descriptor = s_descriptors.emplace_back();
    descriptor.kind = ValueKind::Selection;
    descriptor.multiple = multiple;
    descriptor.items = {{10, "ten"}, {20, "twenty"}, {30, "thirty"}};
    descriptor.defaultText = "20";
    auto* value = Tree::Instance()->CreateValue<ValueSelection>(path, descriptor);
    value->SetStoredText(stored);
    return value;
}

QString CheckedLines(const VCListBoxString& list)
{
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
    {
        if (list.item(row)->checkState() == Qt::Checked)
            lines << list.item(row)->text();
    }
    return lines.join(' ');
}

void ClickBox(VCListBoxString& list, int row)
{
    const QPoint box(10, list.visualItemRect(list.item(row)).center().y());
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, box);
}

} // namespace

class TestStringList : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { CleanUp(); }

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
        QVERIFY(!OpenMenu(&list)[0]->isEnabled());
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
            Counter destroyer([&] { delete list; });
            value->Attach(&destroyer);
            toggle(list);
            QVERIFY(!list);
            Tree::Instance()->Clear();
        }
    }
};

QTEST_MAIN(TestStringList)
#include "test_stringlist.moc"
