#pragma once

#include "value/observable.h"
#include "value/treememory.h"
#include "value/valuedescriptor.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace TKE
{

class Node;
class Tree;
class ValueBase;

enum EnableState : quint8
{
    stEnabled = 0,
    stReleased = 1, ///< The value goes away (or is withdrawn): every holder forgets it.
    stDisabled = 2,
};

/// One content change, as the journal of the tree sees it. Both texts are in stored form.
struct JournalEntry
{
    const ValueBase& value;
    QString before;
    QString after;
    int depth; ///< 0, or how many notifications of other changes this write happened in
};
using JournalHook = std::function<void(const JournalEntry&)>;

/// One value of the tree: a name, an enable state and content of some kind. Values are made and owned by the tree (see
/// Tree).
///
/// Writing: a write names the observer that must not hear of it (the widget that wrote); undo, redo and loading name
/// none. A write that changes nothing notifies nobody. What cannot be converted or lies outside the range is refused:
/// false, content unchanged, reason as text. A value may be removed by whom its notification reaches: do not touch it
/// after a write unless you know better.
///
/// Lifetime: a value that goes away first reports state 1 (released), so that every holder forgets it, and keeps that
/// state.
///
/// Exported by itself, since a library that hides what it does not export would else have a journal of its own.
class Q_DECL_EXPORT ValueBase : public Observable
{
public:
    /// A value of the type that the descriptor's kind asks for, with an empty content and outside the tree. What holds
    /// for the constructor's arguments holds here. Null for a kind that there is not.
    static std::unique_ptr<ValueBase> Make(const QString& name, const ValueDescriptor& descriptor);

    static void* operator new(size_t size) { return TreeMemory::Take(size); }
    static void operator delete(void* piece, size_t size) { TreeMemory::Give(piece, size); }

    const QString& GetName() const { return *m_name; }
    /// Full path: that of the node, "/" and the name.
    QString GetPathName() const;
    /// The node that the value belongs to; null for a value outside the tree.
    Node* GetNode() const { return m_node; }
    const ValueDescriptor& GetDescriptor() const { return *m_descriptor; }
    /// 1 for a boolean; see ValueKind.
    int GetTypeCode() const { return int(m_descriptor->kind); }
    ValueKind GetKind() const { return m_descriptor->kind; }

    EnableState GetState() const { return m_state; }
    void SetState(EnableState state, const IObserver* excluded = nullptr);

    /// The content as text for people and programs: numbers with ".", a selection's item name, date and time as
    /// yyyy-MM-ddThh:mm:ss.
    virtual QString GetText() const = 0;
    /// Sets the content from such a text. On refusal returns false and leaves why in `reason` when given.
    virtual bool SetFromText(const QString& text, const IObserver* excluded = nullptr, QString* reason = nullptr) = 0;

    /// The content as files hold it, appended to `out` in UTF-8: as GetText, but selections by key.
    virtual void AppendStored(std::string& out) const = 0;
    /// Sets the content from the stored form, as a file or the journal gives it. A selection takes unknown keys too and
    /// keeps them.
    virtual bool SetStored(std::string_view utf8, const IObserver* excluded = nullptr, QString* reason = nullptr) = 0;
    QString GetStoredText() const;
    bool SetStoredText(const QString& text, const IObserver* excluded = nullptr, QString* reason = nullptr);
    bool SetToDefault(const IObserver* excluded = nullptr)
    {
        return SetStoredText(m_descriptor->defaultText, excluded);
    }

    /// The boolean of a boolean value; false for any other kind.
    bool GetBool() const;
    /// Writes the boolean; refused by any other kind.
    bool SetBool(bool on, const IObserver* excluded = nullptr);

    /// Whether a file named this value, so that it is written though it equals the default.
    bool IsExplicit() const { return m_explicit; }
    void SetExplicit(bool on) { m_explicit = on; }

protected:
    /// `name` must stay (see Tree, which interns names); `descriptor` outlives the value.
    ValueBase(const QString& name, const ValueDescriptor& descriptor) : m_name(&name), m_descriptor(&descriptor) {}

    /// Runs `assign`, which changes the content, then tells the journal and the observers. Make it the last thing a
    /// write does.
    template <class Assign> void Change(const IObserver* excluded, Assign assign)
    {
        if (s_journal)
        {
            JournalEntry entry{*this, GetStoredText(), {}, s_depth};
            assign();
            entry.after = GetStoredText();
            s_journal(entry);
        }
        else
            assign();
        Nested nested;
        Notify(ccContent, excluded);
    }
    /// Reports the end, once, even of a value that was withdrawn before: not all may have heard of that yet. The
    /// destructor of each kind of value calls it, while the value is whole, for observers that read its content.
    void Release();

private:
    friend class Tree;
    friend class Node;

    struct Nested
    {
        Nested() { ++s_depth; }
        ~Nested() { --s_depth; }
    };
    static inline JournalHook s_journal;
    static inline int s_depth = 0;

    Node* m_node = nullptr;
    const QString* m_name;
    const ValueDescriptor* m_descriptor;
    EnableState m_state = stEnabled;
    bool m_explicit = false;
    bool m_isGoing = false; // has reported its end
};

} // namespace TKE
