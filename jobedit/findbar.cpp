#include "findbar.h"

#include "fieldnavigator.h"
#include "findmodel.h"
#include "mainwindow.h"
#include "nodepane.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTreeView>
#include <QVBoxLayout>

namespace JOBEDIT
{

namespace
{

constexpr qsizetype pageOfHits = 200;

} // namespace

FindBar::FindBar(MainWindow& window)
    : QFrame(&window)
    , m_window(window)
    , m_index(*TKE::Tree::Instance())
    , m_model(new FindModel(this))
    , m_text(new QLineEdit(this))
    , m_hits(new QTreeView(this))
    , m_summary(new QLabel(this))
{
    setObjectName("findBar");
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    m_text->setObjectName("findText");
    m_text->setPlaceholderText(tr("Find a field by label, key, description, unit or node"));
    m_text->setAccessibleName(tr("Words that the field is found by"));
    m_text->setClearButtonEnabled(true);
    m_hits->setObjectName("findHits");
    m_hits->setAccessibleName(tr("Fields found"));
    m_hits->setModel(m_model);
    m_hits->setRootIsDecorated(false);
    m_hits->setUniformRowHeights(true);
    m_hits->setAlternatingRowColors(true);
    m_hits->setAllColumnsShowFocus(true);
    m_hits->header()->setStretchLastSection(true);
    m_summary->setObjectName("findSummary");

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_text);
    layout->addWidget(m_hits);
    layout->addWidget(m_summary);
    hide();

    window.installEventFilter(this);
    m_text->installEventFilter(this);
    window.EditMenu()->addAction(tr("&Find Field..."), this, &FindBar::Open)->setShortcut(QKeySequence::Find);
    connect(m_text, &QLineEdit::textEdited, this, &FindBar::Search);
    connect(m_text, &QLineEdit::returnPressed, this, &FindBar::Go);
    connect(m_hits, &QTreeView::activated, this, &FindBar::Go);
    connect(qApp, &QApplication::focusChanged, this, &FindBar::Slot_OnFocusChanged);
    // Found values may be gone then.
    const auto forget = [this]
    {
        m_index.Invalidate();
        m_prepare.start();
        hide();
    };
    connect(&window.Document(), &JobDocument::Replaced, this, forget);
    connect(&window.Document(), &JobDocument::NodesChanged, this, forget);
    m_prepare.setInterval(0);
    connect(&m_prepare, &QTimer::timeout, this,
            [this]
            {
                if (!m_index.Prepare())
                    m_prepare.stop();
            });
    m_prepare.start(); // a window may be made for a job that is open already
}

void FindBar::Open()
{
    if (!isVisible())
        m_before = QApplication::focusWidget();
    Place();
    show();
    raise();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    Search();
}

void FindBar::Search()
{
    m_limit = pageOfHits;
    m_model->SetResult(m_index.Find(m_text->text(), m_limit));
    m_hits->setCurrentIndex(m_model->index(0, 0));
    Summarize();
}

void FindBar::Summarize()
{
    const qsizetype count = m_model->GetResult().count;
    if (m_text->text().trimmed().isEmpty())
        m_summary->setText(tr("All words must occur somewhere. Both English and German labels are found."));
    else if (count == 0)
        m_summary->setText(tr("No field has all of these words."));
    else
        m_summary->setText(tr("Fields found: %1").arg(QLocale().toString(count)));
}

void FindBar::Go()
{
    const QModelIndex current = m_hits->currentIndex();
    if (!current.isValid())
        return;
    const QString path = m_model->PathAt(current.row());
    if (path.isEmpty()) // the row of the others
    {
        m_limit += pageOfHits;
        m_model->SetResult(m_index.Find(m_text->text(), m_limit));
        m_hits->setCurrentIndex(m_model->index(current.row(), 0));
        return;
    }
    hide();
    FieldNavigator(m_window).GoToOrTell(path);
}

void FindBar::Leave()
{
    hide();
    if (m_before)
        m_before->setFocus(Qt::OtherFocusReason);
    else
        m_window.Nodes().View()->setFocus(Qt::OtherFocusReason);
}

void FindBar::Place()
{
    const QRect room = m_window.centralWidget()->geometry();
    const int width = qMin(960, room.width() - 40);
    setGeometry(room.center().x() - width / 2, room.top(), width, qMin(400, room.height()));
    // The content is short as a rule, the path long.
    m_hits->setColumnWidth(FindModel::ColumnLabel, width * 27 / 100);
    m_hits->setColumnWidth(FindModel::ColumnContent, width * 15 / 100);
    m_hits->setColumnWidth(FindModel::ColumnNode, width * 32 / 100);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window && event->type() == QEvent::Resize && isVisible())
        Place();
    if (watched == m_text && event->type() == QEvent::KeyPress)
    {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key())
        {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_hits, event);
            return true;
        default:
            break;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Leave();
    else
        QFrame::keyPressEvent(event);
}

void FindBar::Slot_OnFocusChanged(QWidget*, QWidget* now)
{
    // Null while another window is in front.
    if (isVisible() && now && now->window() == window() && now != this && !isAncestorOf(now))
        hide();
}

} // namespace JOBEDIT
