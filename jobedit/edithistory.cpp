#include "edithistory.h"

#include "changetext.h"
#include "dialogpane.h"
#include "value/tree.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <iterator>

namespace JOBEDIT
{

namespace
{

constexpr int roundsOfCorrection = 4;
constexpr int changesAtOnce = 64; // between two looks whether it goes on

// Comes back from the event loop behind all that was posted before.
class EndOfAct : public QEvent
{
public:
    explicit EndOfAct(quint64 ended) : QEvent(QEvent::User), act(ended) {}
    const quint64 act;
};

} // namespace

EditHistory::Step::Step(EditHistory& history, QString name) : m_history(history)
{
    if (m_history.m_depth++ > 0)
        return;
    m_history.Close();
    m_history.Open().name = std::move(name);
    m_history.m_isCancelled = false;
}

EditHistory::Step::~Step()
{
    if (m_history.m_depth == 1)
        m_history.TellOfNodes();
    if (--m_history.m_depth > 0)
        return;
    const quint64 number = m_history.m_open ? m_history.m_open->number : 0;
    m_history.Close();
    const auto& steps = m_history.m_steps;
    // One without changes has left no trace.
    if (m_history.m_isCancelled && !steps.empty() && steps.back().number == number)
    {
        m_history.Undo();
        m_history.m_steps.pop_back(); // nobody wants half of it again
        emit m_history.Changed();
    }
    m_history.m_isCancelled = false;
}

EditHistory::EditHistory(TKE::JobFile& file, QObject* parent) : QObject(parent), m_file(file) {}

QString EditHistory::UndoText() const
{
    if (IsOpen())
        return m_open->GetText();
    return m_position > 0 ? m_steps[m_position - 1].GetText() : QString();
}

QString EditHistory::RedoText() const
{
    return CanRedo() ? m_steps[m_position].GetText() : QString();
}

void EditHistory::Undo()
{
    if (m_depth > 0 || m_wanted)
        return;
    CommitPendingEdit();
    BeginAct();
    EndActLater();
    if (m_position == 0)
        return;
    const EditStep& step = m_steps[--m_position];
    if (!Apply(step, true))
    {
        ++m_position;
        return;
    }
    emit StepUndone(step);
    emit Changed();
}

void EditHistory::Redo()
{
    if (m_depth > 0 || m_wanted)
        return;
    CommitPendingEdit();
    BeginAct();
    EndActLater();
    if (!CanRedo())
        return;
    const EditStep& step = m_steps[m_position++];
    if (!Apply(step, false))
    {
        --m_position;
        return;
    }
    emit StepRedone(step);
    emit Changed();
}

void EditHistory::SetSaved()
{
    Close();
    m_saved = m_position;
    emit Changed();
}

void EditHistory::Clear()
{
    m_steps.clear();
    m_open.reset();
    m_openIndex.clear();
    m_position = 0;
    m_saved = 0;
    m_act = 0;
    emit Changed();
}

void EditHistory::BeginAct()
{
    if (m_depth == 0)
        Close();
    m_act = ++m_lastAct;
}

void EditHistory::ResumeAct()
{
    m_act = m_lastAct;
}

void EditHistory::EndActLater()
{
    QCoreApplication::postEvent(this, new EndOfAct(m_act), Qt::LowEventPriority);
}

void EditHistory::customEvent(QEvent* event)
{
    if (static_cast<EndOfAct*>(event)->act != m_act)
        return;
    if (m_depth == 0)
        Close();
    m_act = 0;
}

EditStep& EditHistory::Open()
{
    if (m_open)
        return *m_open;
    const bool goesOn =
        m_depth == 0 && m_act != 0 && m_position > 0 && m_steps[m_position - 1].act == m_act && m_saved != m_position;
    if (goesOn)
    {
        m_open = std::move(m_steps[--m_position]);
        m_steps.erase(m_steps.begin() + ptrdiff_t(m_position), m_steps.end());
        for (size_t i = 0; i < m_open->changes.size(); ++i)
        {
            if (m_open->changes[i].structure)
                m_openIndex.clear();
            else
                m_openIndex.insert(m_open->changes[i].path, i);
        }
        return *m_open;
    }
    m_open.emplace();
    m_open->number = ++m_lastNumber;
    m_open->act = m_depth == 0 ? m_act : 0;
    if (m_depth == 0 && m_act == 0)
        EndActLater();
    return *m_open;
}

void EditHistory::Close()
{
    if (!m_open)
        return;
    EditStep step = std::move(*m_open);
    m_open.reset();
    m_openIndex.clear();
    const bool hadChanges = !step.changes.empty();
    std::erase_if(step.changes,
                  [](const EditChange& change) { return !change.structure && change.before == change.after; });
    if (!step.changes.empty())
    {
        if (m_saved && *m_saved > m_position)
            m_saved.reset();
        m_steps.erase(m_steps.begin() + ptrdiff_t(m_position), m_steps.end());
        m_steps.push_back(std::move(step));
        ++m_position;
        Bound();
    }
    if (hadChanges)
        emit Changed();
}

void EditHistory::Bound()
{
    size_t changes = 0;
    for (const EditStep& step : m_steps)
        changes += step.changes.size();
    while (m_steps.size() > MaximumSteps || (changes > MaximumChanges && m_steps.size() > 1))
    {
        changes -= m_steps.front().changes.size();
        m_steps.pop_front();
        --m_position;
        if (m_saved)
            m_saved = *m_saved > 0 ? std::optional(*m_saved - 1) : std::nullopt;
    }
}

void EditHistory::Record(const TKE::JournalEntry& entry)
{
    if (m_wanted)
    {
        const QString path = entry.value.GetPathName();
        if (!m_wanted->contains(path))
            m_wanted->insert(path, entry.before);
        return;
    }
    if (!IsOpen() && m_depth == 0 && Open().changes.empty())
        Open().label = ChangeText::LabelOnScreen(entry.value);
    Append({entry.value.GetPathName(), entry.before, entry.after, nullptr, &entry.value.GetDescriptor()});
}

void EditHistory::Record(const std::shared_ptr<StructureEdit>& edit)
{
    Append({.path = edit->path, .structure = edit});
    Tell(*edit, false);
    if (m_depth == 0)
        TellOfNodes();
}

void EditHistory::Append(const EditChange& change)
{
    const bool wasOpen = IsOpen();
    EditStep& step = Open();
    size_t index = step.changes.size();
    if (change.structure)
        m_openIndex.clear();
    else if (const auto found = m_openIndex.constFind(change.path); found != m_openIndex.constEnd())
        index = *found;
    else
        m_openIndex.insert(change.path, index);
    if (index < step.changes.size())
        step.changes[index].after = change.after;
    else
        step.changes.push_back(change);
    emit ChangeRecorded(step.number, change);
    if (!wasOpen)
        emit Changed();
}

bool EditHistory::MayGoOn(qint64 done, qint64 all)
{
    if (!m_isCancelled && m_progress && done % changesAtOnce == 0)
        m_isCancelled = !m_progress(done, all);
    return !m_isCancelled;
}

bool EditHistory::Apply(const EditStep& step, bool undo)
{
    const auto& all = step.changes;
    const bool mayCancel = !m_isCancelled; // else it is the cancelled step itself that is taken back
    const auto done = undo ? Apply(all.rbegin(), all.rend(), true, mayCancel) : Apply(all.begin(), all.end(), false, mayCancel);
    if (done == std::ssize(all))
        return true;
    undo ? Apply(all.end() - done, all.end(), false, false) : Apply(all.rend() - done, all.rend(), true, false);
    return false;
}

template <class Iterator> qsizetype EditHistory::Apply(Iterator from, Iterator end, bool undo, bool mayCancel)
{
    Contents wanted;
    m_wanted = &wanted;
    const qint64 count = end - from;
    qint64 told = 0;
    // The second half is to look whether all is as wanted.
    const auto goesOn = [&] { return told++ % changesAtOnce != 0 || !m_progress || m_progress(told - 1, 2 * count); };
    qsizetype done = 0;
    for (; from != end; ++from, ++done)
    {
        if (!goesOn() && mayCancel)
            break;
        const EditChange& change = *from;
        if (!change.structure)
        {
            const QString& content = undo ? change.before : change.after;
            wanted.insert(change.path, content);
            Write(change.path, content);
            continue;
        }
        if (undo ? change.structure->Undo(m_file) : change.structure->Redo(m_file))
            Tell(*change.structure, undo);
    }
    TellOfNodes(); // dialogs are built anew, and may write as well
    // Observers of a value may have written others, or the same again.
    for (int round = 0; round < roundsOfCorrection; ++round)
    {
        const Contents target = wanted; // NOLINT(performance-unnecessary-copy-initialization): writing changes `wanted`
        bool stable = true;
        for (auto each = target.begin(); each != target.end(); ++each)
        {
            goesOn();
            const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(each.key());
            if (!value || value->GetStoredText() == each.value())
                continue;
            stable = false;
            Write(each.key(), each.value());
        }
        if (stable)
            break;
    }
    m_wanted = nullptr;
    return done;
}

void EditHistory::Write(const QString& path, const QString& stored)
{
    if (TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(path))
        value->SetStoredText(stored);
}

void EditHistory::Tell(const StructureEdit& edit, bool undo)
{
    if (edit.kind == StructureEdit::Kind::Rename)
        emit NodeMoved((undo ? edit.other : edit.path) + '/', (undo ? edit.path : edit.other) + '/');
    m_nodesChanged = true;
}

void EditHistory::TellOfNodes()
{
    if (std::exchange(m_nodesChanged, false))
        emit NodesChanged();
}

} // namespace JOBEDIT
