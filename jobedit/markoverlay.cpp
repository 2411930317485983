#include "markoverlay.h"

#include "fields.h"
#include "jobdocument.h"

#include <QEvent>
#include <QPainter>
#include <QTabWidget>

namespace JOBEDIT
{

namespace
{

const char* const wordsProperty = "changeMark"; // what we gave a field to say, to take it back

} // namespace

MarkOverlay::MarkOverlay(const JobDocument& document, QTabWidget& dialog)
    : QWidget(&dialog), m_document(document), m_dialog(dialog)
{
    setObjectName("changeMarks");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    dialog.installEventFilter(this);
    connect(&document, &JobDocument::ContentChanged, this, qOverload<>(&QWidget::update));
    connect(&document, &JobDocument::ModifiedChanged, this, qOverload<>(&QWidget::update)); // saved
    connect(&dialog, &QTabWidget::currentChanged, this, [this] { m_painted.reset(); });
    FollowDialog();
}

bool MarkOverlay::eventFilter(QObject* object, QEvent* event)
{
    if (object == &m_dialog && (event->type() == QEvent::Resize || event->type() == QEvent::ChildPolished))
        FollowDialog();
    return false;
}

void MarkOverlay::FollowDialog()
{
    setGeometry(m_dialog.rect());
    raise();
}

std::vector<MarkOverlay::Placed> MarkOverlay::Find() const
{
    std::vector<Placed> found;
    const QWidget* page = m_dialog.currentWidget();
    if (!page)
        return found;
    for (const auto& [widget, value] : Fields::VisibleIn(*page))
    {
        const ChangeMark mark = ChangeMark::Of(m_document, *value);
        if (!mark.IsSet())
            continue;
        // Tall fields have a mark as high as a line of text; what is scrolled out of sight has none.
        const QRect seen = widget->visibleRegion().boundingRect();
        const QRect line(0, 0, 1, std::min(widget->height(), widget->fontMetrics().height() + 8));
        const QRect part = seen & line;
        if (part.isEmpty())
            continue;
        const QPoint corner = widget->mapTo(&m_dialog, part.topLeft()) - QPoint(ChangeMark::width + 1, 0);
        found.push_back({QRect(corner, QSize(ChangeMark::width, part.height())), mark});
    }
    return found;
}

void MarkOverlay::paintEvent(QPaintEvent*)
{
    std::vector<Placed> found = Find();
    QPainter painter(this);
    for (const Placed& placed : found)
        placed.mark.Paint(painter, placed.bar, palette());
    if (found == m_painted)
        return;
    // A field that came, went or moved repaints its own place; its mark stands beside it.
    m_painted = std::move(found);
    QMetaObject::invokeMethod(
        this,
        [this]
        {
            update();
            Describe(isVisible());
        },
        Qt::QueuedConnection);
}

void MarkOverlay::hideEvent(QHideEvent*)
{
    if (isHidden())
        Describe(false);
}

void MarkOverlay::Describe(bool marked) const
{
    const QWidget* page = m_dialog.currentWidget();
    if (!page)
        return;
    for (const auto& [widget, value] : Fields::VisibleIn(*page))
    {
        const QString words = marked ? ChangeMark::Of(m_document, *value).InWords(m_document, *value) : QString();
        const QString before = widget->property(wordsProperty).toString();
        if (words == before || widget->accessibleDescription() != before)
            continue;
        widget->setAccessibleDescription(words);
        widget->setProperty(wordsProperty, words);
    }
}

} // namespace JOBEDIT
