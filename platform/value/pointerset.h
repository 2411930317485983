#pragma once

#include <QtGlobal>
#include <algorithm>
#include <vector>

namespace TKE
{

/// A set of pointers in one word: nothing and a single pointer cost no heap. The order of the pointers is not kept.
template <class T> class PointerSet
{
public:
    PointerSet() = default;
    PointerSet(const PointerSet&) = delete;
    PointerSet& operator=(const PointerSet&) = delete;
    ~PointerSet() { delete Many(); }

    bool IsEmpty() const { return m_word == 0; }
    size_t Size() const { return Many() ? Many()->size() : (m_word != 0); }

    bool Contains(const T* pointer) const
    {
        if (const auto* many = Many())
            return std::find(many->begin(), many->end(), pointer) != many->end();
        return pointer && m_word == reinterpret_cast<quintptr>(pointer);
    }

    /// `pointer` must not be in the set.
    void Add(T* pointer)
    {
        if (m_word == 0)
            m_word = reinterpret_cast<quintptr>(pointer);
        else if (auto* many = Many())
            many->push_back(pointer);
        else
            m_word = reinterpret_cast<quintptr>(new std::vector<T*>{reinterpret_cast<T*>(m_word), pointer}) | 1;
    }

    /// Returns whether `pointer` was in the set.
    bool Remove(const T* pointer)
    {
        auto* many = Many();
        if (!many)
        {
            const bool found = pointer && m_word == reinterpret_cast<quintptr>(pointer);
            if (found)
                m_word = 0;
            return found;
        }
        // From the back: what came last usually goes first.
        const auto found = std::find(many->rbegin(), many->rend(), pointer);
        if (found == many->rend())
            return false;
        *found = many->back();
        many->pop_back();
        if (many->empty())
        {
            delete many;
            m_word = 0;
        }
        return true;
    }

    /// Takes some pointer out; null when the set is empty.
    T* TakeOne()
    {
        auto* many = Many();
        T* pointer = many ? many->back() : reinterpret_cast<T*>(m_word);
        if (pointer)
            Remove(pointer);
        return pointer;
    }

private:
    quintptr m_word = 0; // 0, the only pointer, or a vector (marked by the lowest bit)

    std::vector<T*>* Many() const
    {
        return (m_word & 1) ? reinterpret_cast<std::vector<T*>*>(m_word & ~quintptr(1)) : nullptr;
    }
};

} // namespace TKE
