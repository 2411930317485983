#pragma once

#include <QFrame>

namespace JOBEDIT
{

/// A line for who starts the editor for the first time: what is open, and where to begin. Goes when the user closes it,
/// and for good when the user says so.
class HintBar : public QFrame
{
    Q_OBJECT

public:
    explicit HintBar(QWidget* parent = nullptr);

    /// Shows the bar unless the user does not want it any more.
    void Offer();
};

} // namespace JOBEDIT
