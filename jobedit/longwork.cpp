#include "longwork.h"

#include "application/qtcompat.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr int eventsEveryMs = 10;
constexpr int barSteps = 1000; // a bar counts in int, files may be larger

bool IsInput(QEvent::Type type)
{
    switch (type)
    {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
    case QEvent::Quit:
        return true;
    default:
        return false;
    }
}

} // namespace

LongWork::LongWork(QString title, QWidget* window) : m_outer(s_current), m_title(std::move(title)), m_window(window)
{
    if (m_outer)
        return;
    s_current = this;
    m_modal = QApplication::activeModalWidget();
    m_sinceStart.start();
    m_sinceEvents.start();
    if (m_window)
        qApp->installEventFilter(this);
}

LongWork::~LongWork()
{
    if (m_outer)
        return;
    delete m_panel;
    // What was typed since is not meant for what the work brings.
    if (m_window && m_sinceStart.hasExpired(ShownAfterMs))
        LetWindowsAnswer();
    s_current = nullptr;
}

bool LongWork::Progress(qint64 done, qint64 all)
{
    if (m_outer)
        return m_outer->Progress(done, all);
    if (!m_window || !m_sinceEvents.hasExpired(eventsEveryMs))
        return !m_cancelled;
    if (!m_panel && m_sinceStart.hasExpired(ShownAfterMs))
        Show();
    if (m_bar)
        m_bar->setValue(all > 0 ? int(double(std::min(done, all)) / double(all) * barSteps) : 0);
    LetWindowsAnswer();
    return !m_cancelled;
}

void LongWork::LetWindowsAnswer()
{
    m_inEvents = true;
    QCoreApplication::processEvents();
    m_inEvents = false;
    m_sinceEvents.start();
}

void LongWork::Cancel()
{
    (m_outer ? m_outer : this)->m_cancelled = true;
}

void LongWork::Show()
{
    // When the program starts, there is no window on the screen yet.
    const bool within = m_window->isVisible();
    m_panel = new QFrame(within ? m_window.data() : nullptr);
    m_panel->setObjectName("longWork");
    m_panel->setWindowTitle(m_window->windowTitle().remove("[*]"));
    m_panel->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Raised));
    m_panel->setAutoFillBackground(true);
    auto* title = new QLabel(m_title, m_panel);
    m_bar = new QProgressBar(m_panel);
    m_bar->setRange(0, barSteps);
    m_bar->setAccessibleName(m_title);
    auto* cancel = new QPushButton(tr("Cancel (Esc)"), m_panel);
    cancel->setFocusPolicy(Qt::NoFocus); // the keyboard stays where it is and comes back to life there
    connect(cancel, &QPushButton::clicked, this, &LongWork::Cancel);

    auto* row = new QHBoxLayout;
    row->addWidget(m_bar, 1);
    row->addWidget(cancel);
    auto* layout = new QVBoxLayout(m_panel);
    layout->addWidget(title);
    layout->addLayout(row);
    const QSize size = m_panel->sizeHint().expandedTo({360, 0}).boundedTo(m_window->size());
    m_panel->resize(size);
    if (within)
        m_panel->move(QRect(QPoint(), m_window->size()).center() - QRect(QPoint(), size).center());
    m_panel->show();
    m_panel->raise();
}

bool LongWork::IsOwn(const QObject* object) const
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    return m_panel && widget && (widget == m_panel || m_panel->isAncestorOf(widget));
}

bool LongWork::IsOnPanel(const QEvent& press) const
{
    const QPoint place = QtCompat::GlobalPlace(static_cast<const QMouseEvent&>(press)).toPoint();
    return m_panel && m_panel->rect().contains(m_panel->mapFromGlobal(place));
}

bool LongWork::eventFilter(QObject* watched, QEvent* event)
{
    // A question that the work itself asks has to be answered.
    if (!m_inEvents || !IsInput(event->type()) || QApplication::activeModalWidget() != m_modal)
        return false;
    // What comes to a window of the window system goes on to the widgets, and is met again there. A click would have
    // moved the focus by then.
    if (watched->isWindowType() && (event->type() != QEvent::MouseButtonPress || IsOnPanel(*event)))
        return false;
    const bool isEscape = (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape || event->type() == QEvent::Close || event->type() == QEvent::Quit)
        Cancel();
    else if (IsOwn(watched))
        return false;
    event->ignore();
    return true;
}

} // namespace JOBEDIT
