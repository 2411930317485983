#pragma once

#include "valuewidgets/valuelink.h"

#include <QComboBox>

namespace TKE
{

class ValueSelection;

/// A combo box for a selection of one item: the items by name, in their order. A key that no item has is shown as an
/// entry of its own and kept. The user's choice is written; setCurrentIndex only shows. The wheel works in a focused
/// box only.
class VCComboBoxClassic : public QComboBox, public ValueLink
{
    Q_OBJECT

public:
    explicit VCComboBoxClassic(QWidget* parent = nullptr, const QString& name = {});

    bool SetValueSelection_ValuePath(const QString& path) { return BindPath(path); }

    /// Boxes with the same items share their hints, as long as the size is left to Qt's default policy.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

    bool CanShow(const ValueBase& value) const override;
    void ShowDescription() override;
    void ShowContent() override;
    void ShowNothing() override;
    void WriteEdit() override;

private:
    void OnChosen();
    ValueSelection* Selection() const;
    bool SharesHint() const;
    size_t ItemsLook() const;
};

} // namespace TKE
