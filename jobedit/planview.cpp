#include "planview.h"

#include "application/qtcompat.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <limits>

namespace JOBEDIT
{

namespace
{

constexpr double leastSpan = 1000.0; // Hz
constexpr double keyZoom = 1.5;
constexpr double keyMove = 0.1;    // of what is shown
constexpr int scrollSteps = 10000; // of the horizontal scroll bar for the whole band
constexpr double reach = 5.0;      // pixels beside a mark that still mean it
constexpr size_t mostInToolTip = 12;

} // namespace

PlanView::PlanView(TKE::Band band, QWidget* parent) : QAbstractScrollArea(parent), m_painter(band, palette(), font())
{
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::StyledPanel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // or zooming would change the height
    setAccessibleName(band == TKE::Band::Hf ? tr("Frequency plan of the HF chains")
                                            : tr("Frequency plan of the V/UHF chains"));
    setAccessibleDescription(tr("Up and Down go through the chains, Return opens one; plus and minus zoom, Left and "
                                "Right move, Home shows all, the asterisk the selected chain."));
    verticalScrollBar()->setSingleStep(m_painter.RowHeight());
    setMinimumHeight(m_painter.AxisHeight() + 3 * m_painter.RowHeight());
    ShowAll();
}

void PlanView::SetPlan(FrequencyPlan plan)
{
    m_painter.SetPlan(std::move(plan));
    if (m_showsAll)
        ShowAll();
    Arrange();
    emit SelectionChanged(); // what the chain does may be other than before
}

void PlanView::ShowAll()
{
    const auto [from, to] = m_painter.GetWhole();
    m_scale.from = from;
    m_scale.to = to;
    m_showsAll = true;
    ArrangeAxis();
}

void PlanView::SetRange(double from, double to)
{
    // Never beyond the band and what the job has there, never so near that nothing can be told apart.
    const auto [first, last] = m_painter.GetWhole();
    const double span = std::clamp(to - from, leastSpan, last - first);
    m_scale.from = std::clamp(from, first, last - span);
    m_scale.to = m_scale.from + span;
    m_showsAll = span >= last - first;
    ArrangeAxis();
}

void PlanView::ShowSelected()
{
    const PlanLane* lane = m_painter.LaneOf(SelectedRow());
    if (!lane)
        return;
    double first = std::numeric_limits<double>::max();
    double last = 0.0;
    for (const PlanMark& mark : lane->marks)
        if (FrequencyPlan::IsOn(*lane, mark, m_painter.GetBand()))
        {
            first = std::min(first, double(mark.from));
            last = std::max(last, double(mark.to));
        }
    const double room = std::max((last - first) * 0.1, leastSpan);
    SetRange(first - room, last + room);
}

void PlanView::Zoom(double factor, double hertz)
{
    const double span = std::max((m_scale.to - m_scale.from) / factor, leastSpan);
    const double part = (hertz - m_scale.from) / (m_scale.to - m_scale.from);
    SetRange(hertz - part * span, hertz + (1.0 - part) * span);
}

void PlanView::SelectPath(const QString& path)
{
    const auto& rows = m_painter.GetRows();
    for (int row = 0; row < int(rows.size()); ++row)
        if (const PlanLane* lane = m_painter.LaneOf(row); lane && lane->path == path)
            return SelectRow(row);
    m_selected.clear();
    viewport()->update();
    emit SelectionChanged();
}

QString PlanView::SelectedText() const
{
    const PlanLane* lane = m_painter.LaneOf(SelectedRow());
    if (!lane)
        return {};
    QStringList lines;
    for (const PlanMark& mark : lane->marks)
        if (FrequencyPlan::IsOn(*lane, mark, m_painter.GetBand()))
            lines << FrequencyPlan::MarkText(mark);
    return lines.join('\n');
}

QPoint PlanView::PlaceOf(const QString& path, double hertz) const
{
    for (int row = 0; row < int(m_painter.GetRows().size()); ++row)
        if (const PlanLane* lane = m_painter.LaneOf(row); lane && lane->path == path)
            return {qRound(m_scale.XOf(hertz)), RectOf(row).center().y()};
    return {-1, -1};
}

void PlanView::Arrange()
{
    const int height = viewport()->height() - m_painter.AxisHeight();
    verticalScrollBar()->setRange(0, std::max(0, int(m_painter.GetRows().size()) * m_painter.RowHeight() - height));
    verticalScrollBar()->setPageStep(std::max(1, height));
    const int titles = m_painter.TitleWidth(std::max(80, viewport()->width() / 3));
    m_scale.left = titles;
    m_scale.width = std::max(1, viewport()->width() - titles);
    ArrangeAxis();
}

void PlanView::ArrangeAxis()
{
    const auto [first, last] = m_painter.GetWhole();
    const double span = m_scale.to - m_scale.from;
    m_arranging = true;
    horizontalScrollBar()->setRange(0, int(std::ceil((last - first - span) / (last - first) * scrollSteps)));
    horizontalScrollBar()->setPageStep(std::max(1, int(span / (last - first) * scrollSteps)));
    horizontalScrollBar()->setSingleStep(std::max(1, horizontalScrollBar()->pageStep() / 10));
    horizontalScrollBar()->setValue(int((m_scale.from - first) / (last - first) * scrollSteps));
    m_arranging = false;
    viewport()->update();
}

int PlanView::RowAt(const QPoint& position) const
{
    if (position.y() < m_painter.AxisHeight())
        return -1;
    const int row = (position.y() - m_painter.AxisHeight() + verticalScrollBar()->value()) / m_painter.RowHeight();
    return row < int(m_painter.GetRows().size()) ? row : -1;
}

QRect PlanView::RectOf(int row) const
{
    return {0, m_painter.AxisHeight() + row * m_painter.RowHeight() - verticalScrollBar()->value(), viewport()->width(),
            m_painter.RowHeight()};
}

int PlanView::SelectedRow() const
{
    if (!m_selected.isEmpty())
        for (int row = 0; row < int(m_painter.GetRows().size()); ++row)
            if (const PlanLane* lane = m_painter.LaneOf(row); lane && lane->path == m_selected)
                return row;
    return -1;
}

void PlanView::SelectRow(int row)
{
    const PlanLane* lane = m_painter.LaneOf(row);
    if (!lane)
        return;
    m_selected = lane->path;
    const int top = row * m_painter.RowHeight();
    const int height = viewport()->height() - m_painter.AxisHeight();
    if (top < verticalScrollBar()->value())
        verticalScrollBar()->setValue(top);
    else if (top + m_painter.RowHeight() > verticalScrollBar()->value() + height)
        verticalScrollBar()->setValue(top + m_painter.RowHeight() - height);
    viewport()->update();
    emit SelectionChanged();
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    setAccessibleDescription(tr("%1, %2: %3").arg(lane->group, lane->title, SelectedText()));
    QAccessible::updateAccessibility(&event);
}

void PlanView::Step(int step)
{
    // Headings are passed over; at the ends the selection stays.
    const int count = int(m_painter.GetRows().size());
    const int direction = step < 0 ? -1 : 1;
    int row = SelectedRow();
    row = row < 0 ? (direction > 0 ? 0 : count - 1) : std::clamp(row + step, 0, count - 1);
    while (row >= 0 && row < count && !m_painter.LaneOf(row))
        row += direction;
    SelectRow(row);
}

QString PlanView::TextAt(const QPoint& position) const
{
    const int row = RowAt(position);
    const PlanLane* lane = m_painter.LaneOf(row);
    if (!lane)
        return {};
    QStringList lines{lane->path, tr("Type: %1").arg(lane->type)};
    if (position.x() < m_scale.left)
        return lines.join('\n');
    const auto marks = m_painter.MarksAt(row, m_scale.HertzAt(position.x()), m_scale.HertzPerPixel() * reach);
    for (size_t index = 0; index < std::min(marks.size(), mostInToolTip); ++index)
        lines << FrequencyPlan::MarkText(*marks[index]);
    if (marks.size() > mostInToolTip)
        lines << tr("and %n more: zoom in", nullptr, int(marks.size() - mostInToolTip));
    return lines.join('\n');
}

void PlanView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    const int first = verticalScrollBar()->value() / m_painter.RowHeight();
    const int selected = SelectedRow();
    for (int row = first; row < int(m_painter.GetRows().size()); ++row)
    {
        const QRect area = RectOf(row);
        if (area.top() > viewport()->height())
            break;
        m_painter.PaintRow(painter, area, m_scale, row, row == selected);
    }
    m_painter.PaintAxis(painter, QRectF(0, 0, viewport()->width(), m_painter.AxisHeight()), m_scale);
    if (hasFocus())
    {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = selected < 0 ? viewport()->rect() : RectOf(selected);
        option.rect.setRight(qRound(m_scale.left) - 1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    if (!IsEmpty())
        return;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, tr("No chain has a frequency in this band."));
}

void PlanView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    Arrange();
}

