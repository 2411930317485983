#include "nodecopy.h"

#include "jobdocument.h"

#include <QCoreApplication>

namespace JOBEDIT
{

namespace
{

void CopyValues(const TKE::Node& from, const QString& toPath)
{
    for (const auto& value : from.GetValues())
        if (TKE::ValueBase* target = TKE::Tree::Instance()->FindValue(toPath + value->GetName()))
        {
            if (value->IsExplicit())
                target->SetExplicit(true);
            target->SetStoredText(value->GetStoredText());
        }
}

bool CopyBelow(const NodeSource& source, const TKE::Node& from, JobDocument& document, const QString& toPath,
               QString* reason)
{
    CopyValues(from, toPath);
    for (const auto& below : from.GetNodes())
    {
        const QString path = toPath + below->GetName().toString() + u'/';
        const TKE::NodeSpec* spec = source.specOf(below->GetBasePath());
        // A copy: adding may move what the source holds, which may be the same job.
        if (spec && !document.AddNode(toPath, TKE::NodeSpec(*spec), reason))
            return false;
        if (!CopyBelow(source, *below, document, path, reason))
            return false;
    }
    return true;
}

} // namespace

QString ParentPath(const QString& path)
{
    return path.left(QStringView(path).chopped(path.isEmpty() ? 0 : 1).lastIndexOf(u'/') + 1);
}

bool CopyNode(const NodeSource& source, const QString& fromPath, JobDocument& document, const QString& parentPath,
              const QString& name, QString* reason)
{
    const TKE::Node* from = source.tree.FindNode(fromPath);
    const TKE::NodeSpec* known = from ? source.specOf(from->GetBasePath()) : nullptr;
    if (!known)
    {
        if (reason)
            *reason =
                QCoreApplication::translate("JOBEDIT::NodeCopy", "%1 is no node of a job of its own.").arg(fromPath);
        return false;
    }
    TKE::NodeSpec spec = *known;
    spec.name = name;
    const TKE::Node* made = document.AddNode(parentPath, spec, reason);
    return made && CopyBelow(source, *from, document, made->GetBasePath(), reason);
}

} // namespace JOBEDIT
