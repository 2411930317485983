#pragma once

#include "valuewidgets/valuelink.h"

#include <QGroupBox>
#include <vector>

class QBoxLayout;
class QRadioButton;

namespace TKE
{

class ValueSelection;

/// A group box of radio buttons for a selection of one item, one button for each item. A key that no item has checks no
/// button and is kept.
class VCButtonGroup : public QGroupBox, public ValueLink
{
    Q_OBJECT

public:
    explicit VCButtonGroup(QWidget* parent = nullptr, const QString& name = {},
                           Qt::Orientation orientation = Qt::Vertical);

    bool SetValueSelection_ValuePath(const QString& path) { return BindPath(path); }

    /// The button of each item, in the order of the items.
    const std::vector<QRadioButton*>& GetButtons() const { return m_buttons; }

protected:
    bool CanShow(const ValueBase& value) const override;
    void ShowDescription() override;
    void ShowContent() override;
    void ShowNothing() override;
    void WriteEdit() override;

private:
    class Button;
    ValueSelection* Selection() const;
    void MakeButtons(size_t count);
    void Choose(const QRadioButton* button);
    void Check(QRadioButton* checked);

    QBoxLayout* m_layout;
    std::vector<QRadioButton*> m_buttons; // children of this
    int m_chosen = -1;                    // row of a choice that is not written yet
};

} // namespace TKE
