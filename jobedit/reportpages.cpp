#include "reportpages.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextLayout>
#include <algorithm>
#include <array>

namespace JOBEDIT
{

namespace
{

constexpr int resolution = 300;
constexpr double pageMargin = 15.0; // mm

// Columns, of the width of the page.
constexpr double labelLeft = 0.012;
constexpr double labelWidth = 0.36;
constexpr double valueLeft = 0.38;
constexpr double valueWidth = 0.26;
constexpr double unitLeft = 0.65;
constexpr double unitWidth = 0.06;
constexpr double keyLeft = 0.72;
constexpr double keyWidth = 0.28;

const QColor shade(0xfd, 0xf0, 0xd8);
const QColor rule(0xb0, 0xb0, 0xb0);

} // namespace

struct ReportPages::Fonts
{
    struct Entry
    {
        QFont font;
        QFontMetricsF metrics;
        double widest; // of a common character: a text is surely no wider than that times its length
    };

    explicit Fonts(QPaintDevice* device)
        : entries{Make(device, 18, true), Make(device, 11.5, true), Make(device, 8, false), Make(device, 8, true),
                  Make(device, 6.5, false)}
    {
    }

    static Entry Make(QPaintDevice* device, double size, bool isBold)
    {
        QFont font = QGuiApplication::font();
        font.setPointSizeF(size);
        font.setBold(isBold);
        const QFontMetricsF metrics(font, device);
        return {font, metrics, metrics.horizontalAdvance('W')};
    }

    const Entry& operator[](Font font) const { return entries[size_t(font)]; }

