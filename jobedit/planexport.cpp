#include "planexport.h"

#include "application/qtcompat.h"
#include "jobdocument.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>

namespace JOBEDIT
{

namespace
{

constexpr int margin = 12;
constexpr int leastWidth = 400;
constexpr int mostPixels = 32000; // painting reaches no further on a picture of pixels

QPalette PaperPalette()
{
    QPalette palette(QColor(0xe4, 0xe6, 0xe8), QColor(0xf2, 0xf3, 0xf4));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf8, 0xf8, 0xf9));
    for (const auto role : {QPalette::Text, QPalette::WindowText})
        palette.setColor(role, QColor(0x20, 0x20, 0x20));
    return palette;
}

} // namespace

PlanPicture::PlanPicture(const FrequencyPlan& plan, QString title) : m_title(std::move(title))
{
    for (const TKE::Band band : {TKE::Band::Hf, TKE::Band::Vuhf})
    {
        PlanPainter painter(band, PaperPalette(), QGuiApplication::font());
        painter.SetPlan(plan);
        const auto [from, to] = painter.GetWhole();
        if (!painter.GetRows().empty())
            m_sections.push_back({std::move(painter), from, to});
    }
}

void PlanPicture::SetRange(TKE::Band band, double from, double to)
{
    for (Section& section : m_sections)
        if (section.painter.GetBand() == band)
        {
            section.from = from;
            section.to = to;
        }
}

int PlanPicture::HeightFor(int width) const
{
    int height = 2 * margin + 2 * QFontMetrics(QGuiApplication::font()).height();
    for (const Section& section : m_sections)
        height +=
            section.painter.AxisHeight() + int(section.painter.GetRows().size()) * section.painter.RowHeight() + margin;
    if (!m_sections.empty())
        height += m_sections.front().painter.LegendHeight(width - 2 * margin);
    return height;
}

void PlanPicture::Paint(QPainter& painter, const QSize& size) const
{
    const QPalette palette = PaperPalette();
    painter.fillRect(QRect({}, size), Qt::white);
    QFont font = QGuiApplication::font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(palette.color(QPalette::Text));
    const int width = size.width() - 2 * margin;
    double y = margin;
    const int titleHeight = 2 * QFontMetrics(QGuiApplication::font()).height();
    painter.drawText(QRectF(margin, y, width, titleHeight), Qt::AlignLeft | Qt::AlignTop,
                     m_sections.empty() ? tr("%1: no chain has a frequency.").arg(m_title) : m_title);
    y += titleHeight;
    int titles = 0;
    for (const Section& section : m_sections)
        titles = std::max(titles, section.painter.TitleWidth(width / 3));
    for (const Section& section : m_sections)
    {
        const PlanScale scale{section.from, section.to, double(margin + titles), double(width - titles)};
        section.painter.PaintAxis(painter, QRectF(margin, y, width, section.painter.AxisHeight()), scale);
        y += section.painter.AxisHeight();
        for (int row = 0; row < int(section.painter.GetRows().size()); ++row)
        {
            section.painter.PaintRow(painter, QRectF(margin, y, width, section.painter.RowHeight()), scale, row, false);
            y += section.painter.RowHeight();
        }
        y += margin;
    }
    if (!m_sections.empty())
        m_sections.front().painter.PaintLegend(
            painter, QRectF(margin, y, width, m_sections.front().painter.LegendHeight(width)));
}

bool PlanPicture::Write(const QString& fileName, const QSize& size, TKE::FileError& error) const
{
    const auto fail = [&](const QString& reason)
    {
        error = {.file = fileName, .reason = reason};
        return false;
    };
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix != "svg" && suffix != "png")
        return fail(tr("A frequency plan is written as .svg or .png."));
    const int width = std::max(size.width(), leastWidth);
    const QSize whole(width, std::max(size.height(), HeightFor(width)));
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        return fail(QtCompat::ErrorText(file));
    QString reason;
    if (suffix == "svg" ? !WriteSvg(file, whole) : !WritePng(file, whole, reason))
        return fail(reason.isEmpty() ? tr("The picture could not be painted: %1").arg(QtCompat::ErrorText(file))
                                     : reason);
    return file.commit() || fail(QtCompat::ErrorText(file));
}

bool PlanPicture::WriteSvg(QIODevice& device, const QSize& size) const
{
    QSvgGenerator generator;
    generator.setOutputDevice(&device);
    generator.setSize(size);
    generator.setViewBox(QRect({}, size));
    generator.setResolution(96);
    // Written as it stands, so nothing that comes from the job: a file name could break the XML.
    generator.setTitle(tr("Frequency plan of a job"));
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    Paint(painter, size);
    return painter.end();
}

bool PlanPicture::WritePng(QIODevice& device, const QSize& size, QString& reason) const
{
    if (size.height() > mostPixels || size.width() > mostPixels)
    {
        reason =
            tr("A PNG of %1 by %2 points is too large; an SVG has no such limit.").arg(size.width()).arg(size.height());
        return false;
    }
    QImage image(size, QImage::Format_RGB32);
    QPainter painter;
    if (image.isNull() || !painter.begin(&image))
    {
        reason = tr("There is not enough memory for the picture.");
        return false;
    }
    Paint(painter, size);
    painter.end();
    return image.save(&device, "PNG");
}

bool ExportPlan(const JobDocument& document, const QString& fileName, const QSize& size, TKE::FileError& error)
{
    const QString job = QFileInfo(document.GetFileName()).fileName();
    const PlanPicture picture(FrequencyPlan::Of(document.GetNodes(), *TKE::Tree::Instance()),
                              job.isEmpty() ? PlanPicture::tr("Frequency plan of a new job")
                                            : PlanPicture::tr("Frequency plan of %1").arg(job));
    return picture.Write(fileName, size, error);
}

} // namespace JOBEDIT