void PlanView::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const bool beside = event->position().x() < m_scale.left || event->modifiers() & Qt::ControlModifier;
    if (event->modifiers() & Qt::ShiftModifier || std::abs(turned.x()) > std::abs(turned.y()))
    {
        const double part = (turned.x() ? turned.x() : turned.y()) / 120.0 * keyMove;
        const double move = -part * (m_scale.to - m_scale.from);
        SetRange(m_scale.from + move, m_scale.to + move);
    }
    else if (beside)
        verticalScrollBar()->setValue(verticalScrollBar()->value() - turned.y() * 3 * m_painter.RowHeight() / 120);
    else
        Zoom(std::pow(1.25, turned.y() / 120.0), m_scale.HertzAt(event->position().x()));
    event->accept();
}

void PlanView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_pressed = QtCompat::Place(*event).toPoint();
    m_pressedRange = GetRange();
    m_pressedTop = verticalScrollBar()->value();
    m_dragging = false;
}

void PlanView::mouseMoveEvent(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return event->ignore();
    const QPoint moved = QtCompat::Place(*event).toPoint() - m_pressed;
    if (!m_dragging && moved.manhattanLength() < QApplication::startDragDistance())
        return;
    if (!m_dragging)
        viewport()->setCursor(Qt::ClosedHandCursor);
    m_dragging = true;
    const double hertz = moved.x() * m_scale.HertzPerPixel();
    SetRange(m_pressedRange.first - hertz, m_pressedRange.second - hertz);
    verticalScrollBar()->setValue(m_pressedTop - moved.y());
}

