#pragma once

#include "value/tree.h"
#include "widgets/vclistboxnumeric.h"

#include <QTest>
#include <QtWidgets>

/// A numeric list as a person uses it, for its test programs.
namespace NumericListTest
{

using namespace TKE;

inline const QString path = QStringLiteral("/J/LIST");
inline constexpr double megahertz = 1000000;

/// A list of doubles from 9 kHz to 3 GHz.
inline DoubleListValue* MakeList(const QString& stored)
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

/// A window with a table between two fields that can have the focus.
struct Window : QWidget
{
    Window(int columns, int minRows, int maxRows, bool sorted, double factor)
        : list(new VCListBoxNumeric(this, "list", columns, minRows, maxRows, sorted, {}, factor))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(before);
        layout->addWidget(list);
        layout->addWidget(after);
        setTabOrder(before, list);
        setTabOrder(list, after);
        list->SetList_ValuePath(path);
        show();
        activateWindow();
        (void)QTest::qWaitForWindowActive(this);
        list->setFocus();
    }

    QLineEdit* before = new QLineEdit(this);
    QPointer<VCListBoxNumeric> list;
    QLineEdit* after = new QLineEdit(this);
};

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

inline QString Shown(const VCListBoxNumeric* list)
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
inline QMenu* OpenMenu(QAbstractItemView* list)
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

} // namespace NumericListTest
