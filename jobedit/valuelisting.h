#pragma once

#include <QString>
#include <vector>

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

/// Which values of the job are listed, and how: as a tree of nodes in the order of the job, or flat and sorted.
/// It knows values by place only and finds them in the value tree again each time, so nothing dangles when values go or
/// the job is replaced.
struct ValueListing
{
    enum Column
    {
        Label,
        Content,
        Saved,
        Default,
        Key,
        Path,
        ColumnCount,
    };
    struct Row
    {
        quint32 branch;
        quint32 place; ///< among the values of the branch's node
    };
    struct Branch
    {
        QString path;         ///< of the node, "/" at the end
        quint32 parent = 0;   ///< the branch above
        quint32 position = 0; ///< among the branches of that one
        quint32 firstRow = 0; ///< its values stand one after the other
        quint32 rowCount = 0;
        std::vector<quint32> branches; ///< those below that hold any row
    };

    bool isFlat = false;
    std::vector<Branch> branches; ///< the first stands for the whole list and is no node
    std::vector<Row> rows;

    /// Null when it is not there any more.
    TKE::ValueBase* Find(const Row& row) const;
};

} // namespace JOBEDIT
