#include "takeover.h"

#include "jobdocument.h"

#include <QCoreApplication>

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class TakingOver
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::TakeOver)
};

/// The reason why not; empty when it was done.
QString TakeNode(JobDocument& document, const CompareSides& sides, const Difference& difference)
{
    const QString path = sides.leftBase + difference.node;
    QString reason;
    switch (difference.kind)
    {
    case Difference::Kind::Changed:
        return TakingOver::tr("The type of a node cannot be taken over.");
    case Difference::Kind::OnlyLeft:
        if (!document.File().FindNodeSpec(path))
            return TakingOver::tr("The node belongs to the one above it and cannot be removed by itself.");
        document.RemoveNode(path, &reason);
        return reason;
    case Difference::Kind::OnlyRight:
        break;
    }
    const QString from = sides.rightBase + difference.node;
    const TKE::NodeSpec* spec = sides.right.specOf(from);
    if (!spec)
        return TakingOver::tr("The node belongs to the one above it and cannot be added by itself.");
    const bool top = spec->name.contains(u'/');
    CopyNode(sides.right, from, document, top ? QString() : ParentPath(path), spec->name, &reason);
    return reason;
}

} // namespace

std::vector<Difference> CompareSides::Compare(const DiffProgress& progress) const
{
    return CompareTrees(*TKE::Tree::Instance(), leftBase, right.tree, rightBase, progress);
}

WriteResult TakeOver(JobDocument& document, const QString& stepName, const CompareSides& sides,
                     const std::vector<Difference>& differences)
{
    EditHistory& history = document.History();
    const EditHistory::Step step(history, stepName);
    WriteResult result;
    std::vector<ValueChange> changes;
    for (const Difference& difference : differences)
    {
        if (difference.IsNode() && !history.MayGoOn(0, 1))
            return {.isCancelled = true};
        if (difference.IsNode())
        {
            if (const QString reason = TakeNode(document, sides, difference); !reason.isEmpty())
                result.refused.push_back({difference.Path(), reason});
            else
                ++result.written;
        }
        else if (difference.kind == Difference::Kind::Changed)
            changes.push_back({sides.leftBase + difference.Path(), difference.rightStored});
        else
            result.refused.push_back(
                {difference.Path(),
                 TakingOver::tr("Only one side has the parameter: the nodes have different groups.")});
    }
    const WriteResult values = WriteValues(document, stepName, changes);
    if (values.isCancelled)
        return {.isCancelled = true};
    result.written += values.written;
    for (const Refusal& refusal : values.refused)
        result.refused.push_back({refusal.path.mid(sides.leftBase.size()), refusal.reason});
    return result;
}

} // namespace JOBEDIT
