#pragma once

#include <QDialog>

namespace JOBEDIT
{

/// The guide for operators, in a window beside the editor's. Deletes itself when it is closed.
class GuideWindow : public QDialog
{
    Q_OBJECT

public:
    /// Brings the guide of this window to the front, and makes it if need be.
    static void Open(QWidget* parent);

private:
    explicit GuideWindow(QWidget* parent);
};

} // namespace JOBEDIT
