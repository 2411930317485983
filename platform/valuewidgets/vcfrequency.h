#pragma once

#include "value/observable.h"

#include <QWidget>

class QPushButton;

namespace TKE
{

class ValueBase;
class VCComboBoxClassic;
class VCLineEdit;

/// An editor for a frequency in exact Hz: a number, its unit and a tune button below them. All editors show the unit
/// that GuiCentral holds; choosing another one here changes it for all. A unit that is typed behind the number
/// ("433.92M") goes before it. The focus proxy is the number field; make that a label's buddy.
class VCFrequency : public QWidget, public IObserver
{
    Q_OBJECT

public:
    explicit VCFrequency(QWidget* parent = nullptr, const QString& name = {});

    bool SetFrequency_ValuePath(const QString& path);
    bool Bind(ValueBase* value);
    ValueBase* GetBoundValue() const;

    /// Disables the editor for good, whatever the state of its value.
    void Lock();

    /// Pressing it does nothing by itself; connect to it, or hide it.
    QPushButton* GetTuneButton() const { return m_tune; }
    VCLineEdit* GetNumberField() const { return m_number; }

    void Update(Observable* source, TChangeCode code) override;

private:
    class Number;
    void ShowUnit();

    VCLineEdit* m_number;
    VCComboBoxClassic* m_unit;
    QPushButton* m_tune;
};

} // namespace TKE
