#pragma once

#include "jobmodel/joblayout.h"

#include <QElapsedTimer>
#include <functional>
#include <string>

class QIODevice;

namespace TKE
{

/// Writes a job: its layout with the values that the tree holds now.
class JobWriter
{
public:
    /// Called every few milliseconds with the nodes written; false cancels.
    using Progress = std::function<bool(qint64 done)>;

    /// The device is open; it is not owned.
    JobWriter(const Tree& tree, QIODevice& device, Progress progress = {});

    /// False when it was cancelled or the device did not take all; its error text says why.
    bool Write(const JobLayout& layout);
    bool WasCancelled() const { return m_cancelled; }

    /// Appends the element of a value in the form that new elements have.
    static void AppendElement(std::string& out, const NodeTemplate::Entry& entry, const ValueBase& value);

private:
    void WriteNode(const JobNode& node);
    void WriteKept(const KeptValue& kept, const ValueBase& value);
    bool IsWritten(const NodeTemplate::Entry& entry, const ValueBase& value);
    std::vector<size_t> FindNew(const JobNode& node, const std::vector<ValueBase*>& values);
    void FlushFull();
    void Tick();

    const Tree& m_tree;
    QIODevice& m_device;
    std::string m_out;
    std::string m_stored;
    Progress m_progress;
    QElapsedTimer m_sinceProgress;
    qint64 m_nodesDone = 0;
    bool m_cancelled = false;
    bool m_failed = false;
};

} // namespace TKE
