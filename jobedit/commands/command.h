#pragma once

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>
#include <vector>

namespace JOBEDIT
{

enum ExitStatus
{
    esGood = 0,
    esFinding = 1, ///< a difference, an error in a job, something not found or refused
    esUsage = 2,   ///< the arguments are wrong
};

/// Context of the texts of all commands.
class Commands
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::Commands)
};

class Call;

/// A command of the command line. All that the program knows about it stands here.
struct Command
{
    QString name;
    QString arguments;  ///< as the help shows them
    QString summary;    ///< one line
    QString help;       ///< what else there is to know
    int fewest = 0;     ///< arguments
    int most = -1;      ///< -1: any number
    bool json = false;  ///< understands --json
    bool draws = false; ///< needs fonts and pictures
    QList<QCommandLineOption> options{};
    int (*run)(Call& call) = nullptr;
};

/// In the order of the help, with their texts in the language of now.
std::vector<Command> MakeCommands();

/// One run of a command: its arguments and options, and where it writes.
class Call
{
public:
    Call(const Command& command, const QCommandLineParser& parser, QStringList arguments, QTextStream& out,
         QTextStream& errors)
        : m_command(command), m_parser(parser), m_arguments(std::move(arguments)), m_out(out), m_errors(errors)
    {
    }

    const QStringList& GetArguments() const { return m_arguments; }
    QString GetArgument(qsizetype index) const { return m_arguments.value(index); }
    bool Has(const char* option) const { return m_parser.isSet(QLatin1String(option)); }
    QString GetValue(const char* option) const { return m_parser.value(QLatin1String(option)); }
    bool WantsJson() const { return Has("json"); }

    QTextStream& Out() { return m_out; }       ///< results
    QTextStream& Errors() { return m_errors; } ///< messages

    /// Says why the command cannot do what it is asked for, and returns the exit status for that.
    int Refuse(const QString& reason);
    int Misuse(const QString& reason);

private:
    const Command& m_command;
    const QCommandLineParser& m_parser;
    QStringList m_arguments;
    QTextStream& m_out;
    QTextStream& m_errors;
};

// One file each.
Command MakeCheck();
Command MakeDiff();
Command MakeGet();
Command MakeList();
Command MakeNew();
Command MakePlan();
Command MakeRender();
Command MakeReport();
Command MakeSet();

} // namespace JOBEDIT
