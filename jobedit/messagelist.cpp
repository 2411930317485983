#include "messagelist.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStyle>
#include <QTime>

namespace JOBEDIT
{

namespace
{

constexpr int maximumCount = 1000;

QStyle::StandardPixmap PixmapOf(TKE::Severity severity)
{
    switch (severity)
    {
    case TKE::Severity::Info:
        return QStyle::SP_MessageBoxInformation;
    case TKE::Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case TKE::Severity::Error:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

} // namespace

MessageList::MessageList(QWidget* parent) : QListWidget(parent)
{
    setObjectName("messages");
    setAccessibleName(tr("Messages"));
    setSelectionMode(ExtendedSelection);
    setContextMenuPolicy(Qt::ActionsContextMenu);

    QAction* copy = new QAction(tr("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &MessageList::Copy);
    QAction* clear = new QAction(tr("C&lear"), this);
    connect(clear, &QAction::triggered, this, &QListWidget::clear);
    addActions({copy, clear});
}

void MessageList::Add(TKE::Severity severity, const QString& text, const QString& details)
{
    const QString time = QTime::currentTime().toString("hh:mm:ss  ");
    const QString line = time + (details.isEmpty() ? text : text + (text.endsWith('.') ? " " : ": ") + details);
    auto* item = new QListWidgetItem(style()->standardIcon(PixmapOf(severity)), line, this);
    item->setToolTip(line);
    while (count() > maximumCount)
        delete takeItem(0);
    // Once for many: each time all would be laid out.
    QMetaObject::invokeMethod(this, &MessageList::scrollToBottom, Qt::QueuedConnection);
}

void MessageList::TakeFrom(MessageList& other)
{
    while (QListWidgetItem* item = other.takeItem(0))
        addItem(item);
    scrollToBottom();
}

QString MessageList::GetText() const
{
    const bool all = selectedItems().isEmpty();
    QStringList lines;
    for (int row = 0; row < count(); ++row)
        if (all || item(row)->isSelected())
            lines << item(row)->text();
    return lines.join('\n');
}

void MessageList::Copy() const
{
    QGuiApplication::clipboard()->setText(GetText());
}

} // namespace JOBEDIT
