#pragma once

#include "jobmodel/joblayout.h"

#include <string>

class QIODevice;

namespace TKE
{

/// Writes a job: its layout with the values that the tree holds now.
class JobWriter
{
public:
    /// The device is open; it is not owned.
    JobWriter(const Tree& tree, QIODevice& device);

    /// False when the device did not take all; its error text says why.
    bool Write(const JobLayout& layout);

    /// Appends the element of a value in the form that new elements have.
    static void AppendElement(std::string& out, const NodeTemplate::Entry& entry, const ValueBase& value);

private:
    void WriteNode(const JobNode& node);
    void WriteKept(const KeptValue& kept, const ValueBase& value);
    bool IsWritten(const NodeTemplate::Entry& entry, const ValueBase& value);
    std::vector<size_t> FindNew(const JobNode& node, const std::vector<ValueBase*>& values);
    void FlushFull();

    const Tree& m_tree;
    QIODevice& m_device;
    std::string m_out;
    std::string m_stored;
    bool m_failed = false;
};

} // namespace TKE
