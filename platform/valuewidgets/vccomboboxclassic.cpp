#include "valuewidgets/vccomboboxclassic.h"

#include "value/valueselection.h"
#include "valuewidgets/hintcache.h"

#include <QSignalBlocker>
#include <QWheelEvent>
#include <string_view>

namespace TKE
{

VCComboBoxClassic::VCComboBoxClassic(QWidget* parent, const QString& name) : QComboBox(parent), ValueLink(this)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::textActivated, this, &VCComboBoxClassic::OnChosen);
}

void VCComboBoxClassic::OnChosen()
{
    // A choice in the popup is written when Qt is back from the popup's event, which does not come by here.
    if (IsHolding())
        OnEdited();
    else
        QMetaObject::invokeMethod(
            this, [this] { OnEdited(); }, Qt::QueuedConnection);
}

ValueSelection* VCComboBoxClassic::Selection() const
{
    return static_cast<ValueSelection*>(GetBoundValue());
}

void VCComboBoxClassic::WriteEdit()
{
    ValueSelection* selection = Selection();
    if (!selection)
        return;
    const auto& items = selection->GetItems();
    const int row = currentIndex();
    // The entry behind the items is the unknown key that the box was given.
    const bool written = row >= 0 && size_t(row) < items.size()
                             ? selection->SelectKey(items[size_t(row)].GetKey(), this)
                             : selection->SetStoredText(itemText(row), this);
    if (!written)
        ShowContent();
}

bool VCComboBoxClassic::CanShow(const ValueBase& value) const
{
    return value.GetKind() == ValueKind::Selection && !value.GetDescriptor().multiple;
}

void VCComboBoxClassic::ShowDescription()
{
    const auto& items = Selection()->GetItems();
    bool same = size_t(count()) == items.size();
    for (int row = 0; same && row < count(); ++row)
        same = itemText(row) == items[size_t(row)].GetName();
    if (same)
        return;
    const QSignalBlocker quiet(this);
    QStringList names;
    names.reserve(qsizetype(items.size()));
    for (const SelectionItem& item : items)
        names.append(item.GetName());
    clear();
    addItems(names);
    updateGeometry();
}

void VCComboBoxClassic::ShowContent()
{
    const auto& items = Selection()->GetItems();
    const int key = Selection()->GetCurrentKey();
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.GetKey() == key; });
    const int row = int(found - items.begin());
    if (row == currentIndex() && count() == int(items.size()))
        return;
    const QSignalBlocker quiet(this);
    while (count() > int(items.size()))
        removeItem(count() - 1);
    if (found == items.end())
        addItem(Selection()->GetText());
    setCurrentIndex(row);
}

void VCComboBoxClassic::ShowNothing()
{
    const QSignalBlocker quiet(this);
    clear();
}

bool VCComboBoxClassic::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel)
        return HoldWrites([&] { return QComboBox::event(event); });
    return QComboBox::event(event);
}

void VCComboBoxClassic::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

namespace
{

struct Hints
{
    HintCache preferred;
    HintCache minimum;
};

Hints& SharedHints()
{
    static Hints hints;
    return hints;
}

} // namespace

bool VCComboBoxClassic::SharesHint() const
{
    return GetBoundValue() && size_t(count()) == Selection()->GetItems().size() && hasFrame() && !isEditable() &&
           sizeAdjustPolicy() == AdjustToContentsOnFirstShow && minimumContentsLength() == 0;
}

size_t VCComboBoxClassic::ItemsLook() const
{
    size_t look = 0;
    for (const SelectionItem& item : Selection()->GetItems())
    {
        const QString& name = item.GetName();
        const std::u16string_view text(reinterpret_cast<const char16_t*>(name.utf16()), size_t(name.size()));
        look = look * 1099511628211u + std::hash<std::u16string_view>()(text);
    }
    return look;
}

QSize VCComboBoxClassic::sizeHint() const
{
    return SharesHint() ? SharedHints().preferred.Get(*this, ItemsLook(), [this] { return QComboBox::sizeHint(); })
                        : QComboBox::sizeHint();
}

QSize VCComboBoxClassic::minimumSizeHint() const
{
    return SharesHint() ? SharedHints().minimum.Get(*this, ItemsLook(), [this] { return QComboBox::minimumSizeHint(); })
                        : QComboBox::minimumSizeHint();
}

} // namespace TKE
