#include "checker.h"
#include "command.h"
#include "jobdocument.h"
#include "jsonlist.h"
#include "progress.h"
#include "value/idledisposal.h"

namespace JOBEDIT
{

namespace
{

QJsonObject JsonOf(const TKE::FileError& error)
{
    return {{"severity", error.IsError() ? "error" : "warning"},
            {"file", error.file},
            {"line", error.line},
            {"column", error.column},
            {"path", error.itemPath},
            {"reason", error.reason}};
}

int Check(Call& call)
{
    const auto model = JobDocument::ConfiguredModel();
    bool good = model->GetErrors().isEmpty();
    std::optional<JsonList> list;
    if (call.WantsJson())
        list.emplace(call.Out(), QJsonObject(), QStringLiteral("findings"));
    for (const QString& file : call.GetArguments())
    {
        TKE::FileErrors errors;
        {
            Progress progress(Commands::tr("Reading %1:").arg(file));
            errors = Checker::CheckFile(file, model, std::ref(progress));
        }
        for (const TKE::FileError& error : std::as_const(errors))
        {
            if (list)
                list->Add(JsonOf(error));
            else
                call.Errors() << error.ToText() << '\n';
            good = good && !error.IsError();
        }
        // Here is no event loop that it would wait for.
        while (TKE::IdleDisposal::IsUnderWay())
            QCoreApplication::processEvents();
    }
    return good ? esGood : esFinding;
}

} // namespace

Command MakeCheck()
{
    return {.name = "check",
            .arguments = "FILE...",
            .summary = Commands::tr("checks files; exit status 1 when one has an error"),
            .help = Commands::tr("Names each finding with file, line, column, path and reason."),
            .fewest = 1,
            .json = true,
            .run = Check};
}

} // namespace JOBEDIT
