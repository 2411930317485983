#include "valuewidgets/vcbuttongroup.h"

#include "value/valueselection.h"

#include <QBoxLayout>
#include <QEvent>
#include <QRadioButton>
#include <QSignalBlocker>

namespace TKE
{

// A button of the group.
class VCButtonGroup::Button final : public QRadioButton
{
public:
    explicit Button(VCButtonGroup* group) : QRadioButton(group), m_group(group) {}

protected:
    bool event(QEvent* event) override
    {
        switch (event->type())
        {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonRelease:
        case QEvent::Shortcut:
            break;
        default:
            return QRadioButton::event(event);
        }
        return m_group->HoldWrites([&] { return QRadioButton::event(event); });
    }
    void nextCheckState() override
    {
        QRadioButton::nextCheckState();
        m_group->Choose(this);
    }

private:
    VCButtonGroup* m_group;
};

VCButtonGroup::VCButtonGroup(QWidget* parent, const QString& name, Qt::Orientation orientation)
    : QGroupBox(parent)
    , ValueLink(this)
    , m_layout(new QBoxLayout(orientation == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, this))
{
    setObjectName(name);
}

ValueSelection* VCButtonGroup::Selection() const
{
    return static_cast<ValueSelection*>(GetBoundValue());
}

bool VCButtonGroup::CanShow(const ValueBase& value) const
{
    return value.GetKind() == ValueKind::Selection && !value.GetDescriptor().multiple;
}

void VCButtonGroup::Choose(const QRadioButton* button)
{
    m_chosen = int(std::find(m_buttons.begin(), m_buttons.end(), button) - m_buttons.begin());
    OnEdited();
}

void VCButtonGroup::WriteEdit()
{
    const int row = std::exchange(m_chosen, -1);
    ValueSelection* selection = Selection();
    if (!selection || size_t(row) >= selection->GetItems().size())
        return;
    if (!selection->SelectKey(selection->GetItems()[size_t(row)].GetKey(), this))
        ShowContent();
}

void VCButtonGroup::ShowDescription()
{
    const auto& items = Selection()->GetItems();
    MakeButtons(items.size());
    for (size_t row = 0; row < items.size(); ++row)
    {
        QString text = items[row].GetName();
        m_buttons[row]->setText(text.replace(u'&', QStringLiteral("&&")));
    }
}

void VCButtonGroup::MakeButtons(size_t count)
{
    m_chosen = -1;
    while (m_buttons.size() > count)
    {
        delete m_buttons.back();
        m_buttons.pop_back();
    }
    while (m_buttons.size() < count)
    {
        m_buttons.push_back(new Button(this));
        m_layout->addWidget(m_buttons.back());
    }
}

void VCButtonGroup::ShowContent()
{
    const auto& items = Selection()->GetItems();
    const int key = Selection()->GetCurrentKey();
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.GetKey() == key; });
    Check(found == items.end() ? nullptr : m_buttons[size_t(found - items.begin())]);
}

void VCButtonGroup::Check(QRadioButton* checked)
{
    for (QRadioButton* button : m_buttons)
    {
        if (button->isChecked() == (button == checked))
            continue;
        const QSignalBlocker quiet(button);
        button->setAutoExclusive(false); // a checked exclusive button cannot be unchecked
        button->setChecked(button == checked);
        button->setAutoExclusive(true);
    }
}

void VCButtonGroup::ShowNothing()
{
    MakeButtons(0);
}

} // namespace TKE