    std::array<Entry, 5> entries;
};

ReportPages::ReportPages(ReportContent& content, const ReportProgress& progress)
    : m_content(content), m_progress(progress)
{
}

ReportPages::~ReportPages() = default;

bool ReportPages::Write(QIODevice& device)
{
    QPdfWriter writer(&device);
    writer.setResolution(resolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(pageMargin, pageMargin, pageMargin, pageMargin), QPageLayout::Millimeter);
    writer.setTitle(m_content.GetTitle());
    writer.setCreator(QCoreApplication::applicationName());
    return Print(writer);
}

bool ReportPages::Print(QPagedPaintDevice& device)
{
    m_device = &device;
    m_point = device.logicalDpiX() / 72.0;
    m_fonts = std::make_unique<Fonts>(&device);
    m_width = device.width();
    m_height = device.height();
    m_pages.assign(m_content.GetSections().size(), 0);
    if (!Run(nullptr))
        return false;
    m_pageCount = m_page;
    QPainter painter;
    return painter.begin(&device) && Run(&painter) && painter.end();
}

bool ReportPages::Run(QPainter* painter)
{
    m_painter = painter;
    m_page = 0;
    m_inTable = false;
    NewPage();
    AddTitle();
    AddContents();
    const auto& sections = m_content.GetSections();
    qint64 done = painter ? m_content.RowCount() : 0;
    for (size_t index = 0; index < sections.size(); ++index)
    {
        AddSection(index);
        // The two runs are the halves of the work.
        done += m_content.GetOptions().onlyChanges ? sections[index].changed : sections[index].values;
        if (!m_progress(done / 2, m_content.RowCount()))
            return false;
    }
    return true;
}

void ReportPages::AddTitle()
{
    AddCells({{0.0, 1.0, m_content.GetTitle(), Font::Title}}, false);
    m_top += 6 * m_point;
    for (const ReportContent::Fact& fact : m_content.GetFacts())
        AddCells({{0.0, 0.32, fact.name, Font::Body}, {0.33, 0.67, fact.text, Font::Body}}, false);
    m_top += 6 * m_point;
    AddCells(
        {{labelLeft, 1.0 - labelLeft, tr("Marked and in bold: values that differ from their default."), Font::Bold}},
        true);
}

void ReportPages::AddContents()
{
    m_top += 12 * m_point;
    Need(LineHeight(Font::Heading) + 3 * LineHeight(Font::Body));
    AddCells({{0.0, 1.0, tr("Contents"), Font::Heading}}, false);
    m_top += 3 * m_point;
    const auto& sections = m_content.GetSections();
    for (size_t index = 0; index < sections.size(); ++index)
    {
        const ReportContent::Section& section = sections[index];
        const double indent = 0.025 * std::min(section.depth, 12);
        const auto& metrics = (*m_fonts)[Font::Body].metrics;
        const QString page = m_pages[index] > 0 ? QString::number(m_pages[index]) : QString();
        // One line each whatever it holds, so that both runs have equally many.
        Need(LineHeight(Font::Body));
        const double nameWidth = (0.5 - indent) * m_width;
        Draw(indent * m_width, m_top, nameWidth, Font::Body, Qt::AlignLeft,
             metrics.elidedText(section.name, Qt::ElideMiddle, nameWidth));
        Draw(0.52 * m_width, m_top, 0.4 * m_width, Font::Body, Qt::AlignLeft,
             metrics.elidedText(section.title.isEmpty() ? section.type : section.title, Qt::ElideRight, 0.4 * m_width));
        Draw(0.92 * m_width, m_top, 0.08 * m_width, Font::Body, Qt::AlignRight, page);
        m_top += LineHeight(Font::Body);
    }
    if (sections.empty())
        AddCells({{0.0, 1.0, tr("No value differs from its default."), Font::Body}}, false);
    else
        NewPage();
}

void ReportPages::AddSection(size_t index)
{
    const ReportContent::Section& section = m_content.GetSections()[index];
    const QString title = section.title.isEmpty() ? section.name : tr("%1: %2").arg(section.name, section.title);
    // A heading does not stand alone at the end of a page.
    m_top += m_top > 0.0 ? 12 * m_point : 0.0;
    Need(2 * LineHeight(Font::Heading) + 6 * LineHeight(Font::Body));
    m_pages[index] = m_page;
    AddCells({{0.0, 1.0, title, Font::Heading}}, false);
    AddCells({{0.0, 1.0, section.type.isEmpty() ? section.path : tr("%1  \u00b7  %2").arg(section.path, section.type),
               Font::Small}},
             false);
    m_top += 2 * m_point;
    AddTableHead();
    m_inTable = true;
    for (const ReportContent::Row& row : m_content.RowsOf(section))
        AddRow(row);
    m_inTable = false;
}

void ReportPages::AddTableHead()
{
    AddCells({{labelLeft, labelWidth, tr("Parameter"), Font::Bold},
              {valueLeft, valueWidth, tr("Value"), Font::Bold},
              {unitLeft, unitWidth, tr("Unit"), Font::Bold},
              {keyLeft, keyWidth, tr("Key"), Font::Bold}},
             false);
    if (m_painter)
    {
        m_painter->setPen(QPen(Qt::black, 0.8 * m_point));
        m_painter->drawLine(QPointF(0.0, m_top), QPointF(m_width, m_top));
    }
    m_top += m_point;
}

void ReportPages::AddRow(const ReportContent::Row& row)
{
    const Font font = row.isChanged ? Font::Bold : Font::Body;
    AddCells({{labelLeft, labelWidth, row.label.isEmpty() ? row.key : row.label, font},
              {valueLeft, valueWidth, row.value, font},
              {unitLeft, unitWidth, row.unit, Font::Body},
              {keyLeft, keyWidth, row.key, Font::Small}},
             row.isChanged);
    if (row.isChanged)
        AddCells(
            {{valueLeft, valueWidth,
              row.defaultText.isEmpty() ? tr("default: empty") : tr("default: %1").arg(row.defaultText), Font::Small}},
            true);
    if (m_painter)
    {
        m_painter->setPen(QPen(rule, 0.3 * m_point));
        m_painter->drawLine(QPointF(0.0, m_top), QPointF(m_width, m_top));
    }
}

void ReportPages::AddCells(const std::vector<Cell>& cells, bool isMarked)
{
    std::vector<QStringList> lines;
    qsizetype most = 0;
    double height = 0.0;
    for (const Cell& cell : cells)
    {
        lines.push_back(LinesOf(cell));
        most = std::max<qsizetype>(most, lines.back().size());
        height = std::max(height, LineHeight(cell.font));
    }
    // What fits on a page is not torn; a longer text goes on line by line.
    Need(std::min(double(most) * height, m_height / 2));
    for (qsizetype line = 0; line < most; ++line)
    {
        Need(height);
        if (isMarked && m_painter)
        {
            m_painter->fillRect(QRectF(0.0, m_top, m_width, height), shade);
            m_painter->fillRect(QRectF(0.0, m_top, 0.006 * m_width, height), Qt::black);
        }
        for (size_t index = 0; index < cells.size(); ++index)
            if (line < lines[index].size())
                Draw(cells[index].left * m_width, m_top + (height - LineHeight(cells[index].font)) / 2,
                     cells[index].width * m_width, cells[index].font, Qt::AlignLeft, lines[index][line]);
        m_top += height;
    }
}

void ReportPages::Need(double height)
{
    if (m_top + height > m_height - 2 * LineHeight(Font::Small))
        NewPage();
}

void ReportPages::NewPage()
{
    if (m_painter && m_page > 0)
        m_device->newPage();
    ++m_page;
    m_top = 0.0;
    const double foot = m_height - LineHeight(Font::Small);
    Draw(0.0, foot, 0.7 * m_width, Font::Small, Qt::AlignLeft,
         (*m_fonts)[Font::Small].metrics.elidedText(m_content.GetTitle(), Qt::ElideMiddle, 0.7 * m_width));
    Draw(0.7 * m_width, foot, 0.3 * m_width, Font::Small, Qt::AlignRight,
         tr("Page %1 of %2").arg(m_page).arg(m_pageCount));
    if (m_inTable)
        AddTableHead();
}

QStringList ReportPages::LinesOf(const Cell& cell) const
{
    const Fonts::Entry& entry = (*m_fonts)[cell.font];
    const double width = cell.width * m_width;
    QStringList lines;
    for (const QString& paragraph : cell.text.split('\n'))
    {
        if (double(paragraph.size()) * entry.widest <= width || entry.metrics.horizontalAdvance(paragraph) <= width)
        {
            lines << paragraph;
            continue;
        }
        QTextLayout layout(paragraph, entry.font, m_device);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength()).trimmed();
        }
        layout.endLayout();
    }
    return lines;
}

double ReportPages::LineHeight(Font font) const
{
    return (*m_fonts)[font].metrics.height() * 1.15;
}

void ReportPages::Draw(double left, double top, double width, Font font, Qt::Alignment alignment, const QString& text)
{
    if (!m_painter || text.isEmpty())
        return;
    const Fonts::Entry& entry = (*m_fonts)[font];
    m_painter->setFont(entry.font);
    m_painter->setPen(Qt::black);
    const double x = alignment & Qt::AlignRight ? left + width - entry.metrics.horizontalAdvance(text) : left;
    m_painter->drawText(QPointF(x, top + entry.metrics.ascent()), text);
}

} // namespace JOBEDIT
