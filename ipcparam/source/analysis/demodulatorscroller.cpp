#include "analysis/demodulatorscroller.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

namespace TKE
{

namespace
{

void SetUp(QScrollBar& bar, int content, int shown, const QRect& place)
{
    bar.setRange(0, qMax(0, content - shown));
    bar.setPageStep(shown);
    bar.setSingleStep(20);
    bar.setGeometry(place);
    bar.setVisible(content > shown);
    bar.raise();
}

/// How far to move so that `from` to `to` lies within 0 to `size`; where it does not fit, its start counts.
int Distance(int from, int to, int size)
{
    if (from < 0 || to - from > size)
        return from;
    return qMax(0, to - size);
}

} // namespace

DemodulatorScroller::DemodulatorScroller(QWidget* dialog) : QObject(dialog), m_dialog(dialog) {}

void DemodulatorScroller::Place(QWidget& panel, const QRect& room, const QSize& least)
{
    const bool isNew = m_panel != &panel;
    m_panel = &panel;
    m_room = room;
    // Across, spacers give way first; downwards, rows are as high as they want to be.
    const QSize content(panel.layout()->totalMinimumSize().width(), panel.layout()->totalSizeHint().height());
    if (content.width() <= room.width() && content.height() <= room.height())
    {
        Clear();
        panel.clearMask();
        panel.setGeometry(QRect(room.topLeft(), least.expandedTo(content)));
        return;
    }

    EnsureBars();
    const int thickness = m_dialog->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_dialog);
    bool across = content.width() > room.width();
    const bool down = content.height() > room.height() - (across ? thickness : 0);
    across = across || content.width() > room.width() - (down ? thickness : 0);
    m_room.adjust(0, 0, down ? -thickness : 0, across ? -thickness : 0);

    if (isNew)
    {
        m_horizontal->setValue(0);
        m_vertical->setValue(0);
    }
    panel.resize(m_room.size().expandedTo(content));
    SetUp(*m_horizontal, content.width(), m_room.width(),
          {m_room.left(), m_room.bottom() + 1, m_room.width(), thickness});
    SetUp(*m_vertical, content.height(), m_room.height(),
          {m_room.right() + 1, m_room.top(), thickness, m_room.height()});
    Move();
}

void DemodulatorScroller::Clear()
{
    if (!m_vertical)
        return;
    m_horizontal->hide();
    m_vertical->hide();
}

void DemodulatorScroller::Wheel(QWheelEvent* event)
{
    if (m_vertical && m_vertical->isVisible())
        QApplication::sendEvent(m_vertical, event);
}

void DemodulatorScroller::EnsureBars()
{
    if (m_vertical)
        return;
    m_horizontal = new QScrollBar(Qt::Horizontal, m_dialog);
    m_vertical = new QScrollBar(Qt::Vertical, m_dialog);
    for (QScrollBar* bar : {m_horizontal, m_vertical})
        connect(bar, &QScrollBar::valueChanged, this, &DemodulatorScroller::Move);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { Reveal(focused); });
}

void DemodulatorScroller::Move()
{
    if (!m_panel)
        return;
    const QPoint offset(m_horizontal->value(), m_vertical->value());
    m_panel->move(m_room.topLeft() - offset);
    m_panel->setMask(QRect(offset, m_room.size())); // the rows above the room would lie over the rest of the dialog
}

void DemodulatorScroller::Reveal(QWidget* focused)
{
    if (!m_panel || !focused || !m_panel->isAncestorOf(focused))
        return;
    const QPoint corner = focused->mapTo(m_dialog, QPoint()) - m_room.topLeft();
    if (m_horizontal->isVisible())
        m_horizontal->setValue(m_horizontal->value() +
                               Distance(corner.x(), corner.x() + focused->width(), m_room.width()));
    if (m_vertical->isVisible())
        m_vertical->setValue(m_vertical->value() +
                             Distance(corner.y(), corner.y() + focused->height(), m_room.height()));
}

} // namespace TKE
