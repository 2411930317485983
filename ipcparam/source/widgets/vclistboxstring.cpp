#include "widgets/vclistboxstring.h"

#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>

namespace TKE
{

namespace
{

int KeyOf(const QListWidgetItem& line)
{
    return line.data(Qt::UserRole).toInt();
}

} // namespace

VCListBoxString::VCListBoxString(QWidget* parent, const QString& name)
    : QListWidget(parent), ValueLink(static_cast<QWidget*>(this))
{
    setObjectName(name);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &VCListBoxString::Slot_OnMenuRequested);
    connect(this, &QListWidget::itemChanged, this, &VCListBoxString::Slot_OnItemChanged);
    setEnabled(false);
}

bool VCListBoxString::CanShow(const ValueBase& value) const
{
    return dynamic_cast<const ValueSelection*>(&value) != nullptr;
}

void VCListBoxString::ShowDescription()
{
    const QSignalBlocker blocker(this);
    const int row = currentRow();
    clear();
    for (const SelectionItem& item : Selection()->GetItems())
    {
        auto* line = new QListWidgetItem(item.GetName(), this);
        line->setData(Qt::UserRole, item.GetKey());
        line->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        line->setCheckState(Qt::Unchecked);
    }
    setCurrentRow(std::min(row, count() - 1));
}

void VCListBoxString::ShowContent()
{
    const QSignalBlocker blocker(this);
    m_toggledRow = -1;
    const std::vector<int>& keys = Selection()->GetKeys();
    for (int row = 0; row < count(); ++row)
    {
        const int key = KeyOf(*item(row));
        const bool isChecked = Selection()->IsMultiple() ? std::find(keys.begin(), keys.end(), key) != keys.end()
                                                         : key == Selection()->GetCurrentKey();
        item(row)->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
    }
}

void VCListBoxString::ShowNothing()
{
    const QSignalBlocker blocker(this);
    clear();
}

void VCListBoxString::Slot_OnItemChanged(QListWidgetItem* item)
{
    m_toggledRow = row(item);
    if (!m_isInEvent)
        WriteToggled();
}

// Writes what was toggled when Qt is done with this list, so that whoever hears of the write may delete it.
template <class Base> void VCListBoxString::Handle(Base base)
{
    const QPointer alive(this);
    m_isInEvent = true;
    base();
    if (!alive)
        return;
    m_isInEvent = false;
    if (m_toggledRow >= 0)
        WriteToggled();
}

void VCListBoxString::keyPressEvent(QKeyEvent* event)
{
    Handle([&] { QListWidget::keyPressEvent(event); });
}

void VCListBoxString::mouseReleaseEvent(QMouseEvent* event)
{
    Handle([&] { QListWidget::mouseReleaseEvent(event); });
}

void VCListBoxString::WriteToggled()
{
    const QListWidgetItem* line = item(std::exchange(m_toggledRow, -1));
    if (!Selection() || !line)
        return;
    const QPointer alive(this);
    if (Selection()->IsMultiple())
    {
        std::vector<int> keys = Selection()->GetKeys(); // with those that have no line
        std::erase(keys, KeyOf(*line));
        if (line->checkState() == Qt::Checked)
            keys.push_back(KeyOf(*line));
        Selection()->SetKeys(keys, this);
    }
    else
        Selection()->SelectKey(KeyOf(*line), this);
    if (alive && Selection())
        ShowContent();
}

void VCListBoxString::Slot_OnSetToDefault()
{
    if (!Selection() || !isEnabled())
        return;
    const QPointer alive(this);
    Selection()->SetToDefault(this);
    if (alive && Selection())
        ShowContent();
}

void VCListBoxString::Slot_OnMenuRequested(const QPoint& position)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* setToDefault = menu->addAction(tr("Set to &Default"));
    setToDefault->setEnabled(isEnabled());
    // Done when the menu is closed: whoever hears of the write may delete the list, and the menu with it.
    connect(setToDefault, &QAction::triggered, this, &VCListBoxString::Slot_OnSetToDefault, Qt::QueuedConnection);
    menu->popup(viewport()->mapToGlobal(position));
}

} // namespace TKE
