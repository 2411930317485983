#include "arguments.h"

#include <QLocale>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

bool Knows(const Command& command, const QString& option)
{
    return std::any_of(command.options.begin(), command.options.end(),
                       [&](const QCommandLineOption& own) { return own.names().contains(option); });
}

QList<QCommandLineOption> GlobalOptions()
{
    return {{{"h", "help"}, Arguments::tr("Shows this help.")},
            {{"v", "version"}, Arguments::tr("Shows the version.")},
            {"json", Arguments::tr("Prints one JSON document (get, list, diff and check).")},
            {"language", Arguments::tr("Language of the texts and form of numbers, for example de."), "LANGUAGE"}};
}

} // namespace

Arguments::Arguments(const QStringList& texts) : m_commands(MakeCommands())
{
    m_parser.addOptions(GlobalOptions());
    for (const Command& command : m_commands)
        for (const QCommandLineOption& option : command.options)
            if (!m_known.contains(option.names().constFirst()))
            {
                m_known << option.names().constFirst();
                m_parser.addOption(option);
            }
    m_parsed = m_parser.parse(texts);
}

const Command* Arguments::GetCommand() const
{
    const QString name = m_parser.positionalArguments().value(0);
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&](const Command& command) { return command.name == name; });
    return found != m_commands.end() ? &*found : nullptr;
}

QStringList Arguments::OwnersOf(const QString& option) const
{
    QStringList owners;
    for (const Command& command : m_commands)
        if (Knows(command, option))
            owners << command.name;
    return owners;
}

QString Arguments::Fault() const
{
    if (!m_parsed)
        return m_parser.errorText();
    const Command* command = GetCommand();
    const qsizetype count = GetRest().size();
    if (!command && count > 1)
        return tr("One job at a time: %1 files are given, and %2 is no command.")
            .arg(count)
            .arg(GetRest().constFirst());
    for (const QString& option : m_known)
        if (m_parser.isSet(option) && !(command && Knows(*command, option)))
            return tr("--%1 belongs to %2.").arg(option, OwnersOf(option).join(QLatin1String(", ")));
    if (Has("json") && !(command && command->json))
        return tr("--json belongs to get, list, diff and check.");
    if (command && count < command->fewest)
        return tr("%1 needs: %2").arg(command->name, command->arguments);
    if (command && command->most >= 0 && count > command->most)
        return tr("%1 takes no more than: %2").arg(command->name, command->arguments);
    if (Has("language") && QLocale(m_parser.value("language")).language() == QLocale::C)
        return tr("%1 is no language.").arg(m_parser.value("language"));
    return {};
}

QString Arguments::Overview() const
{
    constexpr int width = 36;
    const auto line = [](const QString& usage, const QString& summary)
    { return QLatin1String("  ") + usage.leftJustified(width) + summary + u'\n'; };
    QString text = tr("Edits the parameters of the processing chains of jobs.") + QLatin1String("\n\n");
    text += line("jobedit [FILE]", tr("edits a job; without a file a new one from the sample"));
    for (const Command& command : m_commands)
        text += line("jobedit " + command.name + ' ' + command.arguments, command.summary);
    text += u'\n' + tr("jobedit COMMAND --help tells more of a command.") + QLatin1String("\n\n");
    return text + tr("Exit status: 0 done; 1 a difference, an error in a job, something not found or refused; 2 wrong "
                     "arguments.");
}

QString Arguments::Help() const
{
    QCommandLineParser parser;
    const Command* command = GetCommand();
    if (command)
    {
        parser.setApplicationDescription(command->help);
        parser.addPositionalArgument(command->name, command->summary, command->name + ' ' + command->arguments);
        parser.addOptions(command->options);
    }
    else
    {
        parser.setApplicationDescription(Overview());
        parser.addPositionalArgument("FILE", tr("Job files."), "[COMMAND] [FILE...]");
    }
    for (const QCommandLineOption& option : GlobalOptions())
        if (!command || command->json || option.names().constFirst() != QLatin1String("json"))
            parser.addOption(option);
    return parser.helpText();
}

} // namespace JOBEDIT
