#pragma once

#include "value/observable.h"
#include "valuewidgets/suffixeddouble.h"

namespace TKE
{

/// Settings that all value widgets of the program share. Its observers hear code 4 when one changes. GUI thread only.
class GuiCentral : public Observable
{
public:
    static GuiCentral& Instance();

    /// The unit in which frequency editors show their values, as a code of SuffixedDouble::ESuffix; MHz at first.
    /// Nothing happens when the code is none of them.
    void SetFrequencyUnit(int code);
    SuffixedDouble::ESuffix GetFrequencyUnit() const { return m_frequencyUnit; }

private:
    GuiCentral() = default;

    SuffixedDouble::ESuffix m_frequencyUnit = SuffixedDouble::Mega;
};

} // namespace TKE
