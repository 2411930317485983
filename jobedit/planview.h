#pragma once

#include "planpainter.h"

#include <QAbstractScrollArea>

namespace JOBEDIT
{

/// The lanes of one band on a frequency axis that can be zoomed and moved.
///
/// Mouse: the wheel zooms around the cursor (beside the axis, or with Ctrl, it scrolls), dragging moves, a click
/// chooses the chain. Keys: + and - zoom, Left and Right move, Home shows all, * the selected chain, Up and Down go
/// through the chains, Return chooses. Only the rows in sight are painted.
class PlanView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit PlanView(TKE::Band band, QWidget* parent = nullptr);

    /// Shows this plan; the part of the axis that is shown and the chain that is selected stay.
    void SetPlan(FrequencyPlan plan);
    const PlanPainter& Painter() const { return m_painter; }
    bool IsEmpty() const { return m_painter.GetRows().empty(); }

    /// Shows the whole band from now on, also when the plan grows.
    void ShowAll();
    /// Shows what the marked chain does, as near as all of it allows.
    void ShowSelected();
    /// Zooms by `factor` (more than 1: nearer) so that `hertz` stays where it is.
    void Zoom(double factor, double hertz);
    /// The range of frequencies that is shown.
    std::pair<double, double> GetRange() const { return {m_scale.from, m_scale.to}; }
    void SetRange(double from, double to);

    /// Marks the lane of this node without choosing it; none when the node has no lane.
    void SelectPath(const QString& path);
    /// Path of the node whose lane is marked; empty when none is.
    const QString& GetSelectedPath() const { return m_selected; }
    /// All that the marked chain does here, one line each.
    QString SelectedText() const;
    /// Where a frequency of a lane is on the viewport.
    QPoint PlaceOf(const QString& path, double hertz) const;

signals:
    void NodeChosen(const QString& path);
    void SelectionChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void Arrange();
    void ArrangeAxis();
    int RowAt(const QPoint& position) const;
    QRect RectOf(int row) const;
    int SelectedRow() const;
    void SelectRow(int row);
    void Step(int step);
    QString TextAt(const QPoint& position) const;

    PlanPainter m_painter;
    PlanScale m_scale;
    QString m_selected;
    bool m_showsAll = true;
    bool m_arranging = false;
    QPoint m_pressed;
    std::pair<double, double> m_pressedRange;
    int m_pressedTop = 0;
    bool m_dragging = false;
};

} // namespace JOBEDIT
