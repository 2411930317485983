#include "structureedit.h"

namespace JOBEDIT
{

bool StructureEdit::Undo(TKE::JobFile& file)
{
    switch (kind)
    {
    case Kind::Add:
    case Kind::Duplicate:
        taken = file.TakeNode(path);
        return taken != nullptr;
    case Kind::Remove:
        return taken && file.PutBackNode(*std::exchange(taken, nullptr));
    case Kind::Rename:
        return file.RenameNode(other, oldName);
    }
    return false;
}

bool StructureEdit::Redo(TKE::JobFile& file)
{
    switch (kind)
    {
    case Kind::Add:
    case Kind::Duplicate:
        return taken && file.PutBackNode(*std::exchange(taken, nullptr));
    case Kind::Remove:
        taken = file.TakeNode(path);
        return taken != nullptr;
    case Kind::Rename:
        return file.RenameNode(path, name);
    }
    return false;
}

QString StructureEdit::GetText() const
{
    const QString shown = path.section('/', -1);
    switch (kind)
    {
    case Kind::Add:
        return tr("Add node %1").arg(shown);
    case Kind::Remove:
        return tr("Remove node %1").arg(shown);
    case Kind::Rename:
        return tr("Rename node %1 to %2").arg(shown, other.section('/', -1));
    case Kind::Duplicate:
        return tr("Duplicate node %1 as %2").arg(other.section('/', -1), shown);
    }
    return {};
}

} // namespace JOBEDIT
