#pragma once

#include "jobmodel/fileerror.h"
#include "planpainter.h"

#include <QSize>

class QIODevice;

namespace JOBEDIT
{

class JobDocument;

/// The frequency plan of a job as a picture of its own: a title, an axis with all lanes per band, the legend. In light
/// colours, whatever those of the screen are.
class PlanPicture
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::PlanPicture)

public:
    PlanPicture(const FrequencyPlan& plan, QString title);

    /// Shows this range of a band instead of the whole.
    void SetRange(TKE::Band band, double from, double to);

    /// The height that all lanes need at this width.
    int HeightFor(int width) const;
    void Paint(QPainter& painter, const QSize& size) const;

    /// Writes SVG or PNG, as the suffix says. The picture is as high as the lanes need, and at least as `size`. False
    /// with `error` when that fails; a file of that name stays as it was then.
    bool Write(const QString& fileName, const QSize& size, TKE::FileError& error) const;

private:
    struct Section
    {
        PlanPainter painter;
        double from;
        double to;
    };
    bool WriteSvg(QIODevice& device, const QSize& size) const;
    bool WritePng(QIODevice& device, const QSize& size, QString& reason) const;

    QString m_title;
    std::vector<Section> m_sections; ///< bands that have lanes
};

/// The frequency plan of the job with the whole of each band. Needs a QGuiApplication for its fonts, but no window.
bool ExportPlan(const JobDocument& document, const QString& fileName, const QSize& size, TKE::FileError& error);

} // namespace JOBEDIT
