// What the tests of the value widgets share.
#pragma once

#include "value/tree.h"

#include <QtTest>
#include <QtWidgets>
#include <deque>

namespace WidgetFixture
{

using namespace TKE;

inline const QString path = QStringLiteral("/Job/Value");
inline const QLocale german(QLocale::German, QLocale::Germany);
inline const QLocale english(QLocale::English, QLocale::UnitedStates);

inline std::deque<ValueDescriptor> s_descriptors;

inline ValueBase* Make(const QString& at, ValueKind kind, const QString& stored)
{
    ValueDescriptor& descriptor = s_descriptors.emplace_back();
    descriptor.kind = kind;
    if (kind == ValueKind::Selection)
        descriptor.items = {{0, "Off"}, {1, "On"}, {5, "Auto & more"}};
    descriptor.precision = 1;
    descriptor.defaultText = stored;
    return Tree::Instance()->CreateValue(at, descriptor);
}

inline ValueBase* MakeNumber(ValueKind kind, const QString& stored, double minimum, double maximum, double step = 1.0)
{
    ValueBase* value = Make(path, kind, stored);
    ValueDescriptor& descriptor = s_descriptors.back();
    descriptor.minimum = minimum;
    descriptor.maximum = maximum;
    descriptor.step = step;
    return value;
}

// A widget that counts what it is told.
template <class Widget> struct Heard : Widget
{
    using Widget::Widget;
    void Update(Observable* source, TChangeCode code) override
    {
        codes.push_back(code);
        Widget::Update(source, code);
    }
    std::vector<int> codes;
};

// A window with the widget under test and another field to go to.
struct Window : QWidget
{
    Window()
    {
        auto* box = new QVBoxLayout(this);
        panel = new QWidget(this);
        new QVBoxLayout(panel);
        other = new QLineEdit(this);
        box->addWidget(panel);
        box->addWidget(other);
    }
    ~Window() override { delete panel; }
    template <class W> W* Add(W* widget)
    {
        panel->layout()->addWidget(widget);
        return widget;
    }
    void Open()
    {
        show();
        activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
    // A new widget bound to `value`, in the open window and with the focus.
    template <class W> W* Edit(ValueBase* value)
    {
        W* widget = Add(new W);
        widget->Bind(value);
        Open();
        widget->setFocus();
        return widget;
    }
    QPointer<QWidget> panel;
    QLineEdit* other;
};

// Types over all that a field shows.
template <class Field> void Type(Field* field, const QString& text)
{
    field->selectAll();
    QTest::keyClicks(field, text);
}

template <class Field> void Enter(Field* field, const QString& text)
{
    Type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

inline void Wheel(QWidget* widget)
{
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(widget, &event);
}

inline bool HasRedFrame(QWidget* widget)
{
    const QImage image = widget->grab().toImage();
    const QColor edge = image.pixelColor(image.width() / 2, 1);
    return edge.red() > 150 && edge.green() < 100;
}

// Each test leaves an empty tree.
inline void CleanUp()
{
    Tree::Instance()->SetJournal({});
    Tree::Instance()->Clear();
    s_descriptors.clear();
}

/// The actions of the menu that a click with the right button opens.
inline QList<QAction*> OpenMenu(QAbstractItemView* list)
{
    qDeleteAll(list->findChildren<QMenu*>());
    const QPoint place(5, 5);
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &click);
    const auto menus = list->findChildren<QMenu*>();
    return menus.isEmpty() ? QList<QAction*>() : menus.last()->actions();
}

/// Chooses from that menu by the key of an entry.
inline void ChooseInMenu(QAbstractItemView* list, Qt::Key key)
{
    OpenMenu(list);
    QPointer<QMenu> menu = list->findChildren<QMenu*>().last();
    QTest::keyClick(menu, key);
    QVERIFY(menu); // what was chosen waits until the menu is done
    QCoreApplication::processEvents();
}

} // namespace WidgetFixture
