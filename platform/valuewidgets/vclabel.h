#pragma once

#include "valuewidgets/valuelink.h"

#include <QLabel>

namespace TKE
{

/// A label that shows the content of a value of any kind as plain text: numbers in the user's locale, a selection by
/// its item's name.
class VCLabel : public QLabel, public ValueLink
{
    Q_OBJECT

public:
    explicit VCLabel(QWidget* parent = nullptr, const QString& name = {});

    bool SetText_ValuePath(const QString& path) { return BindPath(path); }

protected:
    void changeEvent(QEvent* event) override;

    bool CanShow(const ValueBase&) const override { return true; }
    void ShowContent() override;
    void ShowNothing() override;
};

} // namespace TKE
