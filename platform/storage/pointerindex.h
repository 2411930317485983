#pragma once

#include "storage/texthash.h"

#include <memory>

namespace TKE
{

/// A hash set of pointers for millions of objects: one word a slot, which holds the pointer and 16 bits of its hash, so
/// that a search touches hardly any object but the one it finds. Hash: a functor that gives a T's hash, all 64 bits of
/// it good.
template <class T, class Hash> class PointerIndex
{
public:
    size_t Size() const { return m_size; }

    /// The object of that hash for which `matches` holds; null when there is none.
    template <class Matches> T* Find(quint64 hash, Matches matches) const
    {
        if (m_size == 0)
            return nullptr;
        for (size_t i = Home(hash); m_slots[i] != 0; i = Next(i))
        {
            if (((m_slots[i] ^ hash << pointerBits) >> pointerBits) == 0 && matches(*Pointer(m_slots[i])))
                return Pointer(m_slots[i]);
        }
        return nullptr;
    }
    /// Fetches from memory what Find(hash) will need first, while other work goes on.
    void Prefetch(quint64 hash) const
    {
        if (m_size != 0)
            __builtin_prefetch(&m_slots[Home(hash)]);
    }

    /// Puts `object`, whose hash is given, into the index unless one is there for which `matches` holds.
    template <class Matches> bool Insert(T* object, quint64 hash, Matches matches)
    {
        if ((m_size + 1) * 5 > m_capacity * 4)
            Resize(m_capacity + m_capacity / 2 + 16);
        size_t i = Home(hash);
        for (; m_slots[i] != 0; i = Next(i))
        {
            if (((m_slots[i] ^ hash << pointerBits) >> pointerBits) == 0 && matches(*Pointer(m_slots[i])))
                return false;
        }
        m_slots[i] = Slot(object, hash);
        ++m_size;
        return true;
    }
    /// `object` must be in the index.
    void Erase(const T* object)
    {
        size_t hole = Home(Hash()(*object));
        while (Pointer(m_slots[hole]) != object)
            hole = Next(hole);
        // Whoever stands behind the hole because its own place was taken moves up, so that searches never end early.
        for (size_t i = Next(hole); m_slots[i] != 0; i = Next(i))
        {
            if (Distance(Home(Hash()(*Pointer(m_slots[i]))), i) >= Distance(hole, i))
            {
                m_slots[hole] = m_slots[i];
                hole = i;
            }
        }
        m_slots[hole] = 0;
        --m_size;
    }
    void Reserve(size_t size)
    {
        if (size * 5 > m_capacity * 4)
            Resize(size * 5 / 4 + 16);
    }
    void Clear()
    {
        m_slots.reset();
        m_capacity = m_size = 0;
    }

private:
    // Addresses of programs have no more bits than that on any 64-bit system in use.
    static constexpr int pointerBits = 48;
    static constexpr quint64 pointerMask = (quint64(1) << pointerBits) - 1;

    static quint64 Slot(T* object, quint64 hash)
    {
        Q_ASSERT((quintptr(object) & ~pointerMask) == 0);
        return quint64(quintptr(object)) | hash << pointerBits;
    }
    static T* Pointer(quint64 slot) { return reinterpret_cast<T*>(quintptr(slot & pointerMask)); }
    size_t Home(quint64 hash) const
    {
        __extension__ using Wide = unsigned __int128;
        return size_t(Wide(hash) * m_capacity >> 64);
    }
    size_t Next(size_t i) const { return i + 1 < m_capacity ? i + 1 : 0; }
    size_t Distance(size_t from, size_t to) const { return to >= from ? to - from : to + m_capacity - from; }

    void Place(T* object)
    {
        const quint64 hash = Hash()(*object);
        size_t i = Home(hash);
        while (m_slots[i] != 0)
            i = Next(i);
        m_slots[i] = Slot(object, hash);
    }
    void Resize(size_t capacity)
    {
        const auto old = std::move(m_slots);
        const size_t oldCapacity = std::exchange(m_capacity, capacity);
        m_slots = std::make_unique<quint64[]>(capacity);
        for (size_t i = 0; i < oldCapacity; ++i)
        {
            if (old[i] != 0)
                Place(Pointer(old[i]));
        }
    }

    std::unique_ptr<quint64[]> m_slots; // 0: free
    size_t m_capacity = 0;
    size_t m_size = 0;
};

} // namespace TKE
