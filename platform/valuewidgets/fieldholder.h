#pragma once

#include <vector>

class QWidget;

namespace TKE
{

class ValueBase;

/// A widget that shows values without being linked to one by ValueLink: who looks at a dialog from outside learns here
/// where its values stand.
class FieldHolder
{
public:
    struct Field
    {
        QWidget* widget;  ///< where the value stands: this widget or one in it
        ValueBase* value; ///< never null
    };
    virtual std::vector<Field> GetFields() const = 0;

protected:
    ~FieldHolder() = default;
};

} // namespace TKE