void PlanView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    viewport()->unsetCursor();
    const PlanLane* lane = m_dragging ? nullptr : m_painter.LaneOf(RowAt(QtCompat::Place(*event).toPoint()));
    m_dragging = false;
    if (!lane)
        return;
    const QString path = lane->path; // who hears of it may bring a new plan
    SelectRow(RowAt(QtCompat::Place(*event).toPoint()));
    emit NodeChosen(path);
}

void PlanView::keyPressEvent(QKeyEvent* event)
{
    const double span = m_scale.to - m_scale.from;
    const double middle = (m_scale.from + m_scale.to) / 2;
    const int page = std::max(1, verticalScrollBar()->pageStep() / m_painter.RowHeight() - 1);
    switch (event->key())
    {
    case Qt::Key_Plus:
        return Zoom(keyZoom, middle);
    case Qt::Key_Minus:
        return Zoom(1.0 / keyZoom, middle);
    case Qt::Key_Left:
        return SetRange(m_scale.from - keyMove * span, m_scale.to - keyMove * span);
    case Qt::Key_Right:
        return SetRange(m_scale.from + keyMove * span, m_scale.to + keyMove * span);
    case Qt::Key_Home:
        return ShowAll();
    case Qt::Key_Asterisk:
        return ShowSelected();
    case Qt::Key_Up:
        return Step(-1);
    case Qt::Key_Down:
        return Step(1);
    case Qt::Key_PageUp:
        return Step(-page);
    case Qt::Key_PageDown:
        return Step(page);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (SelectedRow() >= 0)
            emit NodeChosen(QString(m_selected));
        return;
    default:
        return QAbstractScrollArea::keyPressEvent(event);
    }
}

void PlanView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PlanView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void PlanView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
    {
        m_painter.SetLook(palette(), font());
        Arrange();
    }
}

bool PlanView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    // Names are the job's: they are no markup.
    QToolTip::showText(help->globalPos(), TextAt(help->pos()).toHtmlEscaped().replace('\n', "<br>").prepend("<qt>"),
                       viewport());
    return true;
}

void PlanView::scrollContentsBy(int dx, int)
{
    if (dx != 0 && !m_arranging)
    {
        const auto [first, last] = m_painter.GetWhole();
        const double from = first + (last - first) * horizontalScrollBar()->value() / scrollSteps;
        SetRange(from, from + m_scale.to - m_scale.from);
    }
    viewport()->update();
}

} // namespace JOBEDIT
