#include "useracts.h"

#include "edithistory.h"
#include "application/qtcompat.h"
#include "ipcparam/parameterdlg.h"
#include "valuewidgets/valuelink.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace JOBEDIT
{

namespace
{

constexpr qint64 wheelSeries = 750; // ms between two turns at most

// The path of the value that is edited by `widget` or by what it is a part of; empty when there is none.
QString FieldOf(QWidget& widget)
{
    for (QWidget* each = &widget; each; each = each->isWindow() ? nullptr : each->parentWidget())
        if (const auto* link = dynamic_cast<const TKE::ValueLink*>(each))
            return link->GetBoundValue() ? link->GetBoundValue()->GetPathName() : QString();
    return {};
}

} // namespace

UserActs::UserActs(EditHistory& history, QObject* parent) : QObject(parent), m_history(history)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool UserActs::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::KeyPress:
        if (receiver->isWidgetType())
            OnKeyPress(static_cast<QWidget&>(*receiver), static_cast<QKeyEvent&>(*event));
        break;
    case QEvent::KeyRelease:
        if (receiver->isWidgetType() && !static_cast<QKeyEvent*>(event)->isAutoRepeat())
            m_history.EndActLater();
        break;
    case QEvent::Wheel:
        if (receiver->isWidgetType())
            OnWheel(static_cast<QWidget&>(*receiver));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        if (receiver->isWidgetType())
            m_history.BeginAct();
        break;
    case QEvent::MouseButtonRelease:
        if (receiver->isWidgetType())
            m_history.EndActLater();
        break;
    case QEvent::Shortcut:
    case QEvent::Drop:
        m_history.BeginAct();
        m_history.EndActLater();
        break;
    case QEvent::ApplicationStateChange:
        m_history.EndActLater();
        break;
    case QEvent::ShortcutOverride:
        // Left to the shortcut by not letting the field accept it.
        if (receiver->isWidgetType() && IsForJob(static_cast<QWidget&>(*receiver), static_cast<QKeyEvent&>(*event)))
        {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(receiver, event);
}

bool UserActs::IsForJob(const QWidget& receiver, const QKeyEvent& event) const
{
    const QKeySequence keys(QtCompat::Keys(event));
    const bool isAction =
        std::any_of(m_actions.begin(), m_actions.end(),
                    [&](const QPointer<QAction>& action)
                    { return action && action->isEnabled() && action->shortcuts().contains(keys); });
    for (const QWidget* each = isAction ? &receiver : nullptr; each; each = each->parentWidget())
        if (qobject_cast<const TKE::ParameterDlg*>(each))
            return true;
    return false;
}

void UserActs::OnKeyPress(QWidget& receiver, const QKeyEvent& event)
{
    const QString field = FieldOf(receiver);
    if (event.isAutoRepeat() && m_key == event.key() && m_field == field)
    {
        // The field may repeat it by a timer of its own from now on, until the key is released.
        m_history.ResumeAct();
        return;
    }
    m_field = field;
    m_key = event.key();
    m_history.BeginAct();
    m_history.EndActLater();
}

void UserActs::OnWheel(QWidget& receiver)
{
    const QString field = FieldOf(receiver);
    if (m_key == 0 && m_field == field && m_sinceWheel.isValid() && m_sinceWheel.elapsed() < wheelSeries)
        m_history.ResumeAct();
    else
        m_history.BeginAct();
    m_field = field;
    m_key = 0;
    m_sinceWheel.start();
    m_history.EndActLater();
}

} // namespace JOBEDIT
