#pragma once

#include "value/pointerset.h"

namespace TKE
{

/// What has changed about an observed value.
enum TChangeCode : int
{
    ccState = 2,       ///< The enable state (see EnableState).
    ccContent = 3,     ///< The content.
    ccDescription = 4, ///< The descriptor (unit, range, label).
    ccItems = 7,       ///< The items of a selection.
};

class Observable;

/// Hears of changes of the observables it is attached to. Observer and observed may die in either order: an observer
/// that dies lets go of all it observes. GUI thread only.
class IObserver
{
public:
    IObserver(const IObserver&) = delete;
    IObserver& operator=(const IObserver&) = delete;

    virtual void Update(Observable* source, TChangeCode code) = 0;

protected:
    IObserver() = default;
    virtual ~IObserver();

private:
    friend class Observable;
    PointerSet<Observable> m_observed;
};

/// Something that observers attach to.
///
/// Promises of a round of notification: observers are called in the order of attaching; attaching twice counts once; an
/// observer that is detached meanwhile is not called any more; one that is attached meanwhile is not called in this
/// round; an observer may delete itself or others; the observable may be deleted, and the round then ends; rounds nest.
class Observable
{
public:
    Observable() = default;
    Observable(const Observable&) = delete;
    Observable& operator=(const Observable&) = delete;
    virtual ~Observable();

    /// Attaches `observer` (not owned). Nothing happens when it is null or attached already.
    void Attach(IObserver* observer)
    {
        if (m_word == 0 && observer)
            AttachFirst(observer);
        else
            AttachFurther(observer);
    }
    /// Detaches `observer`. Nothing happens when it is not attached.
    void Detach(IObserver* observer)
    {
        if (observer && observer == Single())
        {
            m_word = 0;
            observer->m_observed.Remove(this);
        }
        else
            DetachOneOfMany(observer);
    }
    bool IsObserved() const;

protected:
    /// Tells all observers but `excluded`. The observable may be gone when this returns: make it the last thing you do.
    void Notify(TChangeCode code, const IObserver* excluded = nullptr)
    {
        if (m_word == 0)
            return;
        if (IObserver* only = Single())
        {
            if (only != excluded)
                only->Update(this, code);
            return;
        }
        NotifyMany(code, excluded);
    }

private:
    friend class IObserver;
    struct Round;
    struct Crowd;

    // One word, since most values have no observer or one: 0, the only observer, or a Crowd (marked by the lowest bit).
    quintptr m_word = 0;

    IObserver* Single() const { return (m_word & 1) ? nullptr : reinterpret_cast<IObserver*>(m_word); }
    Crowd* Many() const { return (m_word & 1) ? reinterpret_cast<Crowd*>(m_word & ~quintptr(1)) : nullptr; }
    void AttachFirst(IObserver* observer)
    {
        m_word = reinterpret_cast<quintptr>(observer);
        observer->m_observed.Add(this);
    }
    void AttachFurther(IObserver* observer);
    void DetachOneOfMany(IObserver* observer);
    void NotifyMany(TChangeCode code, const IObserver* excluded);
    bool IsAttached(const IObserver* observer) const;
    void Remove(const IObserver* observer);
};

} // namespace TKE
