#pragma once

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace TKE
{

/// An editor of a period widget (Edit is QTimeEdit or QDateEdit): what is typed counts on Return and on leaving the
/// field, Escape takes it back, and the wheel works in a focused editor only. It tells of a change when Qt is done with
/// the event that made it, so that whoever hears of it may delete the editor.
template <class Edit> class PeriodEdit final : public Edit
{
public:
    PeriodEdit(QWidget* parent, const QString& name) : Edit(parent)
    {
        this->setObjectName(name);
        this->setFocusPolicy(Qt::StrongFocus);
        this->setKeyboardTracking(false);
    }

protected:
    bool event(QEvent* event) override
    {
        switch (event->type())
        {
        case QEvent::KeyPress:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && TakeBack())
            {
                event->accept();
                return true;
            }
            break;
        case QEvent::FocusOut:
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
        case QEvent::Timer:
            break;
        default:
            return Edit::event(event);
        }
        const QPointer<QObject> alive(this);
        const QDateTime before = this->dateTime();
        const bool blocked = this->blockSignals(true);
        const bool handled = Edit::event(event);
        if (!alive)
            return handled;
        this->blockSignals(blocked);
        if (this->dateTime() == before)
            return handled;
        if (this->isEnabled())
            Tell();
        else
            Show(before); // disabled while it was typed into
        return handled;
    }

    void wheelEvent(QWheelEvent* event) override
    {
        if (this->hasFocus())
            Edit::wheelEvent(event);
        else
            event->ignore();
    }

private:
    bool TakeBack()
    {
        if (this->text() == this->textFromDateTime(this->dateTime()))
            return false;
        Show(this->dateTime());
        return true;
    }
    void Show(const QDateTime& moment)
    {
        const QSignalBlocker quiet(this);
        this->setDateTime(moment);
    }
    void Tell()
    {
        if constexpr (std::is_same_v<Edit, QTimeEdit>)
            emit this->timeChanged(this->time());
        else
            emit this->dateChanged(this->date());
    }
};

} // namespace TKE
