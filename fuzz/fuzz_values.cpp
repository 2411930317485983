// The text of a value of any kind, as files hold it and as programs give it: what is refused changes nothing and has a
// reason; what is taken is written in a form that reads as the same again. So for lists and sets of keys, too.
//
// The first byte chooses the kind, the second the range and the form; what follows is the text.

#include "fuzz.h"
#include "value/tree.h"
#include "value/valueselection.h"

using namespace TKE;
using Fuzz::Require;

namespace
{

ValueDescriptor DescriptorOf(uint8_t kind, uint8_t form)
{
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind(1 + kind % 8);
    if (descriptor.kind == ValueKind::Selection)
    {
        descriptor.items = {{0, QStringLiteral("off")}, {1, QStringLiteral("on")}, {-7, QStringLiteral("a;b")}};
        descriptor.multiple = form & 1;
    }
    if (form & 2)
        descriptor.minimum = -10;
    if (form & 4)
        descriptor.maximum = 1e6;
    return descriptor;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr size_t head = 2;
    if (size < head)
        return 0;
    const ValueDescriptor descriptor = DescriptorOf(data[0], data[1]);
    const std::string_view text(reinterpret_cast<const char*>(data) + head, size - head);
    Tree tree;
    ValueBase* value = tree.CreateValue(u"/A/value", descriptor);
    ValueBase* again = tree.CreateValue(u"/A/again", descriptor);
    const QString before = value->GetStoredText();
    QString reason;
    const bool taken =
        data[1] & 8 ? value->SetFromText(QString::fromUtf8(text.data(), qsizetype(text.size())), nullptr, &reason)
                    : value->SetStored(text, nullptr, &reason);
    const QString stored = value->GetStoredText();
    if (!taken)
    {
        Require(stored == before && !reason.isEmpty());
        return 0;
    }
    Require(again->SetStoredText(stored) && again->GetStoredText() == stored);
    // A key that no item has stays when it comes from a file only.
    ValueBase* shown = tree.CreateValue(u"/A/shown", descriptor);
    const bool isKnown = shown->SetFromText(value->GetText());
    Require(isKnown ? shown->GetStoredText() == stored : descriptor.kind == ValueKind::Selection);
    return 0;
}
