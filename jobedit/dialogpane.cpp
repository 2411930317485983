#include "dialogpane.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace JOBEDIT
{

DialogPane::DialogPane(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_path(new QLabel(this))
    , m_job(new QRadioButton(tr("&Job form"), this))
    , m_standAlone(new QRadioButton(tr("Stand-&alone form"), this))
    , m_pages(new QStackedWidget(this))
    , m_hint(new QLabel(this))
    , m_area(new QScrollArea(this))
{
    QFont font = m_title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    m_title->setFont(font);
    m_title->setObjectName("dialogTitle");
    m_path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_path->setObjectName("dialogPath");
    // A long path must not force the window to be wide.
    m_path->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    m_job->setToolTip(tr("The node's parameters as a part of the job"));
    m_standAlone->setToolTip(tr("The node's parameters on their own, with the general and antenna settings"));
    m_job->setObjectName("jobForm");
    m_standAlone->setObjectName("standAloneForm");
    m_job->setChecked(true);

    m_hint->setObjectName("hint");
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_pages->addWidget(m_hint);
    m_pages->addWidget(m_area);

    auto* heading = new QVBoxLayout;
    heading->setSpacing(0);
    heading->addWidget(m_title);
    heading->addWidget(m_path);
    auto* header = new QHBoxLayout;
    header->setContentsMargins(6, 0, 6, 4);
    header->setSpacing(12);
    header->addLayout(heading, 1);
    header->addWidget(m_job);
    header->addWidget(m_standAlone);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(header);
    layout->addWidget(m_pages, 1);

    connect(m_job, &QRadioButton::toggled, this, [this](bool on) { SetForm(on ? Form::Job : Form::StandAlone); });
    Rebuild();
}

void DialogPane::ShowNode(const JobNode* node)
{
    const bool isSame = m_node && node && m_node->path == node->path;
    m_node = node ? std::optional(*node) : std::nullopt;
    if (isSame)
        RebuildOnTab();
    else
        Rebuild();
}

void DialogPane::SetForm(Form form)
{
    if (m_form == form)
        return;
    m_form = form;
    (form == Form::Job ? m_job : m_standAlone)->setChecked(true);
    RebuildOnTab();
    emit FormChanged();
}

// Shows the tab that was shown, where the new dialog has it too.
void DialogPane::RebuildOnTab()
{
    const QString tab = m_dialog ? m_dialog->tabText(m_dialog->currentIndex()) : QString();
    Rebuild();
    for (int index = 0; m_dialog && index < m_dialog->count(); ++index)
        if (m_dialog->tabText(index) == tab && m_dialog->isTabEnabled(index))
        {
            m_dialog->setCurrentIndex(index);
            break;
        }
}

void DialogPane::FocusSwitch()
{
    (m_form == Form::Job ? m_job : m_standAlone)->setFocus(Qt::TabFocusReason);
}

void DialogPane::FocusDialog()
{
    if (!m_dialog)
        return;
    QWidget* last = m_dialog->focusWidget();
    (last && last->isVisible() && last->isEnabled() ? last : m_dialog->tabBar())->setFocus(Qt::TabFocusReason);
}

void DialogPane::Rebuild()
{
    if (m_dialog && m_dialog->isAncestorOf(QApplication::focusWidget()))
        CommitPendingEdit();
    delete m_area->takeWidget();

    m_job->setEnabled(m_node && FindChain(*m_node));
    m_standAlone->setEnabled(m_job->isEnabled());
    m_title->setText(m_node ? m_node->name : QString());
    m_path->setText(m_node ? m_node->path : QString());
    m_path->setToolTip(m_path->text());
    if (!m_node)
        return ShowHint(tr("Select a node to see its parameters."));
    if (!HasDialog(*m_node))
        return ShowHint(
            tr("%1 has no parameters of its own to edit. Select a node that is not dimmed.").arg(m_node->name));

    std::unique_ptr<QTabWidget> dialog = MakeDialog(*m_node, m_form, m_area->viewport());
    m_title->setText(dialog->windowTitle());
    if (dialog->count() == 0)
        return ShowHint(tr("There are no panels for %1 in this form.").arg(m_node->name));
    m_dialog = dialog.get();
    m_area->setWidget(dialog.release());
    m_pages->setCurrentWidget(m_area);
}

void DialogPane::ShowHint(const QString& text)
{
    m_hint->setText(text);
    m_pages->setCurrentWidget(m_hint);
}

void CommitPendingEdit()
{
    // Committing may replace the panel that the editor stands on.
    const QPointer<QWidget> editor = QApplication::focusWidget();
    if (!editor)
        return;
    editor->clearFocus();
    if (editor)
        editor->setFocus();
}

} // namespace JOBEDIT
