#include "changemark.h"

#include "jobdocument.h"
#include "valuetexts.h"

#include <QPainter>
#include <QPalette>

namespace JOBEDIT
{

ChangeMark ChangeMark::Of(const JobDocument& document, const TKE::ValueBase& value)
{
    return {document.DiffersFromSaved(value), DiffersFromDefault(value)};
}

bool ChangeMark::DiffersFromDefault(const TKE::ValueBase& value)
{
    return value.GetStoredText() != value.GetDescriptor().defaultText;
}

QString ChangeMark::InWords(const JobDocument& document, const TKE::ValueBase& value) const
{
    QStringList words;
    if (fromSaved)
        words << tr("Differs from the saved file: %1").arg(ValueTexts::OfStored(value.GetDescriptor(), document.SavedText(value)));
    if (fromDefault)
        words << tr("Differs from the default: %1").arg(ValueTexts::OfDefault(value.GetDescriptor()));
    return words.join(u'\n');
}

void ChangeMark::Paint(QPainter& painter, const QRect& bar, const QPalette& palette) const
{
    QRect saved = bar;
    QRect fromIt = bar;
    if (fromSaved && fromDefault)
    {
        saved.setHeight((bar.height() - 1) / 2);
        fromIt.setTop(saved.bottom() + 2);
    }
    if (fromSaved)
        painter.fillRect(saved, palette.color(QPalette::Active, QPalette::Link));
    if (fromDefault)
    {
        painter.setPen(palette.color(QPalette::Active, QPalette::PlaceholderText));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(fromIt.adjusted(0, 0, -1, -1));
    }
}

} // namespace JOBEDIT
