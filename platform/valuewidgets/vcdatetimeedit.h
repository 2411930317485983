#pragma once

#include "valuewidgets/valuelink.h"

#include <QDateTimeEdit>

namespace TKE
{

/// An editor for a date and time, to the second. A value that holds none is shown as "none" and stays so until the user
/// edits it, which begins at the current time. The user's edit is written on Return, on leaving the field and on each
/// step; Escape shows again what the tree holds. The wheel works in a focused editor only. setDateTime only shows.
class VCDateTimeEdit : public QDateTimeEdit, public ValueLink
{
    Q_OBJECT

public:
    explicit VCDateTimeEdit(QWidget* parent = nullptr, const QString& name = {});

    bool SetDateTime_ValuePath(const QString& path) { return BindPath(path); }

    /// Whether a step adds the section's amount of time and so carries over into the others (true), or stays within its
    /// section (false, the default).
    void SetDifferential(bool on) { m_differential = on; }

    void stepBy(int steps) override;

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    StepEnabled stepEnabled() const override;

    bool CanShow(const ValueBase& value) const override;
    void ShowContent() override;
    void ShowNothing() override;
    void WriteEdit() override;

private:
    bool IsNone() const { return dateTime() == minimumDateTime(); }
    bool IsTypedInto() const;
    bool HandleKey(QKeyEvent* event);
    bool HandleLast(QEvent* event); // one that ends an edit
    void BeginAtNow();
    void Show(const QDateTime& moment);

    QDateTime m_shown; // what the editor was given to show; anything else in it is an edit
    bool m_differential = false;
};

} // namespace TKE
