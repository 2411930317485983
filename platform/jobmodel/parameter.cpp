#include "jobmodel/parameter.h"

#include <algorithm>

namespace JOBXMLGENERATOR
{

const TKE::ValueDescriptor& Parameter::GetValueDescriptor(int channel) const
{
    if (channel <= 1 || m_channelStep == 0)
        return m_descriptor;
    while (m_channelDescriptors.size() < size_t(channel - 1))
    {
        TKE::ValueDescriptor next = m_channelDescriptors.empty() ? m_descriptor : m_channelDescriptors.back();
        double number = double(next.defaultText.toLongLong() + m_channelStep);
        number = std::clamp(number, next.minimum.value_or(number), next.maximum.value_or(number));
        next.defaultText = QString::number(qint64(number));
        m_channelDescriptors.push_back(std::move(next));
    }
    return m_channelDescriptors[size_t(channel - 2)];
}

} // namespace JOBXMLGENERATOR
