#include "command.h"

namespace JOBEDIT
{

std::vector<Command> MakeCommands()
{
    return {MakeGet(), MakeSet(), MakeList(), MakeDiff(), MakeCheck(), MakeRender(), MakeReport(), MakePlan(), MakeNew()};
}

int Call::Refuse(const QString& reason)
{
    m_errors << reason << '\n';
    return esFinding;
}

int Call::Misuse(const QString& reason)
{
    m_errors << "jobedit: " << reason << '\n'
             << Commands::tr("jobedit %1 --help tells more.").arg(m_command.name) << '\n';
    return esUsage;
}

} // namespace JOBEDIT
