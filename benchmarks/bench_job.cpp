// Loading and saving a job of a million values against Qt's bare XML reader and writer on the same file.

#include "largejob.h"

#include <QSaveFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using namespace TKE;

namespace
{

const LargeJobFile& Large()
{
    static const LargeJobFile file;
    return file;
}

void Need(bool good, const QString& what)
{
    if (!good)
        throw std::runtime_error(what.toStdString());
}

void Load(JobFile& job)
{
    FileError error;
    Need(job.Load(Large().GetFileName(), &error), error.ToText());
}

double ReadBarely()
{
    return Bench::Time(
        []
        {
            QFile file(Large().GetFileName());
            Need(file.open(QIODevice::ReadOnly), file.errorString());
            QXmlStreamReader reader(&file);
            while (!reader.atEnd())
                benchmark::DoNotOptimize(reader.readNext());
            Need(!reader.hasError(), reader.errorString());
        });
}

// The tree of each turn is emptied outside of the measurement, as an editor does not empty anything while it loads its
// first job.
Bench::Sides Loading()
{
    return {[]
            {
                Tree tree;
                JobFile job(tree);
                const double time = Bench::Time([&] { Load(job); });
                Need(tree.ValueCount() == Large().CountValues(), QStringLiteral("Values are missing."));
                return time;
            },
            ReadBarely};
}

// A figure of this process from the system, in bytes.
double ProcessBytes(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.starts_with(name + ":"))
            return std::stod(line.substr(name.size() + 1)) * 1024;
    }
    throw std::runtime_error("no " + name);
}

// In a process of its own, whose peak is that of the load alone. It begins with all memory given back that others left.
double PeakOfLoad()
{
    Large();
    int ends[2];
    Need(pipe(ends) == 0, QStringLiteral("pipe"));
    const pid_t child = fork();
    if (child == 0)
    {
        malloc_trim(0);
        std::ofstream("/proc/self/clear_refs") << 5; // the peak begins anew
        const double before = ProcessBytes("VmRSS");
        Tree tree;
        JobFile job(tree);
        Load(job);
        const double peak = ProcessBytes("VmHWM") - before;
        const bool told = write(ends[1], &peak, sizeof peak) == sizeof peak;
        _exit(told ? 0 : 1);
    }
    double peak = 0;
    close(ends[1]);
    const bool heard = read(ends[0], &peak, sizeof peak) == sizeof peak;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    Need(heard && status == 0, QStringLiteral("The measuring process failed."));
    return peak / double(Large().CountValues());
}

// What stands in the file, ready to be written again.
struct Token
{
    QXmlStreamReader::TokenType type;
    QString text; // name of an element, or characters
    QXmlStreamAttributes attributes;
};

std::vector<Token> Tokens()
{
    std::vector<Token> tokens;
    QFile file(Large().GetFileName());
    Need(file.open(QIODevice::ReadOnly), file.errorString());
    for (QXmlStreamReader reader(&file); !reader.atEnd();)
    {
        const auto type = reader.readNext();
        if (type == QXmlStreamReader::StartElement)
            tokens.push_back({type, reader.name().toString(), reader.attributes()});
        else if (type == QXmlStreamReader::Characters)
            tokens.push_back({type, reader.text().toString(), {}});
        else if (type == QXmlStreamReader::EndElement)
            tokens.push_back({type, {}, {}});
    }
    return tokens;
}

void WriteBarely(const std::vector<Token>& tokens)
{
    QSaveFile file(Large().GetOtherName());
    Need(file.open(QIODevice::WriteOnly), file.errorString());
    QXmlStreamWriter writer(&file);
    writer.writeStartDocument();
    for (const Token& token : tokens)
    {
        if (token.type == QXmlStreamReader::StartElement)
        {
            writer.writeStartElement(token.text);
            writer.writeAttributes(token.attributes);
        }
        else if (token.type == QXmlStreamReader::Characters)
            writer.writeCharacters(token.text);
        else
            writer.writeEndElement();
    }
    writer.writeEndDocument();
    Need(!writer.hasError() && file.commit(), file.errorString());
}

Bench::Sides Saving()
{
    struct Job
    {
        Tree tree;
        JobFile file{tree};
    };
    auto job = std::make_shared<Job>();
    Load(job->file);
    auto tokens = std::make_shared<std::vector<Token>>(Tokens());
    // Each turn begins without a file, so that neither side keeps the generation before.
    const auto measure = [](const auto& save)
    {
        QFile::remove(Large().GetOtherName());
        const double time = Bench::Time(save);
        // The writers differ in a line break or two beside the root element.
        const qint64 size = QFileInfo(Large().GetFileName()).size();
        Need(std::abs(QFileInfo(Large().GetOtherName()).size() - size) < 10,
             QStringLiteral("The file is not the same."));
        return time;
    };
    return {[=]
            {
                return measure(
                    [&]
                    {
                        FileError error;
                        Need(job->file.SaveAs(Large().GetOtherName(), &error), error.ToText());
                    });
            },
            [=] { return measure([&] { WriteBarely(*tokens); }); }};
}

} // namespace

int main(int argc, char** argv)
{
    QHashSeed::setDeterministicGlobalSeed();
    Bench::TakeOptions(argc, argv);
    using enum Bench::Kind;
    // First, while the process is small.
    Bench::Register({15, "peak bytes a value of loading", Amount, 120, 95}, 2,
                    [] {
                        return Bench::Sides{PeakOfLoad, {}};
                    });
    Bench::Register({14, "load a million values", Share, 1.20, 0.90}, 15, Loading);
    Bench::Register({16, "save a million values", Share, 0.60, 0.30}, 15, Saving);
    const int status = Bench::Run(argc, argv);
    std::printf("%zu values\n", Large().CountValues());
    return status;
}
