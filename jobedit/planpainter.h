#pragma once

#include "frequencyplan.h"
#include "planscale.h"

#include <QFont>
#include <QPalette>

class QPainter;
class QRectF;

namespace JOBEDIT
{

/// Paints the lanes of a frequency plan that belong on the axis of one band, with palette and font as given. Kinds of
/// marks differ in shape as well as in colour; what is switched off is pale and dashed.
class PlanPainter
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::PlanPainter)

public:
    /// A row of the picture: the heading of a section or one lane.
    struct Row
    {
        int lane; ///< of a heading the first lane below it
        bool isHeading;
    };

    PlanPainter(TKE::Band band, const QPalette& palette, const QFont& font);

    /// The plan is kept.
    void SetPlan(FrequencyPlan plan);
    void SetLook(const QPalette& palette, const QFont& font);

    TKE::Band GetBand() const { return m_band; }
    const std::vector<Row>& GetRows() const { return m_rows; }
    /// Null for a heading.
    const PlanLane* LaneOf(int row) const;
    /// The marks of this axis that `hertz` falls on or comes as near to as `reach`.
    std::vector<const PlanMark*> MarksAt(int row, double hertz, double reach) const;
    /// From the lowest to the highest frequency of all marks on this axis; empty when there is none.
    std::pair<double, double> GetContent() const { return m_content; }
    /// The range that shows the whole band, with room at both ends.
    std::pair<double, double> GetWhole() const;

    int RowHeight() const { return m_rowHeight; }
    int AxisHeight() const { return m_rowHeight + 4; }
    /// Width that the titles of all lanes need, no more than `most`.
    int TitleWidth(int most) const { return std::min(m_titleWidth, most); }
    int LegendHeight(int width) const;

    void PaintAxis(QPainter& painter, const QRectF& area, const PlanScale& scale) const;
    /// One row over the whole width of `area`: the title left of the scale, the marks in it.
    void PaintRow(QPainter& painter, const QRectF& area, const PlanScale& scale, int row, bool current) const;
    void PaintLegend(QPainter& painter, const QRectF& area) const;

private:
    using Kind = PlanMark::Kind;

    QColor ColourOf(Kind kind) const;
    void PaintMark(QPainter& painter, const QRectF& area, const PlanScale& scale, const PlanMark& mark) const;
    void PaintHatching(QPainter& painter, const QRectF& box) const;
    void PaintHead(QPainter& painter, const QRectF& area, double x, Kind kind) const;
    /// Where the entries of the legend stand, left to right, in as many lines as they need.
    std::vector<QRectF> LegendPlaces(double width) const;
    void FindRows();
    void MeasureTitles();

    TKE::Band m_band;
    QPalette m_palette;
    QFont m_font;
    int m_rowHeight = 0;
    int m_titleWidth = 0;
    FrequencyPlan m_plan;
    std::vector<Row> m_rows;
    std::pair<double, double> m_content;
};

} // namespace JOBEDIT
