#include "commandline.h"

#include "application/errorhandler.h"
#include "application/translationcenter.h"
#include "commands/command.h"
#include "jobdocument.h"
#include "mainwindow.h"
#include "nightcolours.h"

#include <QApplication>
#include <QLocale>
#include <algorithm>
#include <cstring>

// The catalogues stand in a static library. The macro wants to be outside of any namespace.
static void InitResources()
{
#ifdef JOBEDIT_TRANSLATIONS
    Q_INIT_RESOURCE(ipcparam_translations);
#endif
}

namespace JOBEDIT
{

namespace
{

/// Context of the texts below.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::CommandLine)
};

/// The arguments, read once without an application (to know which kind of application is needed) and once with it.
///
/// The parser knows the options of all commands, so that they may stand anywhere; whether they belong to the command is
/// asked afterwards.
class Arguments
{
public:
    explicit Arguments(const QStringList& texts) : m_commands(MakeCommands())
    {
        for (const QCommandLineOption& option : GlobalOptions())
            m_parser.addOption(option);
        for (const Command& command : m_commands)
            for (const QCommandLineOption& option : command.options)
                if (!m_known.contains(option.names().constFirst()))
                {
                    m_known << option.names().constFirst();
                    m_parser.addOption(option);
                }
        m_parsed = m_parser.parse(texts);
    }

    const QCommandLineParser& GetParser() const { return m_parser; }
    bool Has(const char* option) const { return m_parser.isSet(QLatin1String(option)); }

    /// Null when a window is wanted.
    const Command* GetCommand() const
    {
        const QString name = m_parser.positionalArguments().value(0);
        const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                        [&](const Command& command) { return command.name == name; });
        return found != m_commands.end() ? &*found : nullptr;
    }
    /// Without the command.
    QStringList GetRest() const { return m_parser.positionalArguments().mid(GetCommand() ? 1 : 0); }

    /// What is wrong with the arguments; empty when nothing is.
    QString Fault() const
    {
        if (!m_parsed)
            return m_parser.errorText();
        const Command* command = GetCommand();
        const qsizetype count = GetRest().size();
        if (!command && count > 1)
            return CommandLine::tr("One job at a time: %1 files are given, and %2 is no command.")
                .arg(count)
                .arg(GetRest().constFirst());
        for (const QString& option : m_known)
            if (m_parser.isSet(option) && !(command && Knows(*command, option)))
                return CommandLine::tr("--%1 belongs to %2.").arg(option, OwnersOf(option).join(QLatin1String(", ")));
        if (Has("json") && !(command && command->json))
            return CommandLine::tr("--json belongs to get, list, diff and check.");
        if (command && count < command->fewest)
            return CommandLine::tr("%1 needs: %2").arg(command->name, command->arguments);
        if (command && command->most >= 0 && count > command->most)
            return CommandLine::tr("%1 takes no more than: %2").arg(command->name, command->arguments);
        if (Has("language") && QLocale(m_parser.value("language")).language() == QLocale::C)
            return CommandLine::tr("%1 is no language.").arg(m_parser.value("language"));
        return {};
    }

    QString Help() const
    {
        constexpr int width = 36;
        QCommandLineParser parser;
        const Command* command = GetCommand();
        QString text;
        if (command)
        {
            text = command->help;
            parser.addPositionalArgument(command->name, command->summary, command->name + ' ' + command->arguments);
            parser.addOptions(command->options);
        }
        else
        {
            text = CommandLine::tr("Edits the parameters of the processing chains of jobs.") + "\n\n  " +
                   QStringLiteral("jobedit [FILE]").leftJustified(width) +
                   CommandLine::tr("edits a job; without a file a new one from the sample");
            for (const Command& each : m_commands)
                text += "\n  " + ("jobedit " + each.name + ' ' + each.arguments).leftJustified(width) + each.summary;
            text += "\n\n" + CommandLine::tr("jobedit COMMAND --help tells more of a command.") + "\n\n" +
                    CommandLine::tr("Exit status: 0 done; 1 a difference, an error in a job, something not found or "
                                    "refused; 2 wrong arguments.");
            parser.addPositionalArgument("FILE", CommandLine::tr("Job files."), "[COMMAND] [FILE...]");
        }
        parser.setApplicationDescription(text);
        for (const QCommandLineOption& option : GlobalOptions())
            if (!command || command->json || option.names().constFirst() != QLatin1String("json"))
                parser.addOption(option);
        return parser.helpText();
    }

private:
    static QList<QCommandLineOption> GlobalOptions()
    {
        return {
            {{"h", "help"}, CommandLine::tr("Shows this help.")},
            {{"v", "version"}, CommandLine::tr("Shows the version.")},
            {"json", CommandLine::tr("Prints one JSON document (get, list, diff and check).")},
            {"language", CommandLine::tr("Language of the texts and form of numbers, for example de."), "LANGUAGE"}};
    }
    static bool Knows(const Command& command, const QString& option)
    {
        return std::any_of(command.options.begin(), command.options.end(),
                           [&](const QCommandLineOption& own) { return own.names().contains(option); });
    }
    QStringList OwnersOf(const QString& option) const
    {
        QStringList owners;
        for (const Command& command : m_commands)
            if (Knows(command, option))
                owners << command.name;
        return owners;
    }

