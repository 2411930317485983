#include "commandline.h"

#include "application/errorhandler.h"
#include "commands/arguments.h"
#include "editor.h"
#include "languages.h"
#include "jobdocument.h"
#include "mainwindow.h"
#include "nightcolours.h"
#include "recoveryoffer.h"

#include <QApplication>
#include <QLocale>
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
    Editor editor(JobDocument::ConfiguredModel());
    MainWindow& window = editor.Window();
    // A file that cannot be opened is reported in the window, which then starts with the sample.
    if ((file.isEmpty() || !window.OpenFile(file)) && window.NewFromSample())
        window.OfferHint();
    window.show();
    window.Recovery().OfferAll();
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
    const bool isWindow = !first.GetCommand() && qobject_cast<QApplication*>(application.get());
    if (first.Has("language"))
        Languages::Apply(first.GetParser().value("language"));
    else
        Languages::Apply(isWindow ? Languages::GetChoice() : QString());

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
