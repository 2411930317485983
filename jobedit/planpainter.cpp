#include "planpainter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace JOBEDIT
{

namespace
{

constexpr double headRadius = 4.0;
constexpr double swatchWidth = 34.0;
constexpr double gap = 6.0;

/// Hue of each kind; far enough from each other for eyes that take red for green.
constexpr int hues[PlanMark::kindCount] = {212, 165, 32, 275, 330, 0};

/// Which part of a lane's height a kind takes, from the top, so that kinds that lie over one another stay apart.
struct Extent
{
    double top;
    double bottom;
};
constexpr Extent extents[PlanMark::kindCount] = {{0.08, 0.92}, {0.42, 0.86}, {0.24, 0.92},
                                                 {0.30, 0.92}, {0.24, 0.92}, {0.08, 0.92}};

} // namespace

PlanPainter::PlanPainter(TKE::Band band, const QPalette& palette, const QFont& font) : m_band(band)
{
    SetLook(palette, font);
    FindRows();
}

void PlanPainter::SetPlan(FrequencyPlan plan)
{
    m_plan = std::move(plan);
    FindRows();
}

void PlanPainter::SetLook(const QPalette& palette, const QFont& font)
{
    m_palette = palette;
    m_font = font;
    m_rowHeight = qRound(QFontMetricsF(font).height() * 1.5);
    MeasureTitles();
}

void PlanPainter::FindRows()
{
    m_rows.clear();
    m_content = {0.0, 0.0};
    bool any = false;
    const auto& lanes = m_plan.GetLanes();
    QString group;
    for (int index = 0; index < int(lanes.size()); ++index)
    {
        const PlanLane& lane = lanes[size_t(index)];
        if (!FrequencyPlan::IsOn(lane, m_band))
            continue;
        if (m_rows.empty() || group != lane.group)
            m_rows.push_back({index, true});
        group = lane.group;
        m_rows.push_back({index, false});
        for (const PlanMark& mark : lane.marks)
        {
            if (!FrequencyPlan::IsOn(lane, mark, m_band))
                continue;
            m_content.first = any ? std::min(m_content.first, double(mark.from)) : double(mark.from);
            m_content.second = any ? std::max(m_content.second, double(mark.to)) : double(mark.to);
            any = true;
        }
    }
    MeasureTitles();
}

const PlanLane* PlanPainter::LaneOf(int row) const
{
    if (row < 0 || row >= int(m_rows.size()) || m_rows[size_t(row)].isHeading)
        return nullptr;
    return &m_plan.GetLanes()[size_t(m_rows[size_t(row)].lane)];
}

std::vector<const PlanMark*> PlanPainter::MarksAt(int row, double hertz, double reach) const
{
    std::vector<const PlanMark*> found;
    if (const PlanLane* lane = LaneOf(row))
        for (const PlanMark& mark : lane->marks)
            if (mark.Meets(hertz - reach, hertz + reach) && FrequencyPlan::IsOn(*lane, mark, m_band))
                found.push_back(&mark);
    return found;
}

std::pair<double, double> PlanPainter::GetWhole() const
{
    if (m_band == TKE::Band::Hf)
        return {0.0, 30e6};
    if (m_content.second <= 0.0)
        return {20e6, 3e9};
    const double room = std::max((m_content.second - m_content.first) * 0.03, 100e3);
    return {std::max(0.0, m_content.first - room), m_content.second + room};
}

void PlanPainter::MeasureTitles()
{
    const QFontMetricsF metrics(m_font);
    double width = 60.0;
    QSet<QString> measured; // chains of one kind have the same title, and measuring is dear
    for (const Row& row : m_rows)
    {
        const QString& title = m_plan.GetLanes()[size_t(row.lane)].title;
        if (row.isHeading || measured.contains(title))
            continue;
        measured.insert(title);
        width = std::max(width, metrics.horizontalAdvance(title) + 3 * gap);
    }
    m_titleWidth = int(width) + 1;
}

QColor PlanPainter::ColourOf(Kind kind) const
{
    const bool dark = m_palette.color(QPalette::Base).lightness() < 128;
    return QColor::fromHsl(hues[size_t(kind)], dark ? 170 : 200, dark ? 160 : 100);
}

void PlanPainter::PaintAxis(QPainter& painter, const QRectF& area, const PlanScale& scale) const
{
    painter.save();
    painter.setFont(m_font);
    painter.fillRect(area, m_palette.color(QPalette::Window));
    painter.setPen(m_palette.color(QPalette::WindowText));
    const QString name = m_band == TKE::Band::Hf ? tr("HF") : tr("V/UHF");
    QFont bold = m_font;
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(QRectF(area.left() + gap, area.top(), scale.left - area.left() - gap, area.height()),
                     Qt::AlignVCenter | Qt::AlignLeft, name);
    painter.setFont(m_font);
    painter.setClipRect(QRectF(scale.left, area.top(), scale.width, area.height()));
    const QFontMetricsF metrics(m_font);
    for (const PlanScale::Tick& tick : scale.Ticks(metrics.horizontalAdvance("0000.000 MHz") + 2 * gap))
    {
        const double x = scale.XOf(tick.hertz);
        painter.drawLine(QPointF(x, area.bottom() - (tick.text.isEmpty() ? 3.0 : 6.0)), QPointF(x, area.bottom()));
        if (tick.text.isEmpty())
            continue;
        // At the ends the text moves inside instead of being cut.
        const double width = metrics.horizontalAdvance(tick.text);
        const double left = std::clamp(x - width / 2, scale.left + 1, scale.left + scale.width - width - 1);
        painter.drawText(QPointF(left, area.bottom() - 8.0), tick.text);
    }
    painter.drawLine(QPointF(scale.left, area.bottom()), QPointF(scale.left + scale.width, area.bottom()));
    painter.restore();
}

void PlanPainter::PaintRow(QPainter& painter, const QRectF& area, const PlanScale& scale, int row, bool current) const
{
    const Row& shown = m_rows[size_t(row)];
    const PlanLane& lane = m_plan.GetLanes()[size_t(shown.lane)];
    painter.save();
    QFont font = m_font;
    font.setBold(shown.isHeading);
    painter.setFont(font);
    const auto role = shown.isHeading ? QPalette::Window : row % 2 ? QPalette::AlternateBase : QPalette::Base;
    painter.fillRect(area, m_palette.color(role));
    const QRectF title(area.left(), area.top(), scale.left - area.left(), area.height());
    if (current)
        painter.fillRect(title, m_palette.color(QPalette::Highlight));
    painter.setPen(m_palette.color(current           ? QPalette::HighlightedText
                                   : shown.isHeading ? QPalette::WindowText
                                                     : QPalette::Text));
    // A heading has the whole row for itself.
    const QRectF text = (shown.isHeading ? area : title).adjusted(shown.isHeading ? gap : 2 * gap, 0.0, -gap, 0.0);
    painter.drawText(
        text, Qt::AlignVCenter | Qt::AlignLeft,
        QFontMetricsF(font).elidedText(shown.isHeading ? lane.group : lane.title, Qt::ElideMiddle, text.width()));
    if (!shown.isHeading)
    {
        const QRectF field(scale.left, area.top(), scale.width, area.height());
        painter.setClipRect(field);
        painter.setPen(QPen(m_palette.color(QPalette::Mid), 0.5, Qt::DotLine));
        for (const PlanScale::Tick& tick :
             scale.Ticks(QFontMetricsF(m_font).horizontalAdvance("0000.000 MHz") + 2 * gap))
            if (!tick.text.isEmpty())
                painter.drawLine(QPointF(scale.XOf(tick.hertz), area.top()),
                                 QPointF(scale.XOf(tick.hertz), area.bottom()));
        painter.setRenderHint(QPainter::Antialiasing);
        for (const PlanMark& mark : lane.marks)
            if (FrequencyPlan::IsOn(lane, mark, m_band) && mark.Meets(scale.from, scale.to))
                PaintMark(painter, field, scale, mark);
        if (current)
        {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.setBrush(Qt::NoBrush);
            painter.setPen(m_palette.color(QPalette::Highlight));
            painter.drawRect(field.adjusted(0.0, 0.0, -1.0, -1.0));
        }
    }
    painter.restore();
}

void PlanPainter::PaintMark(QPainter& painter, const QRectF& area, const PlanScale& scale, const PlanMark& mark) const
{
    const Extent extent = extents[size_t(mark.kind)];
    // Cut here, not by a clip: not every device clips, and coordinates are not unlimited.
    const double left = std::max(scale.XOf(double(mark.from)), area.left());
    const double right = std::min(scale.XOf(double(mark.to)), area.right());
    const QRectF box(left, area.top() + area.height() * extent.top, std::max(right - left, 1.0),
                     area.height() * (extent.bottom - extent.top));
    const QColor colour = ColourOf(mark.kind);
    QColor filling = colour;
    filling.setAlpha(!mark.active ? 20 : mark.kind == Kind::Wideband ? 60 : 130);
    QPen pen(colour, mark.kind == Kind::Wideband || !mark.active ? 1.0 : 1.3);
    if (!mark.active)
        pen.setStyle(Qt::DashLine);

    const bool isWide = box.width() > 2.0;
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (isWide)
    {
        if (mark.kind == Kind::Excluded)
            PaintHatching(painter, box);
        else
            painter.setBrush(filling);
        mark.kind == Kind::Range ? painter.drawRoundedRect(box, 4.0, 4.0) : painter.drawRect(box);
    }
    if (isWide && (mark.kind == Kind::Wideband || mark.frequency < 0))
        return;
    // What is narrow at this zoom still shows: a line at its frequency with the head of its kind.
    const double x = mark.frequency < 0 ? box.center().x() : scale.XOf(double(mark.frequency));
    if (x < area.left() || x > area.right())
        return;
    painter.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
    painter.setPen(QPen(colour, 1.3, mark.active ? Qt::SolidLine : Qt::DotLine));
    painter.setBrush(mark.active ? QBrush(colour) : QBrush(m_palette.color(QPalette::Base)));
    PaintHead(painter, area, x, mark.kind);
}

void PlanPainter::PaintHatching(QPainter& painter, const QRectF& box) const
{
    // Lines rising to the right, each cut to the box. They start at multiples of the distance, so that they stay where
    // they are while the box moves through the picture's edge.
    constexpr double distance = 6.0;
    QVector<QLineF> lines;
    const double height = box.height();
    const int end = int(std::ceil(box.right() / distance));
    for (int line = int(std::ceil((box.left() - height) / distance)); line < end; ++line)
    {
        const double x = line * distance;
        const double from = std::max(x, box.left());
        const double to = std::min(x + height, box.right());
        lines.append({from, box.bottom() - (from - x), to, box.bottom() - (to - x)});
    }
    painter.drawLines(lines);
}

void PlanPainter::PaintHead(QPainter& painter, const QRectF& area, double x, Kind kind) const
{
    const double y = area.top() + area.height() * 0.08 + headRadius;
    const double r = headRadius;
    switch (kind)
    {
    case Kind::Tuned: // points at the frequency
        painter.drawPolygon(QPolygonF({{x - r, y - r}, {x + r, y - r}, {x, y + r}}));
        break;
    case Kind::Transmitter: // points upwards
        painter.drawPolygon(QPolygonF({{x - r, y + r}, {x + r, y + r}, {x, y - r}}));
        break;
    case Kind::Channel:
        painter.drawEllipse(QPointF(x, y), r - 0.5, r - 0.5);
        break;
    case Kind::Excluded: // a cross
        painter.drawLine(QPointF(x - r, y - r), QPointF(x + r, y + r));
        painter.drawLine(QPointF(x - r, y + r), QPointF(x + r, y - r));
        break;
    case Kind::Wideband:
    case Kind::Range:
        painter.drawRect(QRectF(x - r / 2, y, r, r));
        break;
    }
}

std::vector<QRectF> PlanPainter::LegendPlaces(double width) const
{
    const QFontMetricsF metrics(m_font);
    std::vector<QRectF> places;
    double x = gap;
    double y = 0.0;
    for (int kind = 0; kind <= PlanMark::kindCount; ++kind)
    {
        const QString text = kind < PlanMark::kindCount ? FrequencyPlan::KindText(Kind(kind)) : tr("Switched off");
        const double wanted = swatchWidth + metrics.horizontalAdvance(text) + 4 * gap;
        if (x > gap && x + wanted > width)
        {
            x = gap;
            y += m_rowHeight;
        }
        places.emplace_back(x, y, wanted, m_rowHeight);
        x += wanted;
    }
    return places;
}

int PlanPainter::LegendHeight(int width) const
{
    return int(LegendPlaces(width).back().bottom());
}

void PlanPainter::PaintLegend(QPainter& painter, const QRectF& area) const
{
    painter.save();
    painter.setFont(m_font);
    painter.fillRect(area, m_palette.color(QPalette::Window));
    painter.setRenderHint(QPainter::Antialiasing);
    const auto places = LegendPlaces(area.width());
    for (int kind = 0; kind <= PlanMark::kindCount; ++kind)
    {
        const QRectF place = places[size_t(kind)].translated(area.topLeft());
        const QRectF swatch(place.left(), place.top() + 1, swatchWidth, place.height() - 2);
        const bool isOff = kind == PlanMark::kindCount;
        const bool isRange =
            kind == int(Kind::Wideband) || kind == int(Kind::Range) || kind == int(Kind::Excluded) || isOff;
        const PlanMark mark{
            isOff ? Kind::Range : Kind(kind), !isOff, 0, 0, isRange ? 4 : 40, isRange ? 96 : 60, isRange ? -1 : 50};
        PaintMark(painter, swatch, {0.0, 100.0, swatch.left(), swatch.width()}, mark);
        painter.setPen(m_palette.color(QPalette::WindowText));
        painter.drawText(place.adjusted(swatchWidth + gap, 0.0, 0.0, 0.0), Qt::AlignVCenter | Qt::AlignLeft,
                         isOff ? tr("Switched off") : FrequencyPlan::KindText(Kind(kind)));
    }
    painter.restore();
}

} // namespace JOBEDIT
