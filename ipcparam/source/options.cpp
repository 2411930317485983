#include "ipcparam/availableresources.h"
#include "ipcparam/tkeoptions.h"

#include <algorithm>

namespace TKE
{

bool AvailableResources::HasAny(int first, int last) const
{
    return std::any_of(m_resources.begin() + first, m_resources.begin() + last + 1, [](bool has) { return has; });
}

bool AvailableResources::Slot0() const { return HasResource(32) || HasAny(35, 38) || HasAny(40, 41); }
bool AvailableResources::Slot1() const { return HasAny(33, 34); }
bool AvailableResources::Slot2() const { return HasAny(0, 7) || HasResource(32) || HasAny(35, 40); }
bool AvailableResources::Slot3() const { return HasAny(14, 19); }
bool AvailableResources::Slot4() const { return HasResource(1) || HasResource(5); }
bool AvailableResources::Slot5() const { return HasResource(15) || HasResource(18); }
bool AvailableResources::Slot6() const { return HasAny(12, 13); }
bool AvailableResources::Slot7() const { return HasAny(10, 11); }
bool AvailableResources::Slot8() const { return HasAny(12, 13); } // the pair of slot 6, on purpose
bool AvailableResources::Slot9() const { return HasAny(8, 9); }
bool AvailableResources::Slot10() const { return m_countA > 1 || m_countB > 1; }
bool AvailableResources::Slot11() const { return Slot2(); }
bool AvailableResources::Slot12() const { return Slot9(); }

bool TKEOptions::Slot0() const { return Switch(4) && AvailableResources::Slot0(); }
bool TKEOptions::Slot1() const { return Gate(1) && AvailableResources::Slot1(); }
bool TKEOptions::Slot2() const { return Gate(2) && (AvailableResources::Slot2() || Switch(3)); }
bool TKEOptions::Slot3() const { return Gate(3) && AvailableResources::Slot3(); }
bool TKEOptions::Slot4() const { return Gate(4) && AvailableResources::Slot4(); }
bool TKEOptions::Slot5() const { return Gate(5) && AvailableResources::Slot5(); }
bool TKEOptions::Slot6() const { return Gate(6) && HasAny(12, 13); }
bool TKEOptions::Slot7() const { return Gate(7) && AvailableResources::Slot7(); }
bool TKEOptions::Slot8() const { return Gate(8) && HasAny(12, 13); }
bool TKEOptions::Slot9() const { return Gate(9) && AvailableResources::Slot9(); }
bool TKEOptions::Slot10() const { return Switch(5); }
bool TKEOptions::Slot11() const { return Switch(1); }
bool TKEOptions::Slot12() const { return Switch(2); }

} // namespace TKE
