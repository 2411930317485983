#pragma once

#include "valuewidgets/valuelink.h"

#include <QEvent>
#include <optional>

class QLineEdit;

namespace TKE
{

/// A value link whose widget is typed into. Return and leaving the field write what was typed, Escape shows again what
/// the tree holds. An entry that cannot be taken stays as it was typed, marked by a red frame and with the reason as
/// tool tip and for assistive technology; the value is left alone.
class TextEntry : public ValueLink
{
public:
    /// Why the text that stands in the field was refused; empty when it was not.
    const QString& GetRefusal() const { return m_refusal; }

protected:
    using ValueLink::ValueLink;

    /// The line edit that is typed into.
    virtual QLineEdit& Field() const = 0;
    /// The content of the bound value as the field shows it.
    virtual QString ContentText() const = 0;
    /// Writes what `typed` says into the bound value, naming this as excluded. When it returns false, `reason` is for
    /// people; when it returns true, this may be gone.
    virtual bool Write(const QString& typed, QString& reason) = 0;
    virtual void OnRefused(const QString&) {}

    bool IsEdited() const;
    void ShowContent() override;
    void ShowNothing() override;
    void WriteEdit() override;
    void Refuse(const QString& reason);

    /// Lets Qt handle `event` by `base`, then writes if it ended an edit.
    template <class Base> bool Handle(QEvent* event, Base base)
    {
        if (!Concerns(*event))
            return base();
        if (Restores(*event))
            return true;
        return HoldWrites(
            [&]
            {
                const QPointer<QWidget> alive(GetWidget());
                const bool handled = base();
                if (alive && EndsEdit(*event))
                    OnEdited();
                return handled;
            });
    }
    /// Whether something besides the text (a step) waits to be written.
    virtual bool IsPending() const { return false; }

    /// Paints the red frame of a refused entry over the widget.
    void PaintRefusal() const;

private:
    static bool Concerns(const QEvent& event);
    bool Restores(QEvent& event);
    bool EndsEdit(QEvent& event);
    void Restore();
    void ShowText(const QString& text);
    void Accept();
    void Explain(const QString& toolTip, const QString& description);

    QString m_shown; // what the field was given to show; anything else in it is an edit
    QString m_refusal;
    QString m_toolTip; // the widget's own, while those of the refusal stand in their place
    QString m_description;
};

} // namespace TKE
