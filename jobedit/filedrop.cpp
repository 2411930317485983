#include "filedrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace JOBEDIT
{

FileDrop::FileDrop(QWidget& window) : QObject(&window), m_window(window)
{
    window.setAcceptDrops(true);
    qApp->installEventFilter(this);
}

// One file, or nothing: one job is open at a time.
QString FileDrop::FileOf(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return false;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    auto* drop = static_cast<QDropEvent*>(event);
    if (!widget || widget->window() != &m_window || FileOf(*drop).isEmpty())
        return false;
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, file = FileOf(*drop)] { emit Dropped(file); }, Qt::QueuedConnection);
    return true;
}

} // namespace JOBEDIT
