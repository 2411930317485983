#include "value/valuebase.h"

#include "value/node.h"
#include "value/value.h"
#include "value/valueselection.h"

#include <QCoreApplication>
#include <array>

namespace TKE
{

const ValueDescriptor& ValueDescriptor::Plain(ValueKind kind)
{
    static const auto descriptors = []
    {
        std::array<ValueDescriptor, 9> plain;
        for (size_t i = 0; i < plain.size(); ++i)
            plain[i].kind = ValueKind(i);
        return plain;
    }();
    return descriptors[size_t(kind)];
}

bool ValueDescriptor::Refuse(double number, QString* reason) const
{
    if (!reason)
        return false;
    const auto shown = [](double limit) { return QString::number(limit, 'f', QLocale::FloatingPointShortest); };
    if (!std::isfinite(number))
        *reason = QCoreApplication::translate("TKE::ValueDescriptor", "Not a number");
    else if (minimum && number < *minimum)
        *reason = QCoreApplication::translate("TKE::ValueDescriptor", "%1 is less than %2")
                      .arg(shown(number), shown(*minimum));
    else
        *reason = QCoreApplication::translate("TKE::ValueDescriptor", "%1 is more than %2")
                      .arg(shown(number), shown(*maximum));
    return false;
}

std::unique_ptr<ValueBase> ValueBase::Make(const QString& name, const ValueDescriptor& descriptor)
{
    switch (descriptor.kind)
    {
    case ValueKind::Bool:
        return std::make_unique<BoolValue>(name, descriptor);
    case ValueKind::Int:
        return std::make_unique<IntValue>(name, descriptor);
    case ValueKind::Double:
        return std::make_unique<DoubleValue>(name, descriptor);
    case ValueKind::Frequency:
        return std::make_unique<FrequencyValue>(name, descriptor);
    case ValueKind::Text:
        return std::make_unique<TextValue>(name, descriptor);
    case ValueKind::DateTime:
        return std::make_unique<DateTimeValue>(name, descriptor);
    case ValueKind::DoubleList:
        return std::make_unique<DoubleListValue>(name, descriptor);
    case ValueKind::Selection:
        return std::make_unique<ValueSelection>(name, descriptor);
    }
    return nullptr;
}

QString ValueBase::GetPathName() const
{
    return m_node ? m_node->GetBasePath() + *m_name : *m_name;
}

void ValueBase::SetState(EnableState state, const IObserver* excluded)
{
    if (state == m_state || m_isGoing)
        return;
    m_state = state;
    Notify(ccState, excluded);
}

void ValueBase::Release()
{
    if (m_isGoing)
        return;
    m_isGoing = true;
    m_state = stReleased;
    Notify(ccState);
}

QString ValueBase::GetStoredText() const
{
    std::string text;
    AppendStored(text);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

bool ValueBase::SetStoredText(const QString& text, const IObserver* excluded, QString* reason)
{
    const QByteArray utf8 = text.toUtf8();
    return SetStored({utf8.constData(), size_t(utf8.size())}, excluded, reason);
}

bool ValueBase::GetBool() const
{
    return GetKind() == ValueKind::Bool && static_cast<const BoolValue*>(this)->GetValue();
}

bool ValueBase::SetBool(bool on, const IObserver* excluded)
{
    return GetKind() == ValueKind::Bool && static_cast<BoolValue*>(this)->SetValue(on, excluded);
}

} // namespace TKE
