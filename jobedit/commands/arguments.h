#pragma once

#include "command.h"

namespace JOBEDIT
{

/// What the program was started with: a command with its arguments and options, or a file for the window.
///
/// The options of all commands are known together, so that they may stand anywhere; whether they belong to the command
/// is asked afterwards.
class Arguments
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::CommandLine)

public:
    explicit Arguments(const QStringList& texts);

    const QCommandLineParser& GetParser() const { return m_parser; }
    bool Has(const char* option) const { return m_parser.isSet(QLatin1String(option)); }

    /// Null when a window is wanted.
    const Command* GetCommand() const;
    /// The arguments without the command.
    QStringList GetRest() const { return m_parser.positionalArguments().mid(GetCommand() ? 1 : 0); }

    /// What is wrong with the arguments; empty when nothing is.
    QString Fault() const;
    /// Of the command, if there is one.
    QString Help() const;

private:
    QStringList OwnersOf(const QString& option) const;
    QString Overview() const;

    std::vector<Command> m_commands;
    QStringList m_known; ///< options of commands
    QCommandLineParser m_parser;
    bool m_parsed = false;
};

} // namespace JOBEDIT
