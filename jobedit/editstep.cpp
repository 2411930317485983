#include "editstep.h"

#include "changetext.h"

#include <QCoreApplication>

namespace JOBEDIT
{

QString EditStep::GetText() const
{
    if (!name.isEmpty() || changes.empty())
        return name;
    const EditChange& first = changes.front();
    QString text = first.structure ? first.structure->GetText()
                                   : ChangeText::Of(first.path, label, *first.descriptor, first.before, first.after);
    if (changes.size() == 1)
        return text;
    return QCoreApplication::translate("JOBEDIT::EditStep", "%1 and %2 more").arg(text).arg(changes.size() - 1);
}

} // namespace JOBEDIT
