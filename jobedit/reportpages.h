#pragma once

#include "report.h"

#include <QFont>
#include <QRectF>
#include <memory>

class QIODevice;
class QPainter;
class QPagedPaintDevice;

namespace JOBEDIT
{

/// A report on pages: title, contents with page numbers, a table per section.
///
/// Painted line by line and not as one text document, which would hold the whole job at once. A first run without a
/// painter finds the page of each section.
class ReportPages
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ReportPages)

public:
    /// Both outlive this.
    ReportPages(ReportContent& content, const ReportProgress& progress);
    ~ReportPages();

    /// As PDF on A4. False when it was cancelled or the device takes no more.
    bool Write(QIODevice& device);
    /// On the pages of a printer, for example.
    bool Print(QPagedPaintDevice& device);

private:
    enum class Font
    {
        Title,
        Heading,
        Body,
        Bold,
        Small,
    };
    struct Cell
    {
        double left; // of the page's width
        double width;
        QString text;
        Font font;
    };

    bool Run(QPainter* painter);
    void AddTitle();
    void AddContents();
    void AddSection(size_t index);
    void AddTableHead();
    void AddRow(const ReportContent::Row& row);
    /// Cells side by side, each in as many lines as it needs. The line below `marked` ones is shaded.
    void AddCells(const std::vector<Cell>& cells, bool isMarked);
    /// Begins a page when less than that is left on this one.
    void Need(double height);
    void NewPage();
    QStringList LinesOf(const Cell& cell) const;
    double LineHeight(Font font) const;
    void Draw(double left, double top, double width, Font font, Qt::Alignment alignment, const QString& text);

    ReportContent& m_content;
    const ReportProgress& m_progress;
    struct Fonts;
    std::unique_ptr<Fonts> m_fonts;
    QPagedPaintDevice* m_device = nullptr;
    double m_point = 1.0;          // device units of 1/72 inch
    QPainter* m_painter = nullptr; // null in the first run
    double m_width = 0.0;          // of what is printed on a page
    double m_height = 0.0;
    double m_top = 0.0; // of the next line
    int m_page = 0;
    int m_pageCount = 0;      // known after the first run
    bool m_inTable = false;   // a page that begins repeats the head of the table
    std::vector<int> m_pages; // of the sections
};

} // namespace JOBEDIT
