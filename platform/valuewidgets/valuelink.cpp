#include "valuewidgets/valuelink.h"

#include "value/tree.h"

#include <QGroupBox>

namespace TKE
{

namespace
{

// An unchecked group box disables its children itself, and enables them again when it is checked.
bool IsSwitchedOff(const QWidget* parent)
{
    const auto* box = qobject_cast<const QGroupBox*>(parent);
    return box && box->isCheckable() && !box->isChecked();
}

} // namespace

bool ValueLink::BindPath(const QString& path)
{
    return Bind(path.isEmpty() ? nullptr : Tree::Instance()->FindValue(path));
}

bool ValueLink::Bind(ValueBase* value)
{
    if (m_value)
        m_value->Detach(this);
    m_value = value && value->GetState() != stReleased && CanShow(*value) ? value : nullptr;
    if (!m_value)
    {
        ShowNothing();
        Enable(false);
        return false;
    }
    m_value->Attach(this);
    FollowState();
    ShowDescription();
    ShowContent();
    return true;
}

void ValueLink::Lock()
{
    m_locked = true;
    Enable(false);
}

void ValueLink::Update(Observable* source, TChangeCode code)
{
    if (!m_value || source != m_value)
        return;
    switch (code)
    {
    case ccState:
        FollowState();
        break;
    case ccContent:
        ShowContent();
        break;
    case ccDescription:
    case ccItems:
        ShowDescription();
        ShowContent();
        break;
    }
}

void ValueLink::FollowState()
{
    switch (m_value->GetState())
    {
    case stEnabled:
        Enable(true);
        break;
    case stDisabled:
        Enable(false);
        break;
    case stReleased:
        m_value->Detach(this);
        m_value = nullptr;
        break;
    }
}

void ValueLink::Enable(QWidget& widget, bool on)
{
    if (on && IsSwitchedOff(widget.parentWidget()))
        widget.setAttribute(Qt::WA_ForceDisabled, false);
    else
        widget.setEnabled(on);
}

} // namespace TKE
