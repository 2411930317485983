#pragma once

#include "ipcparam/availableresources.h"

namespace TKE
{

/// The available resources as far as the job editor's own switches let them through.
class IPCPARAM_EXPORT TKEOptions : public AvailableResources
{
public:
    static constexpr int GateCount = 9;
    static constexpr int SwitchCount = 5;

    bool Slot0() const override;
    bool Slot1() const override;
    bool Slot2() const override;
    bool Slot3() const override;
    bool Slot4() const override;
    bool Slot5() const override;
    bool Slot6() const override;
    bool Slot7() const override;
    bool Slot8() const override;
    bool Slot9() const override;
    bool Slot10() const override;
    bool Slot11() const override;
    bool Slot12() const override;

    /// Gate `number` (1 to GateCount; any other throws std::out_of_range) lets the answer of the same number through.
    void SetGate(int number, bool open) { m_gates.at(size_t(number - 1)) = open; }
    /// Switch `number` (1 to SwitchCount; any other throws std::out_of_range).
    void SetSwitch(int number, bool on) { m_switches.at(size_t(number - 1)) = on; }

private:
    bool Gate(int number) const { return m_gates[size_t(number - 1)]; }
    bool Switch(int number) const { return m_switches[size_t(number - 1)]; }

    std::array<bool, GateCount> m_gates{};
    std::array<bool, SwitchCount> m_switches{};
};

} // namespace TKE
