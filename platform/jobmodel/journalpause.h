#pragma once

#include "value/tree.h"

namespace TKE
{

/// While it lives, the journal hears nothing: what a file brings is no edit.
class JournalPause
{
public:
    explicit JournalPause(Tree& tree) : m_tree(tree), m_hook(tree.SetJournal({})) {}
    ~JournalPause() { m_tree.SetJournal(std::move(m_hook)); }
    JournalPause(const JournalPause&) = delete;
    JournalPause& operator=(const JournalPause&) = delete;

private:
    Tree& m_tree;
    JournalHook m_hook;
};

} // namespace TKE
