#include "fieldmarks.h"

#include "dialogpane.h"
#include "fields.h"
#include "mainwindow.h"
#include "markoverlay.h"
#include "panelwindow.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QSettings>
#include <QTabWidget>
#include <QTextDocument>
#include <QToolTip>

namespace JOBEDIT
{

namespace
{

const char* const marksKey = "markChangedFields";

} // namespace

FieldMarks::FieldMarks(MainWindow& window)
    : QObject(&window), m_window(window), m_action(window.ViewMenu()->addAction(tr("Mar&k Changed Fields")))
{
    m_action->setCheckable(true);
    m_action->setChecked(QSettings().value(marksKey, true).toBool());
    m_action->setStatusTip(
        tr("A filled bar marks a field that differs from the saved file, an outlined one a field that differs from "
           "its default."));
    connect(m_action, &QAction::toggled, this, &FieldMarks::Slot_OnToggled);
    connect(&window.Dialog(), &DialogPane::DialogChanged, this, [this] { Mark(m_window.Dialog().GetDialog()); });
    qApp->installEventFilter(this);
}

bool FieldMarks::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::ChildPolished:
        // A panel window makes itself a child of the main window and is whole when it is polished.
        if (object == &m_window)
            if (auto* panel = qobject_cast<PanelWindow*>(
                    static_cast<QChildEvent*>(event)->child())) // clazy:exclude=child-event-qobject-cast
                Mark(panel->findChild<QTabWidget*>());
        return false;
    case QEvent::ToolTip:
        return object->isWidgetType() && m_action->isChecked() &&
               ShowToolTip(static_cast<QWidget&>(*object), static_cast<QHelpEvent*>(event)->globalPos());
    default:
        return false;
    }
}

void FieldMarks::Mark(QTabWidget* dialog)
{
    if (dialog && !dialog->findChild<MarkOverlay*>(QString(), Qt::FindDirectChildrenOnly))
        (new MarkOverlay(m_window.Document(), *dialog))->setVisible(m_action->isChecked());
}

void FieldMarks::Slot_OnToggled(bool on)
{
    QSettings().setValue(marksKey, on);
    for (MarkOverlay* overlay : m_window.findChildren<MarkOverlay*>())
        overlay->setVisible(on);
}

bool FieldMarks::ShowToolTip(QWidget& widget, const QPoint& position) const
{
    const Fields::Field field = Fields::Of(&widget);
    if (!field.value)
        return false;
    QStringList lines{ChangeMark::Of(m_window.Document(), *field.value).InWords(m_window.Document(), *field.value)};
    if (lines.first().isEmpty())
        return false;
    const QString& own = widget.toolTip().isEmpty() ? field.widget->toolTip() : widget.toolTip();
    if (!own.isEmpty())
        lines.prepend(own);
    // A text of the dialog's may be marked up; then all is.
    const QString text =
        Qt::mightBeRichText(own) ? own + "<br>" + lines.last().toHtmlEscaped().replace('\n', "<br>") : lines.join('\n');
    QToolTip::showText(position, text, &widget);
    return true;
}

} // namespace JOBEDIT
