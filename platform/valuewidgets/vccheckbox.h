#pragma once

#include "valuewidgets/valuelink.h"

#include <QCheckBox>

namespace TKE
{

/// A check box for a boolean, or for a selection: key 0 is unchecked, any other key checked; checking selects key 1,
/// unchecking key 0. setChecked shows and does not write; click() writes.
class VCCheckBox : public QCheckBox, public ValueLink
{
    Q_OBJECT

public:
    explicit VCCheckBox(QWidget* parent = nullptr, const QString& name = {});

    bool Set_ValuePath(const QString& path) { return BindPath(path); }
    void SetText(const QString& text) { setText(text); }

protected:
    void nextCheckState() override;

    bool CanShow(const ValueBase& value) const override;
    void ShowContent() override;
    void ShowNothing() override;
    void WriteEdit() override;
};

} // namespace TKE
