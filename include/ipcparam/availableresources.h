#pragma once

#include "ipcparam/export.h"

#include <array>

namespace TKE
{

/// Which kinds of receiving and processing resources a job can use. The answers are asked by number, in the order below.
class IPCPARAM_EXPORT AvailableResources
{
public:
    static constexpr int ResourceCount = 42;

    virtual bool Slot0() const;
    virtual bool Slot1() const;
    virtual bool Slot2() const;
    virtual bool Slot3() const;
    virtual bool Slot4() const;
    virtual bool Slot5() const;
    virtual bool Slot6() const;
    virtual bool Slot7() const;
    virtual bool Slot8() const;
    virtual bool Slot9() const;
    virtual bool Slot10() const;
    virtual bool Slot11() const;
    virtual bool Slot12() const;
    virtual ~AvailableResources() = default; // behind the answers, which so keep their numbers in the table of virtuals, too

    /// Resource `index` (0 to ResourceCount - 1; any other throws std::out_of_range).
    void SetResource(int index, bool available) { m_resources.at(size_t(index)) = available; }
    bool HasResource(int index) const { return m_resources.at(size_t(index)); }
    void SetCounts(int countA, int countB)
    {
        m_countA = countA;
        m_countB = countB;
    }

protected:
    /// Whether any resource from `first` to `last` is there.
    bool HasAny(int first, int last) const;

private:
    std::array<bool, ResourceCount> m_resources{};
    int m_countA = 0;
    int m_countB = 0;
};

} // namespace TKE
