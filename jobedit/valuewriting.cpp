#include "valuewriting.h"

#include "jobdocument.h"

#include <QCoreApplication>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class ValueWriting
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::ValueWriting)
};

/// Why the selection has no item for one of the keys in `stored`; empty when it has all.
QString UnknownItem(const TKE::ValueBase& value, const QString& stored)
{
    if (value.GetKind() != TKE::ValueKind::Selection || value.GetStoredText() == stored)
        return {};
    const auto& selection = static_cast<const TKE::ValueSelection&>(value);
    for (const QString& key : stored.split(u';', Qt::SkipEmptyParts))
    {
        bool isNumber = false;
        const int number = key.toInt(&isNumber);
        if (isNumber && !selection.FindItem(number))
            return ValueWriting::tr("There is no item %1 here.").arg(key);
    }
    return {};
}

/// False with the reason when it was refused. Whether the value held it before goes to `written`.
bool Write(const ValueChange& change, bool& written, QString& reason)
{
    TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(change.path);
    if (!value)
    {
        reason = ValueWriting::tr("There is no such parameter here.");
        return false;
    }
    if (!change.unknownItems)
        reason = UnknownItem(*value, change.stored);
    if (!reason.isEmpty())
        return false;
    written = value->GetStoredText() != change.stored;
    return value->SetStoredText(change.stored, nullptr, &reason);
}

} // namespace

WriteResult WriteValues(JobDocument& document, const QString& stepName, const std::vector<ValueChange>& changes)
{
    EditHistory& history = document.History();
    const EditHistory::Step step(history, stepName);
    WriteResult result;
    std::vector<const ValueChange*> accepted;
    qint64 done = 0;
    const auto goesOn = [&] { return history.MayGoOn(done++, 2 * qint64(changes.size())); };
    for (const ValueChange& change : changes)
    {
        if (!goesOn())
            return {.isCancelled = true};
        bool written = false;
        QString reason;
        if (!Write(change, written, reason))
        {
            result.refused.push_back({change.path, reason});
            continue;
        }
        accepted.push_back(&change);
        result.written += written;
    }
    // A value may set others when it changes (a mode its switches): what was written before it is written again.
    for (const ValueChange* change : accepted)
    {
        if (!goesOn())
            return {.isCancelled = true};
        bool written = false;
        QString reason;
        if (!Write(*change, written, reason))
            result.refused.push_back({change->path, reason});
    }
    return result;
}

} // namespace JOBEDIT
