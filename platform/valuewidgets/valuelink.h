#pragma once

#include "value/valuebase.h"

#include <QPointer>
#include <QWidget>
#include <utility>

namespace TKE
{

/// The link between a widget and the one value that it shows and edits; a base of the widget.
///
/// The widget follows the value's state: 0 enables it, 2 disables it, 1 makes it forget the value and keep its look.
/// Showing never writes. A widget that was given no value it can show is disabled and empty. Widget and value may go in
/// either order.
class ValueLink : public IObserver
{
public:
    /// Lets go of the value held and holds the one at `path` (empty: none). Returns false, leaving the widget disabled
    /// and empty, when there is none or the widget cannot show its kind.
    bool BindPath(const QString& path);
    /// The same with a value found already (null: none). The value is not owned.
    bool Bind(ValueBase* value);
    ValueBase* GetBoundValue() const { return m_value; }

    /// Disables the widget for good, whatever the state of its value.
    void Lock();
    bool IsLocked() const { return m_locked; }

    /// Enables `widget` or disables it. In a group box that is not checked it comes on only when the box is.
    static void Enable(QWidget& widget, bool on);

    void Update(Observable* source, TChangeCode code) override;

protected:
    /// `widget` is the object that this is a base of.
    explicit ValueLink(QWidget* widget) : m_widget(widget) {}

    QWidget* GetWidget() const { return m_widget; }
    /// The widget that is enabled and disabled: this one, or what it is a part of.
    virtual QWidget* GetStateWidget() const { return m_widget; }

    virtual bool CanShow(const ValueBase& value) const = 0;
    /// Takes over range and items. ShowContent follows.
    virtual void ShowDescription() {}
    /// Shows the content of the bound value; must not write.
    virtual void ShowContent() = 0;
    /// Empties the widget, which has no value any more.
    virtual void ShowNothing() = 0;
    /// Writes what the user made of the content, naming this as excluded. Whoever hears of the write may delete the
    /// widget.
    virtual void WriteEdit() {}

    /// The user has edited: writes now, or when Qt is done with the event.
    void OnEdited()
    {
        if (m_holding)
            m_pending = true;
        else
            WriteEdit();
    }
    bool IsHolding() const { return m_holding; }
    /// Runs Qt's handling of an event and writes afterwards what the user edits in it, since Qt does not expect that
    /// the widget is deleted meanwhile.
    template <class Base> bool HoldWrites(Base base)
    {
        const QPointer<QWidget> alive(m_widget);
        const bool before = std::exchange(m_holding, true);
        const bool handled = base();
        if (!alive)
            return handled;
        m_holding = before;
        if (!before && std::exchange(m_pending, false))
            WriteEdit();
        return handled;
    }

private:
    void FollowState();
    void Enable(bool on) { Enable(*GetStateWidget(), on && !m_locked); }

    QWidget* m_widget;
    ValueBase* m_value = nullptr;
    bool m_locked = false;
    bool m_holding = false;
    bool m_pending = false;
};

} // namespace TKE
