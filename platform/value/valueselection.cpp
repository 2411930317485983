#include "value/valueselection.h"

#include "value/format.h"

#include <QCoreApplication>
#include <algorithm>

namespace TKE
{

namespace
{

bool RefuseItem(const QString& text, QString* reason)
{
    if (reason)
        *reason = QCoreApplication::translate("TKE::ValueSelection", "There is no item \"%1\"").arg(text);
    return false;
}

bool ReadKeys(std::string_view utf8, std::vector<int>& keys, QString* reason)
{
    for (size_t begin = 0; begin < utf8.size();)
    {
        const size_t end = std::min(utf8.find(';', begin), utf8.size());
        int key = 0;
        if (!Stored::Read(utf8.substr(begin, end - begin), key, reason))
            return false;
        keys.push_back(key);
        begin = end + 1;
    }
    return true;
}

void Sort(std::vector<int>& keys)
{
    std::sort(keys.begin(), keys.end());
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
}

} // namespace

ValueSelection::ValueSelection(const QString& name, const ValueDescriptor& descriptor) : ValueBase(name, descriptor) {}

ValueSelection::~ValueSelection()
{
    Release();
}

ValueSelection::Extra& ValueSelection::NeedExtra()
{
    if (!m_extra)
        m_extra = std::make_unique<Extra>();
    return *m_extra;
}

const std::vector<SelectionItem>& ValueSelection::GetItems() const
{
    return m_extra && m_extra->items ? *m_extra->items : GetDescriptor().items;
}

void ValueSelection::SetItems(std::vector<SelectionItem> items)
{
    if (items == GetItems())
        return;
    NeedExtra().items = std::move(items);
    Notify(ccItems);
}

const SelectionItem* ValueSelection::FindItem(int key) const
{
    const auto& items = GetItems();
    const auto found = std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.GetKey() == key; });
    return found != items.end() ? &*found : nullptr;
}

const std::vector<int>& ValueSelection::GetKeys() const
{
    static const std::vector<int> none;
    return m_extra ? m_extra->keys : none;
}

bool ValueSelection::Assign(int key, const IObserver* excluded)
{
    if (key != m_key)
        Change(excluded, [&] { m_key = key; });
    return true;
}

bool ValueSelection::Assign(std::vector<int> keys, const IObserver* excluded)
{
    Sort(keys);
    if (keys != GetKeys())
        Change(excluded, [&] { NeedExtra().keys = std::move(keys); });
    return true;
}

bool ValueSelection::SelectKey(int key, const IObserver* excluded, QString* reason)
{
    return FindItem(key) ? Assign(key, excluded) : RefuseItem(QString::number(key), reason);
}

bool ValueSelection::SetKeys(std::vector<int> keys, const IObserver* excluded, QString* reason)
{
    for (const int key : keys)
    {
        if (!FindItem(key) && !std::binary_search(GetKeys().begin(), GetKeys().end(), key))
            return RefuseItem(QString::number(key), reason);
    }
    return Assign(std::move(keys), excluded);
}

QString ValueSelection::GetText() const
{
    const SelectionItem* item = IsMultiple() ? nullptr : GetSelectedItem();
    return item ? item->GetName() : GetStoredText();
}

bool ValueSelection::SetFromText(const QString& text, const IObserver* excluded, QString* reason)
{
    if (IsMultiple())
    {
        std::vector<int> keys;
        return ReadKeys(text.toStdString(), keys, reason) && SetKeys(std::move(keys), excluded, reason);
    }
    const auto& items = GetItems();
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const auto& item) { return item.GetName() == text; });
    return found != items.end() ? Assign(found->GetKey(), excluded) : RefuseItem(text, reason);
}

void ValueSelection::AppendStored(std::string& out) const
{
    if (!IsMultiple())
    {
        Stored::Append(out, m_key);
        return;
    }
    const char* separator = "";
    for (const int key : GetKeys())
    {
        out += separator;
        Stored::Append(out, key);
        separator = ";";
    }
}

bool ValueSelection::SetStored(std::string_view utf8, const IObserver* excluded, QString* reason)
{
    if (IsMultiple())
    {
        std::vector<int> keys;
        return ReadKeys(utf8, keys, reason) && Assign(std::move(keys), excluded);
    }
    int key = 0;
    return Stored::Read(utf8, key, reason) && Assign(key, excluded);
}

} // namespace TKE
