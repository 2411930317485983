#pragma once

#include "jobmodel/jobfile.h"

#include <QCoreApplication>

namespace JOBEDIT
{

/// A change of the job's nodes that can be taken back and made again, in turns, each time in the state of the job that
/// the other left.
class StructureEdit
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::StructureEdit)

public:
    enum class Kind
    {
        Add,
        Remove,
        Rename,
        Duplicate,
    };

    StructureEdit(Kind ofKind, const QString& atPath) : kind(ofKind), path(WithoutSlash(atPath)) {}

    bool Undo(TKE::JobFile& file);
    bool Redo(TKE::JobFile& file);
    QString GetText() const;

    static QString WithoutSlash(const QString& path) { return path.endsWith('/') ? path.chopped(1) : path; }

    Kind kind;
    QString path;                          ///< of the node that is added, removed, renamed (before), or the copy
    QString other;                         ///< the parent's path; the path after renaming; the original's path
    QString name;                          ///< the name after renaming, or of the copy
    QString oldName;                       ///< the name before renaming
    TKE::NodeSpec spec;                    ///< of an added node
    std::shared_ptr<TKE::TakenNode> taken; ///< while the node is away
};

} // namespace JOBEDIT
