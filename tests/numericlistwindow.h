#pragma once

#include "widgetfixture.h"
#include "widgets/vclistboxnumeric.h"

/// A numeric list as a person uses it, for its test programs.
namespace NumericListTest
{

using namespace WidgetFixture;

inline constexpr double megahertz = 1000000;

/// A list of doubles from 9 kHz to 3 GHz.
inline DoubleListValue* MakeList(const QString& stored)
{
    return dynamic_cast<DoubleListValue*>(MakeNumber(ValueKind::DoubleList, stored, 9000, 3000000000));
}

/// A window with a table between two fields that can have the focus.
struct ListWindow : Window
{
    ListWindow(int columns, int minRows, int maxRows, bool sorted, double factor)
        : before(Add(new QLineEdit(panel)))
        , list(Add(new VCListBoxNumeric(panel, "list", columns, minRows, maxRows, sorted, {}, factor)))
    {
        setTabOrder(before, list);
        setTabOrder(list, other);
        list->SetList_ValuePath(path);
        Open();
        list->setFocus();
    }

    QLineEdit* before;
    QPointer<VCListBoxNumeric> list;
};

/// Something that a person does in the window.
using Way = std::function<void(const ListWindow&)>;

inline QLineEdit* Editor(const VCListBoxNumeric* list)
{
    return qobject_cast<QLineEdit*>(list->indexWidget(list->currentIndex()));
}

/// Opens the editor of a cell and types `text` in place of what stands there, without leaving it.
inline QLineEdit* Type(VCListBoxNumeric* list, int row, int column, const QString& text)
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

inline void Press(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(widget, key, modifiers);
    QCoreApplication::processEvents(); // Return is handled later
}

/// Types into the open editor and leaves it.
inline void TypeAndLeave(const VCListBoxNumeric* list, const QString& text, Qt::Key key = Qt::Key_Return)
{
    QTest::keyClicks(Editor(list), text);
    Press(Editor(list), key);
}

inline void Paste(VCListBoxNumeric* list, const QString& text)
{
    QApplication::clipboard()->setText(text);
    Press(list, Qt::Key_V, Qt::ControlModifier);
}

inline QString Shown(const VCListBoxNumeric* list)
{
    QString rows;
    for (int cell = 0; cell < list->rowCount() * list->columnCount(); ++cell)
    {
        const int column = cell % list->columnCount();
        rows += (column > 0 ? "-" : " ") + list->item(cell / list->columnCount(), column)->text();
    }
    return rows.trimmed();
}

} // namespace NumericListTest

Q_DECLARE_METATYPE(NumericListTest::Way)
