#pragma once

#include "value/valuebase.h"

namespace TKE
{

/// Holds one value of the tree and, while it does, passes the value's changes on to its holder. It empties itself when
/// the value goes away, before the holder hears of it. It owns nothing; the holder outlives it (make it a member of the
/// holder).
///
/// The handle is an observer of its own: a holder that is attached to the same value directly too hears twice.
template <class T> class ValueObservingPtr final : private IObserver
{
public:
    explicit ValueObservingPtr(IObserver* holder = nullptr) : m_holder(holder) {}

    ValueObservingPtr& operator=(T* value)
    {
        Reset(value);
        return *this;
    }
    /// Lets go of the value held and holds `value` (null: nothing). A value that is released already is not held: it
    /// does not tell its end again.
    void Reset(T* value = nullptr)
    {
        if (value && value->GetState() == stReleased)
            value = nullptr;
        if (value == m_value)
            return;
        if (m_value)
            m_value->Detach(this);
        m_value = value;
        if (m_value)
            m_value->Attach(this);
    }

    T* Get() const { return m_value; }
    T* operator->() const { return m_value; }
    T& operator*() const { return *m_value; }
    explicit operator bool() const { return m_value != nullptr; }

private:
    void Update(Observable* source, TChangeCode code) override
    {
        if (code == ccState && m_value->GetState() == stReleased)
            Reset();
        // The holder may take this handle down with it, so nothing comes after.
        if (m_holder)
            m_holder->Update(source, code);
    }

    IObserver* m_holder;
    T* m_value = nullptr;
};

} // namespace TKE
