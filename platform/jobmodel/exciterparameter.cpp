#include "jobmodel/exciterparameter.h"

#include "jobmodel/jobmodelreader.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <algorithm>

namespace TKE
{

using namespace Qt::StringLiterals;

namespace
{

// The place where the file speaks of the group for the first time; none when it does not.
FileError AtGroup(const QString& fileName, const QString& groupName)
{
    FileError error{.file = fileName, .itemPath = groupName};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return error;
    const QByteArray content = file.readAll();
    const qsizetype position = content.indexOf('"' + groupName.toUtf8() + '"');
    if (position < 0)
        return error;
    error.line = 1 + std::count(content.begin(), content.begin() + position, '\n');
    error.column = position - content.lastIndexOf('\n', position);
    return error;
}

} // namespace

struct ExciterParameter::Content
{
    Content(const QString& file, std::shared_ptr<const JobModel> from, Band band)
        : model(std::move(from))
        , mode(*model, band, u"G_EXC_MODE"_s, {Keys::ExciterMode, Keys::ExciterAutostart})
        , smu(*model, band)
        , scu(*model, band)
        , wde(*model, band)
        , scanSettings(*model, band)
        , wdeExciter(*model, band)
        , rasterDetector(*model, band)
        , singleChannelDetector(*model, band)
        , simulation(*model, band)
    {
        const FileErrors& errors = model->GetErrors();
        const auto error = std::find_if(errors.begin(), errors.end(), std::mem_fn(&FileError::IsError));
        errorText = error != errors.end() ? error->ToText() : MissingText(file);
    }

    QString MissingText(const QString& file) const
    {
        for (const ExciterParameterGroup* group :
             std::initializer_list<const ExciterParameterGroup*>{&mode, &smu, &scu, &wde, &scanSettings, &wdeExciter,
                                                                 &rasterDetector, &singleChannelDetector, &simulation})
        {
            const QStringList& missing = group->GetMissing();
            if (missing.isEmpty())
                continue;
            FileError error = AtGroup(file, group->GetName());
            error.reason = JobModelReader::tr("Missing parameters: %1").arg(missing.join(u", "_s));
            return error.ToText();
        }
        return {};
    }

    std::shared_ptr<const JobModel> model;
    ExciterParameterGroup mode;
    SMUParameter smu;
    SCUParameter scu;
    WDEParameter wde;
    ExciterScanParameter scanSettings;
    WDEExciterParameter wdeExciter;
    RasterDetectorParameter rasterDetector;
    SingleChannelDetectorParameter singleChannelDetector;
    SimulationParameter simulation;
    QString errorText;
};

std::shared_ptr<ExciterParameter::Content> ExciterParameter::Load(const QString& file, Band band)
{
    // What is kept here keeps its model, so an unchanged file gives the same model again.
    static QHash<QString, std::shared_ptr<Content>> loaded;
    auto model = JobModel::LoadFiles({file});
    std::shared_ptr<Content>& content = loaded[file];
    if (!content || content->model != model)
        content = std::make_shared<Content>(file, std::move(model), band);
    return content;
}

ExciterParameter::ExciterParameter(const QString& xmlDirectory, bool vuhf)
    : m_content(Load(QDir(xmlDirectory.isEmpty() ? u":/models"_s : xmlDirectory)
                         .filePath(vuhf ? u"exciter_vuhf.xml"_s : u"exciter_hf.xml"_s),
                     vuhf ? Band::Vuhf : Band::Hf))
{
}

ExciterParameter::~ExciterParameter() = default;

const QString& ExciterParameter::GetLoadErrorText() const
{
    return m_content->errorText;
}

JOBXMLGENERATOR::Parameter& ExciterParameter::ExciterMode() const
{
    return m_content->mode.Get(Keys::ExciterMode);
}

JOBXMLGENERATOR::Parameter& ExciterParameter::Autostart() const
{
    return m_content->mode.Get(Keys::ExciterAutostart);
}

SMUParameter& ExciterParameter::SMU() const
{
    return m_content->smu;
}

SCUParameter& ExciterParameter::SCU() const
{
    return m_content->scu;
}

WDEParameter& ExciterParameter::WDE() const
{
    return m_content->wde;
}

ExciterScanParameter& ExciterParameter::ScanSettings() const
{
    return m_content->scanSettings;
}

WDEExciterParameter& ExciterParameter::WDEExciter() const
{
    return m_content->wdeExciter;
}

RasterDetectorParameter& ExciterParameter::RasterDetector() const
{
    return m_content->rasterDetector;
}

SingleChannelDetectorParameter& ExciterParameter::SingleChannelDetector() const
{
    return m_content->singleChannelDetector;
}

SimulationParameter& ExciterParameter::Simulation() const
{
    return m_content->simulation;
}

} // namespace TKE
