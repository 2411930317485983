#pragma once

#include "jobmodel/nodespec.h"

#include <QString>
#include <vector>

namespace JOBEDIT
{

/// A node of the job as the editor lists it: a copy, so that nothing dangles when the tree is replaced.
struct JobNode
{
    QString path; ///< full path, "/" at the end
    QString name; ///< as shown
    QString type; ///< type text
    TKE::Band band = TKE::Band::Hf;
    bool dataForm = false;
    int parent = -1; ///< index of the listed node above; -1 at the top
};

/// Lists nodes as a job shows them: each before those below it.
class NodeLister
{
public:
    void Add(const QString& path, const TKE::NodeSpec& spec, const QString& parentPath)
    {
        while (!m_above.empty() && m_nodes[size_t(m_above.back())].path != parentPath)
            m_above.pop_back();
        const int parent = m_above.empty() ? -1 : m_above.back();
        m_above.push_back(int(m_nodes.size()));
        // The name of a top node may be a path.
        const QString own = spec.name.mid(spec.name.lastIndexOf(u'/') + 1);
        m_nodes.push_back({path, own.isEmpty() ? spec.name : own, spec.type, spec.band, spec.dataForm, parent});
    }
    std::vector<JobNode> Take() { return std::move(m_nodes); }

private:
    std::vector<JobNode> m_nodes;
    std::vector<int> m_above; // the last node, the one above it and so on up
};

} // namespace JOBEDIT
