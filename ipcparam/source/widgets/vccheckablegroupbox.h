#pragma once

#include "ipcparam/export.h"
#include "value/value.h"
#include "value/valueselection.h"
#include "valuewidgets/fieldholder.h"

#include <QGroupBox>

namespace TKE
{

/// A group box whose title check box is bound to one value, a boolean or a selection (key 0 is unchecked, any other key
/// checked), so that one value switches a whole group of rows. It follows the value's state and is disabled until a
/// value enables it.
class IPCPARAM_EXPORT VCCheckableGroupBox : public QGroupBox, public IObserver, public FieldHolder
{
    Q_OBJECT

public:
    VCCheckableGroupBox(QWidget* parent, const QString& name, const QString& toolTip);
    ~VCCheckableGroupBox() override;

    /// Both let go of the value held, hold `value` (not owned) and show its content. Null is held by neither: false.
    bool SetBoolValue(BoolValue* value);
    bool SetSelectionValue(ValueSelection* value);
    /// Lets go of the value held, then holds `value`, shows its state and its content. False when it is of neither kind
    /// or null.
    bool SetValue(ValueBase* value);

    /// Disables the box for good, whatever the state of its value.
    void Lock();

    void Update(Observable* source, TChangeCode code) override;
    std::vector<Field> GetFields() const override;

private slots:
    void slotInternalChange(bool on);

private:
    void Release();
    void FollowState(EnableState state);
    void Show(bool on);

    BoolValue* m_boolValue = nullptr;
    ValueSelection* m_selectionValue = nullptr;
    bool m_locked = false;
    bool m_showing = false; // what is toggled now is no edit
};

} // namespace TKE
