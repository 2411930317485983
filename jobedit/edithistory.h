#pragma once

#include "editstep.h"

#include <QHash>
#include <QObject>
#include <functional>
#include <optional>

namespace JOBEDIT
{

/// The steps that undo takes back and redo makes again, and which of them the saved file has.
///
/// Changes that come while a Step lives, or during one act of the user, or until control is back at the event loop,
/// make one step. Undo and redo are exact: every value that they touch, be it by an observer of another one, ends with
/// the content it had. They write with no excluded observer, and commit first what is still being typed. The oldest of
/// more than a thousand steps go, and those of too many changes.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    static constexpr size_t MaximumSteps = 1000;
    static constexpr size_t MaximumChanges = 2'000'000; ///< in all steps but the last

    /// All changes while it lives form one step of undo with this (translated) name. Nested steps: the outermost
    /// counts. An empty step leaves no trace.
    class Step
    {
    public:
        Step(EditHistory& history, QString name);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

    private:
        EditHistory& m_history;
    };

    /// Called now and then while a step of many changes is made, taken back or made again; false cancels.
    using Progress = std::function<bool(qint64 done, qint64 all)>;

    explicit EditHistory(TKE::JobFile& file, QObject* parent = nullptr);

    void SetProgress(Progress progress) { m_progress = std::move(progress); }
    /// For who makes many changes in a Step. False: make no more; the step is taken back when it ends.
    bool MayGoOn(qint64 done, qint64 all);

    bool CanUndo() const { return m_position > 0 || IsOpen(); }
    bool CanRedo() const { return m_position < m_steps.size() && !IsOpen(); }
    /// What the next undo or redo would take back or make again; empty when there is nothing.
    QString UndoText() const;
    QString RedoText() const;
    // Cancelled, these leave everything as it was.
    void Undo();
    void Redo();

    /// Whether the job differs from the saved one by steps.
    bool IsModified() const { return IsOpen() || m_saved != m_position; }
    /// The job is saved as it is now.
    void SetSaved();
    /// Another job has come: its steps begin here.
    void Clear();

    // The acts of the user. An act ends when the next one begins, or some time after EndActLater at the event loop.
    void BeginAct();
    /// The act that was begun last goes on, and so does its step.
    void ResumeAct();
    void EndActLater();

    void Record(const TKE::JournalEntry& entry);
    void Record(const std::shared_ptr<StructureEdit>& edit);

signals:
    void Changed();
    void NodesChanged();
    /// A node and all below it go by another path from now on; both paths end in "/".
    void NodeMoved(const QString& from, const QString& to);
    // For those who keep a record of the steps themselves.
    void ChangeRecorded(quint64 step, const JOBEDIT::EditChange& change);
    void StepUndone(const JOBEDIT::EditStep& step);
    void StepRedone(const JOBEDIT::EditStep& step);

protected:
    void customEvent(QEvent* event) override;

private:
    using Contents = QHash<QString, QString>;

    bool IsOpen() const { return m_open && !m_open->changes.empty(); }
    EditStep& Open();
    void Close();
    void Append(const EditChange& change);
    void Bound();
    bool Apply(const EditStep& step, bool undo);
    /// How many were made before somebody cancelled.
    template <class Iterator> qsizetype Apply(Iterator from, Iterator end, bool undo, bool mayCancel);
    void Write(const QString& path, const QString& stored);
    void Tell(const StructureEdit& edit, bool undo);
    void TellOfNodes();

    TKE::JobFile& m_file;
    std::deque<EditStep> m_steps;
    size_t m_position = 0;              // steps that are done; those behind can be redone
    std::optional<size_t> m_saved = 0;  // position of the saved job; none: no undo leads there
    std::optional<EditStep> m_open;     // the step that changes go into
    QHash<QString, size_t> m_openIndex; // its changes of values since its last change of nodes
    int m_depth = 0;                    // of Steps
    quint64 m_act = 0;                  // 0: no act of the user is going on
    quint64 m_lastAct = 0;
    quint64 m_lastNumber = 0;
    Progress m_progress;
    bool m_isCancelled = false;   // the step that is being made
    bool m_nodesChanged = false;  // which is told once, at the end of a step, of undo and of redo
    Contents* m_wanted = nullptr; // while undo or redo writes: what each value they touch must end with
};

} // namespace JOBEDIT
