#pragma once

#include "value/valueselection.h"
#include "valuewidgets/valuelink.h"

#include <QListWidget>

namespace TKE
{

/// A check list of the items of a selection, one line per item. A multiple selection takes any set of lines, a plain
/// one exactly one. Keys that no item has are kept.
class VCListBoxString : public QListWidget, public ValueLink
{
    Q_OBJECT

public:
    /// Disabled until a bound value is enabled.
    VCListBoxString(QWidget* parent, const QString& name);

    /// Shows the selection at `path`. False when there is none; the list is then empty and disabled.
    bool SetValueSelection_ValuePath(const QString& path) { return BindPath(path); }

protected:
    bool CanShow(const ValueBase& value) const override;
    void ShowDescription() override;
    void ShowContent() override;
    void ShowNothing() override;

    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private slots:
    void Slot_OnItemChanged(QListWidgetItem* item);
    void Slot_OnSetToDefault();
    void Slot_OnMenuRequested(const QPoint& position);

private:
    ValueSelection* Selection() const { return static_cast<ValueSelection*>(GetBoundValue()); }
    template <class Base> void Handle(Base base);
    void WriteToggled();

    bool m_isInEvent = false; // the base class is at work on a key or a click
    int m_toggledRow = -1;    // the line that the user toggled and that is not written yet
};

} // namespace TKE
