#include "fieldmenu.h"

#include "application/errorhandler.h"
#include "changemark.h"
#include "fields.h"
#include "mainwindow.h"
#include "value/tree.h"
#include "valuetexts.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>

namespace JOBEDIT
{

namespace
{

constexpr qsizetype longestLine = 80; // characters

QString Escaped(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

void AddLine(QMenu& menu, const QString& line)
{
    QString text = line.simplified();
    if (text.size() > longestLine)
        text = text.left(longestLine - 1) + QChar(0x2026);
    menu.addAction(Escaped(text))->setEnabled(false);
}

void Write(JobDocument& document, const QString& path, const QString& stored)
{
    TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(path);
    if (!value || value->GetState() != TKE::stEnabled)
        return;
    const EditHistory::Step step(document.History(), {});
    QString reason;
    if (!value->SetStoredText(stored, nullptr, &reason))
        TKE::ErrorHandler::Interface().Report(TKE::Severity::Warning, reason, path);
}

void AddReset(QMenu& menu, JobDocument& document, const QString& text, const TKE::ValueBase& value,
              const QString& stored, bool possible)
{
    QAction* action = menu.addAction(text.arg(Escaped(ValueTexts::OfStored(value.GetDescriptor(), stored).left(longestLine))));
    action->setEnabled(possible);
    // When the menu is gone: writing may replace the panel that the menu stands on.
    QObject::connect(
        action, &QAction::triggered, &document,
        [&document, path = value.GetPathName(), stored] { Write(document, path, stored); },
        Qt::QueuedConnection);
}

bool HasOwnMenu(const QWidget& widget)
{
    if (!widget.isEnabled())
        return false;
    return widget.contextMenuPolicy() == Qt::CustomContextMenu || qobject_cast<const QLineEdit*>(&widget);
}

// A spin box would run its own menu in an event loop within its event; a reset may delete the box meanwhile.
QMenu* SpinMenu(QAbstractSpinBox& box)
{
    QMenu* menu = box.findChild<QLineEdit*>()->createStandardContextMenu();
    menu->addSeparator();
    QObject::connect(menu->addAction(QAbstractSpinBox::tr("&Step up")), &QAction::triggered, &box,
                     &QAbstractSpinBox::stepUp, Qt::QueuedConnection);
    QObject::connect(menu->addAction(QAbstractSpinBox::tr("Step &down")), &QAction::triggered, &box,
                     &QAbstractSpinBox::stepDown, Qt::QueuedConnection);
    menu->addSeparator();
    return menu;
}

bool IsMenuKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace

FieldMenu::FieldMenu(MainWindow& window) : QObject(&window), m_window(window)
{
    qApp->installEventFilter(this);
}

void FieldMenu::Fill(QMenu& menu, JobDocument& document, const TKE::ValueBase& value, bool editable)
{
    const ChangeMark mark = ChangeMark::Of(document, value);
    const QString saved = document.SavedText(value);
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    AddReset(menu, document, tr("Reset to &Saved Value (%1)"), value, saved, editable && mark.fromSaved);
    AddReset(menu, document, tr("Reset to &Default (%1)"), value, descriptor.defaultText, editable && mark.fromDefault);
    menu.addAction(tr("Copy &Path"), &document,
                   [path = value.GetPathName()] { QGuiApplication::clipboard()->setText(path); });

    menu.addSeparator();
    AddLine(menu, tr("Label: %1").arg(ValueTexts::Label(value)));
    AddLine(menu, tr("Key: %1").arg(value.GetName()));
    if (const QString range = ValueTexts::Range(value); !range.isEmpty())
        AddLine(menu, tr("Range: %1").arg(range));
    if (!descriptor.unit.isEmpty())
        AddLine(menu, tr("Unit: %1").arg(descriptor.unit));
    if (!descriptor.description.isEmpty())
        AddLine(menu, tr("Description: %1").arg(descriptor.description));
    AddLine(menu, tr("Default: %1").arg(ValueTexts::OfDefault(value.GetDescriptor())));
    AddLine(menu, tr("Saved: %1").arg(ValueTexts::OfStored(value.GetDescriptor(), saved)));
}

bool FieldMenu::eventFilter(QObject* object, QEvent* event)
{
    if (!object->isWidgetType())
        return false;
    auto& widget = static_cast<QWidget&>(*object);
    switch (event->type())
    {
    case QEvent::ContextMenu:
        return OnContextMenu(widget, static_cast<QContextMenuEvent*>(event)->globalPos());
    case QEvent::KeyPress:
        if (!IsMenuKey(*static_cast<QKeyEvent*>(event)) || QApplication::activePopupWidget() ||
            !Fields::Of(&widget).value)
            return false;
        {
            const QPoint place = widget.rect().center();
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place));
            QCoreApplication::sendEvent(&widget, &menu);
        }
        return true;
    case QEvent::Polish:
        // Before a menu is measured for the first time.
        if (m_asked)
            if (auto* menu = qobject_cast<QMenu*>(object))
                OnMenuMade(*menu);
        return false;
    default:
        return false;
    }
}

bool FieldMenu::OnContextMenu(QWidget& widget, const QPoint& position)
{
    const Fields::Field field = Fields::Of(&widget);
    if (!field.value)
        return false;
    const bool isInside = field.widget == &widget || field.widget->isAncestorOf(&widget);
    if (isInside && HasOwnMenu(*field.widget))
    {
        m_asked = field.widget;
        QMetaObject::invokeMethod(
            this, [this] { m_asked = nullptr; }, Qt::QueuedConnection);
        return false;
    }
    auto* box = qobject_cast<QAbstractSpinBox*>(field.widget);
    QMenu* menu = box && box->isEnabled() && isInside ? SpinMenu(*box) : new QMenu(&m_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    Fill(*menu, m_window.Document(), *field.value, Fields::IsEditable(field));
    menu->popup(position);
    return true;
}

void FieldMenu::OnMenuMade(QMenu& menu)
{
    const Fields::Field field = Fields::Of(m_asked);
    m_asked = nullptr;
    if (!field.value)
        return;
    menu.addSeparator();
    Fill(menu, m_window.Document(), *field.value, Fields::IsEditable(field));
}

} // namespace JOBEDIT
