#include "widgets/vccheckablegroupbox.h"

#include "valuewidgets/valuelink.h"

#include <QPointer>

namespace TKE
{

VCCheckableGroupBox::VCCheckableGroupBox(QWidget* parent, const QString& name, const QString& toolTip)
    : QGroupBox(parent)
{
    setObjectName(name);
    setToolTip(toolTip);
    setEnabled(false);
    setCheckable(true);
    connect(this, &QGroupBox::toggled, this, &VCCheckableGroupBox::slotInternalChange);
}

VCCheckableGroupBox::~VCCheckableGroupBox()
{
    Release();
}

void VCCheckableGroupBox::Release()
{
    if (m_boolValue)
        m_boolValue->Detach(this);
    if (m_selectionValue)
        m_selectionValue->Detach(this);
    m_boolValue = nullptr;
    m_selectionValue = nullptr;
}

bool VCCheckableGroupBox::SetBoolValue(BoolValue* value)
{
    Release();
    if (!value)
        return false;
    m_boolValue = value;
    value->Attach(this);
    Update(value, ccContent);
    return true;
}

bool VCCheckableGroupBox::SetSelectionValue(ValueSelection* value)
{
    Release();
    if (!value)
        return false;
    m_selectionValue = value;
    value->Attach(this);
    Update(value, ccContent);
    return true;
}

bool VCCheckableGroupBox::SetValue(ValueBase* value)
{
    Release();
    m_boolValue = dynamic_cast<BoolValue*>(value);
    m_selectionValue = dynamic_cast<ValueSelection*>(value);
    if (!m_boolValue && !m_selectionValue)
        return false;
    value->Attach(this);
    Update(value, ccState);
    Update(value, ccDescription);
    if (m_selectionValue)
        Update(value, ccItems);
    Update(value, ccContent);
    return true;
}

void VCCheckableGroupBox::Lock()
{
    m_locked = true;
    setEnabled(false);
}

void VCCheckableGroupBox::Update(Observable* source, TChangeCode code)
{
    const bool isBool = source && source == m_boolValue;
    const bool isSelection = source && source == m_selectionValue;
    if (!isBool && !isSelection)
        return;
    if (code == ccState)
        FollowState(isBool ? m_boolValue->GetState() : m_selectionValue->GetState());
    else if (code == ccContent && isBool)
        Show(m_boolValue->GetValue());
    else if (code == ccContent && m_selectionValue->GetSelectedItem())
        Show(m_selectionValue->GetSelectedItem()->GetKey() != 0);
}

std::vector<FieldHolder::Field> VCCheckableGroupBox::GetFields() const
{
    ValueBase* value = m_boolValue ? static_cast<ValueBase*>(m_boolValue) : m_selectionValue;
    return value ? std::vector<Field>{{const_cast<VCCheckableGroupBox*>(this), value}} : std::vector<Field>();
}

void VCCheckableGroupBox::FollowState(EnableState state)
{
    if (state == stReleased)
        Release();
    else
        ValueLink::Enable(*this, state == stEnabled && !m_locked);
}

void VCCheckableGroupBox::Show(bool on)
{
    // The slot must not take this for an edit: it would write key 1 over any other key but 0.
    const QPointer<VCCheckableGroupBox> alive(this);
    m_showing = true;
    setChecked(on);
    if (alive)
        m_showing = false;
}

void VCCheckableGroupBox::slotInternalChange(bool)
{
    if (m_showing)
        return;
    const bool on = isChecked();
    if (m_boolValue)
        m_boolValue->SetValue(on, this);
    else if (m_selectionValue && !m_selectionValue->SelectKey(on ? 1 : 0, this))
        Update(m_selectionValue, ccContent);
}

} // namespace TKE
