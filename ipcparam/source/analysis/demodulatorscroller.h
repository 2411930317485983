#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>

class QScrollBar;
class QWheelEvent;
class QWidget;

namespace TKE
{

/// Fits a panel into a part of the dialog it is a child of: of one size for all panels, larger where the content asks for
/// it. Where the content does not fit, the panel is clipped to the room and scroll bars, the wheel and the keyboard
/// focus reach the rest.
class DemodulatorScroller final : public QObject
{
public:
    /// `dialog` owns the scroller.
    explicit DemodulatorScroller(QWidget* dialog);

    /// Places `panel` in `room` (in the dialog's coordinates); `least` is its size unless the content needs more.
    void Place(QWidget& panel, const QRect& room, const QSize& least);
    /// Takes the scroll bars away when there is no panel any more.
    void Clear();
    /// Scrolls; nothing happens while all fits.
    void Wheel(QWheelEvent* event);

private:
    void EnsureBars();
    void Move();
    void Reveal(QWidget* focused);

    QWidget* m_dialog;
    QPointer<QWidget> m_panel;
    QRect m_room;                       // what is seen of the panel, without the scroll bars
    QScrollBar* m_horizontal = nullptr; // both made when they are needed for the first time
    QScrollBar* m_vertical = nullptr;
};

} // namespace TKE