    std::vector<Command> m_commands;
    QStringList m_known; // options of commands
    QCommandLineParser m_parser;
    bool m_parsed = false;
};

bool HasDisplay(int argc, char* argv[])
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    for (int index = 1; index < argc; ++index)
        if (std::strcmp(argv[index], "-platform") == 0 || std::strcmp(argv[index], "--platform") == 0)
            return true;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    return false;
#else
    Q_UNUSED(argc)
    Q_UNUSED(argv)
    return true;
#endif
}

/// Only what draws needs a window system; rendering draws in memory where there is none.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char* argv[])
{
    QStringList texts;
    for (int index = 0; index < argc; ++index)
        texts << QString::fromLocal8Bit(argv[index]);
    const Arguments arguments(texts);
    const bool display = HasDisplay(argc, argv);
    const Command* command = arguments.GetCommand();
    const bool draws = command ? command->draws : display;
    if (arguments.Has("help") || arguments.Has("version") || !draws)
        return std::make_unique<QCoreApplication>(argc, argv);
    if (!display)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

int Edit(const QString& file)
{
    NightColours::Restore();
    MainWindow window(JobDocument::ConfiguredModel());
    // A file that cannot be opened is reported in the window, which then starts with the sample.
    if (file.isEmpty() || !window.OpenFile(file))
        window.NewFromSample();
    window.show();
    return QApplication::exec();
}

} // namespace

int RunCommandLine(int argc, char* argv[])
{
    InitResources();
    QCoreApplication::setOrganizationName("ipcparam");
    QCoreApplication::setApplicationName("jobedit");
    QCoreApplication::setApplicationVersion(JOBEDIT_VERSION);
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    QTextStream out(stdout);
    QTextStream errors(stderr);

    const Arguments first(QCoreApplication::arguments());
    if (first.Has("language"))
        QLocale::setDefault(QLocale(first.GetParser().value("language")));
    TKE::TranslationCenter::Instance()->Install(QLocale());

    const Arguments arguments(QCoreApplication::arguments()); // once more, with the texts translated
    if (arguments.Has("help"))
        return out << arguments.Help(), esGood;
    if (arguments.Has("version"))
        return out << "jobedit " << QCoreApplication::applicationVersion() << '\n', esGood;
    const Command* command = arguments.GetCommand();
    if (const QString fault = arguments.Fault(); !fault.isEmpty())
    {
        errors << "jobedit: " << fault << '\n'
               << CommandLine::tr("jobedit %1--help tells more.").arg(command ? command->name + ' ' : QString())
               << '\n';
        return esUsage;
    }
    if (!command && qobject_cast<QApplication*>(application.get()))
        return Edit(arguments.GetRest().value(0));

    const auto reports = TKE::ErrorHandler::Interface().Subscribe(
        [&](const TKE::ErrorReport& report)
        { errors << report.text << (report.details.isEmpty() ? "" : ": ") << report.details << '\n'; });
    if (!command)
    {
        errors << CommandLine::tr(
                      "There is no display to open a window on. jobedit render writes the dialogs as pictures.")
               << '\n';
        return esFinding;
    }
    Call call(*command, arguments.GetParser(), arguments.GetRest(), out, errors);
    const int status = command->run(call);
    out.flush();
    if (out.status() != QTextStream::Ok)
        return call.Refuse(CommandLine::tr("Standard output could not be written."));
    return status;
}

} // namespace JOBEDIT
