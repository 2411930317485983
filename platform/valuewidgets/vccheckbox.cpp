#include "valuewidgets/vccheckbox.h"

#include "value/value.h"
#include "value/valueselection.h"

#include <QSignalBlocker>

namespace TKE
{

VCCheckBox::VCCheckBox(QWidget* parent, const QString& name) : QCheckBox(parent), ValueLink(this)
{
    setObjectName(name);
}

void VCCheckBox::nextCheckState()
{
    QCheckBox::nextCheckState();
    OnEdited();
}

void VCCheckBox::WriteEdit()
{
    ValueBase* value = GetBoundValue();
    if (!value)
        return;
    const bool on = isChecked();
    const bool written = value->GetKind() == ValueKind::Bool
                             ? value->SetBool(on, this)
                             : static_cast<ValueSelection*>(value)->SelectKey(on ? 1 : 0, this);
    if (!written) // and nobody heard of it, so that this box still stands

        ShowContent();
}

bool VCCheckBox::CanShow(const ValueBase& value) const
{
    return value.GetKind() == ValueKind::Bool ||
           (value.GetKind() == ValueKind::Selection && !value.GetDescriptor().multiple);
}

void VCCheckBox::ShowContent()
{
    const ValueBase* value = GetBoundValue();
    const bool on = value->GetKind() == ValueKind::Bool
                        ? value->GetBool()
                        : static_cast<const ValueSelection*>(value)->GetCurrentKey() != 0;
    if (on == isChecked())
        return;
    const QSignalBlocker quiet(this);
    setChecked(on);
}

void VCCheckBox::ShowNothing()
{
    const QSignalBlocker quiet(this);
    setChecked(false);
}

} // namespace TKE
