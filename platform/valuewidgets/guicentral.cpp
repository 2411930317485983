#include "valuewidgets/guicentral.h"

namespace TKE
{

GuiCentral& GuiCentral::Instance()
{
    static GuiCentral instance;
    return instance;
}

void GuiCentral::SetFrequencyUnit(int code)
{
    if (!SuffixedDouble::IsSuffix(code) || code == m_frequencyUnit)
        return;
    m_frequencyUnit = SuffixedDouble::ESuffix(code);
    Notify(ccDescription);
}

} // namespace TKE
