#include "commandline.h"

#include "application/errorhandler.h"
#include "application/translationcenter.h"
#include "jobdocument.h"
#include "mainwindow.h"
#include "nightcolours.h"
#include "recoveryoffer.h"
#include "render.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTextStream>
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

enum ExitStatus
{
    esGood = 0,
    esFailed = 1,
    esUsage = 2,
};

/// Context of the texts below.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(JOBEDIT::CommandLine)
};

/// The arguments, read once without an application (to know which kind of application is needed) and once with it.
struct Arguments
{
    QCommandLineParser parser;
    QCommandLineOption help{{"h", "help"}, CommandLine::tr("Shows this help.")};
    QCommandLineOption version{{"v", "version"}, CommandLine::tr("Shows the version.")};
    QCommandLineOption out{"out", CommandLine::tr("render: directory that the pictures go into."), "DIR"};
    QCommandLineOption entry{"entry", CommandLine::tr("render: only the dialogs of this entry point or panel."),
                             "NAME"};
    QCommandLineOption form{"form", CommandLine::tr("render: job (when absent) or standalone."), "FORM"};
    QCommandLineOption language{
        "language", CommandLine::tr("Language of the texts and form of numbers, for example de."), "LANGUAGE"};

    Arguments()
    {
        parser.setApplicationDescription(
            CommandLine::tr("Edits the parameters of the processing chains of jobs.\n\n"
                            "  jobedit [FILE]              edits a job; without a file a new one from the sample\n"
                            "  jobedit render [FILE] --out DIR [--entry NAME] [--form job|standalone]\n"
                            "                              writes a picture of every tab of the dialogs\n"
                            "  jobedit check FILE...       checks files; exit status 1 when one has an error"));
        parser.addOptions({help, version, out, entry, form, language});
        parser.addPositionalArgument("command", CommandLine::tr("render or check."), "[render|check]");
        parser.addPositionalArgument("files", CommandLine::tr("Job files."), "[FILE...]");
    }

    QString Command() const
    {
        const QString first = parser.positionalArguments().value(0);
        return first == "render" || first == "check" ? first : QString();
    }
    QStringList Files() const { return parser.positionalArguments().mid(Command().isEmpty() ? 0 : 1); }

    /// What is wrong with the arguments; empty when nothing is.
    QString Fault() const
    {
        const QString command = Command();
        const QStringList files = Files();
        if (command == "check" && files.isEmpty())
            return CommandLine::tr("check needs a file.");
        if (command != "check" && files.size() > 1)
            return CommandLine::tr("One job at a time: %1 files are given.").arg(files.size());
        for (const QCommandLineOption* option : {&out, &entry, &form})
            if (parser.isSet(*option) && command != "render")
                return CommandLine::tr("--%1 belongs to render.").arg(option->names().constFirst());
        if (command == "render" && parser.value(out).isEmpty())
            return CommandLine::tr("render needs --out DIR.");
        if (parser.isSet(entry) && !EntryNames().contains(parser.value(entry)))
            return CommandLine::tr("There is no entry %1. There are: %2.")
                .arg(parser.value(entry), EntryNames().join(", "));
        if (parser.isSet(form) && parser.value(form) != "job" && parser.value(form) != "standalone")
            return CommandLine::tr("--form is job or standalone.");
        if (parser.isSet(language) && QLocale(parser.value(language)).language() == QLocale::C)
            return CommandLine::tr("%1 is no language.").arg(parser.value(language));
        return {};
    }
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

/// Checking, help and a window that has nowhere to open need no window system; rendering draws in memory where there is
/// none.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char* argv[])
{
    QStringList texts;
    for (int index = 0; index < argc; ++index)
        texts << QString::fromLocal8Bit(argv[index]);
    Arguments arguments;
    arguments.parser.parse(texts);
    const bool display = HasDisplay(argc, argv);
    const bool render = arguments.Command() == "render";
    if (arguments.parser.isSet(arguments.help) || arguments.parser.isSet(arguments.version) ||
        arguments.Command() == "check" || (!display && !render))
        return std::make_unique<QCoreApplication>(argc, argv);
    if (!display)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

int CheckFiles(const QStringList& files, QTextStream& errors)
{
    const auto model = JobDocument::ConfiguredModel();
    bool good = model->GetErrors().isEmpty();
    for (const QString& file : files)
        for (const TKE::FileError& error : TKE::JobFile::Check(file, model))
        {
            errors << error.ToText() << '\n';
            good = good && !error.IsError();
        }
    return good ? esGood : esFailed;
}

int RenderFile(const QString& file, const RenderRequest& request, QTextStream& out, QTextStream& errors)
{
    JobDocument document(JobDocument::ConfiguredModel());
    TKE::FileError error;
    const bool loaded =
        file.isEmpty() ? document.NewFromSample(error) : document.Open(file, JobDocument::Access::ReadOnly, error);
    if (!loaded)
    {
        errors << error.ToText() << '\n';
        return esFailed;
    }
    return Render(document.GetNodes(), request, out, errors) ? esGood : esFailed;
}

int Edit(const QString& file)
{
    NightColours::Restore();
    MainWindow window(JobDocument::ConfiguredModel());
    // A file that cannot be opened is reported in the window, which then starts with the sample.
    if (file.isEmpty() || !window.OpenFile(file))
        window.NewFromSample();
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

    Arguments first;
    const bool parsed = first.parser.parse(QCoreApplication::arguments());
    if (first.parser.isSet(first.language))
        QLocale::setDefault(QLocale(first.parser.value(first.language)));
    TKE::TranslationCenter::Instance()->Install(QLocale());

    Arguments arguments; // once more, with the descriptions translated
    arguments.parser.parse(QCoreApplication::arguments());
    const QCommandLineParser& parser = arguments.parser;
    if (parser.isSet(arguments.help))
        return out << parser.helpText(), esGood;
    if (parser.isSet(arguments.version))
        return out << "jobedit " << QCoreApplication::applicationVersion() << '\n', esGood;
    if (const QString fault = parsed ? arguments.Fault() : parser.errorText(); !fault.isEmpty())
    {
        errors << "jobedit: " << fault << '\n' << CommandLine::tr("jobedit --help tells more.") << '\n';
        return esUsage;
    }

    const QStringList files = arguments.Files();
    const bool window = arguments.Command().isEmpty();
    if (window && qobject_cast<QApplication*>(application.get()))
        return Edit(files.value(0));

    const auto reports = TKE::ErrorHandler::Interface().Subscribe(
        [&](const TKE::ErrorReport& report)
        { errors << report.text << (report.details.isEmpty() ? "" : ": ") << report.details << '\n'; });
    if (window)
    {
        errors << CommandLine::tr(
                      "There is no display to open a window on. jobedit render writes the dialogs as pictures.")
               << '\n';
        return esFailed;
    }
    if (arguments.Command() == "check")
        return CheckFiles(files, errors);
    const Form form = parser.value(arguments.form) == "standalone" ? Form::StandAlone : Form::Job;
    return RenderFile(files.value(0), {parser.value(arguments.out), parser.value(arguments.entry), form}, out, errors);
}

} // namespace JOBEDIT
