#pragma once

#include "value/valuebase.h"

#include <memory>

namespace TKE
{

/// A choice among items. A plain selection holds one key; a multiple one (ValueDescriptor::multiple) holds a set of
/// keys beside it.
///
/// A key that no item has is kept when it comes from a file (SetStored), so that nothing of a newer version is lost; it
/// has no item then and its text is the number.
class ValueSelection final : public ValueBase
{
public:
    explicit ValueSelection(const QString& name,
                            const ValueDescriptor& descriptor = ValueDescriptor::Plain(ValueKind::Selection));
    ~ValueSelection() override;

    bool IsMultiple() const { return GetDescriptor().multiple; }

    /// The items, in the order in which they are shown: those of the descriptor unless SetItems gave others.
    const std::vector<SelectionItem>& GetItems() const;
    /// Gives this value items of its own; observers hear code 7. The current key stays even when no item has it any
    /// more.
    void SetItems(std::vector<SelectionItem> items);

    int GetCurrentKey() const { return m_key; }
    /// The item with the current key; null when there is none.
    const SelectionItem* GetSelectedItem() const { return FindItem(m_key); }
    const SelectionItem* FindItem(int key) const;
    /// Selects the item that has this key; refused when there is none.
    bool SelectKey(int key, const IObserver* excluded = nullptr, QString* reason = nullptr);

    /// Multiple selections: the selected keys, ascending.
    const std::vector<int>& GetKeys() const;
    bool SetKeys(std::vector<int> keys, const IObserver* excluded = nullptr, QString* reason = nullptr);

    /// The name of the selected item; of a multiple selection the keys joined with ";".
    QString GetText() const override;
    /// Selects the item of that name (of a multiple selection: the keys joined with ";").
    bool SetFromText(const QString& text, const IObserver* excluded = nullptr, QString* reason = nullptr) override;
    void AppendStored(std::string& out) const override;
    bool SetStored(std::string_view utf8, const IObserver* excluded = nullptr, QString* reason = nullptr) override;

private:
    // What few selections need: items of their own, a set of keys.
    struct Extra
    {
        std::optional<std::vector<SelectionItem>> items;
        std::vector<int> keys;
    };
    Extra& NeedExtra();
    bool Assign(int key, const IObserver* excluded);
    bool Assign(std::vector<int> keys, const IObserver* excluded);

    int m_key = 0;
    std::unique_ptr<Extra> m_extra;
};

} // namespace TKE
