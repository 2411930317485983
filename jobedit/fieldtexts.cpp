#include "fieldtexts.h"

#include "value/valueselection.h"
#include "valuewidgets/showntext.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QTranslator>
#include <memory>

namespace JOBEDIT
{

namespace
{

/// The catalogues of all languages, beside the one that is installed.
const std::vector<std::unique_ptr<QTranslator>>& Catalogues()
{
    static const auto catalogues = []
    {
        const QDir directory(QStringLiteral(":/translations"));
        std::vector<std::unique_ptr<QTranslator>> loaded;
        for (const QString& name : directory.entryList({QStringLiteral("ipcparam_*.qm")}))
            if (auto translator = std::make_unique<QTranslator>(); translator->load(directory.filePath(name)))
                loaded.push_back(std::move(translator));
        return loaded;
    }();
    return catalogues;
}

/// Panels end most labels with " :".
QString Bare(QString text)
{
    while (text.endsWith(':') || text.endsWith(' '))
        text.chop(1);
    return text;
}

/// One label: its texts in all languages, and a text of a panel that says the same.
struct Label
{
    QStringList texts;
    const char* context = nullptr; ///< null: no panel has such a text
    QByteArray source;
};

Label MakeLabel(const QString& label)
{
    const QString bare = Bare(label);
    Label made{{bare}, nullptr, {}};
    QByteArrayList sources;
    for (const QString& spelling : {label, bare, bare + " :", bare + ':'})
        if (!sources.contains(spelling.toUtf8()))
            sources << spelling.toUtf8();
    for (const auto& catalogue : Catalogues())
        for (const char* context : FieldTexts::Contexts())
            for (const QByteArray& source : sources)
            {
                const QString translated = catalogue->translate(context, source.constData());
                if (translated.isEmpty())
                    continue;
                if (!made.texts.contains(Bare(translated)))
                    made.texts << Bare(translated);
                if (!made.context)
                {
                    made.context = context;
                    made.source = source;
                }
            }
    return made;
}

const Label& FindLabel(const QString& label)
{
    static QHash<QString, Label> labels;
    auto found = labels.find(label);
    if (found == labels.end())
        found = labels.insert(label, MakeLabel(label));
    return *found;
}

} // namespace

const QList<const char*>& FieldTexts::Contexts()
{
    static const QList<const char*> contexts{
        "TKE::ActivityGenerationDlg",
        "TKE::AlarmConditionsSPDlg",
        "TKE::AntennaDlg",
        "TKE::AutoRecordingDlg",
        "TKE::ClassificatorDlg",
        "TKE::CorrelatorDlg",
        "TKE::DFLocateDlg",
        "TKE::DecoderDlg",
        "TKE::DemodulatorDlg",
        "TKE::DemodulatorPanel",
        "TKE::DemodulatorPanelF7W",
        "TKE::DemodulatorPanelFSK",
        "TKE::DemodulatorPanelGMSK",
        "TKE::DemodulatorPanelMFSK",
        "TKE::DemodulatorPanelMORSE",
        "TKE::DemodulatorPanelMPSK",
        "TKE::DemodulatorPanelMT",
        "TKE::DemodulatorPanelPSK",
        "TKE::DemodulatorPanelProcedural",
        "TKE::DetectionDlg",
        "TKE::DetectionShortDlg",
        "TKE::ExciterGeneralDlg",
        "TKE::ExciterSCUDlg",
        "TKE::ExciterSMUDlg",
        "TKE::ExciterScanSettingsDlg",
        "TKE::ExciterWDEDlg",
        "TKE::FFTDataDlg",
        "TKE::GeneralDlg",
        "TKE::JobDlg",
        "TKE::MemoryScanDlg",
        "TKE::ResourceDlg",
        "TKE::ScanDlg",
        "TKE::ShorttimeProfileDlg",
        "TKE::ShorttimeProfileHeaderDlg",
        "TKE::SigTrackingControlDlg",
        "TKE::SpectralZoomDlg",
        "TKE::SurveillanceDlg",
        "TKE::TdsHeaderDDCDlg",
        "TKE::TdsHeaderMSDlg",
        "TKE::TdsHeaderWBDlg",
        "TKE::TunerDDCDlg",
        "TKE::TunerDlg",
        "TKE::TunerExternalDlg",
        "TKE::TunerVUHFDlg",
        "TKE::TunerWBDlg",
        "TKE::TunerWBRXDlg",
        "TKE::WBRXScanDlg",
        "TKE::WDEExciterDlg",
        "TKE::WDERasterDetectorDlg",
        "TKE::WDESimulationDlg",
        "TKE::WDESingleChannelDetectorDlg",
        "TKE::WavecomDlg",
    };
    return contexts;
}

QString FieldTexts::Label(const TKE::ValueBase& value)
{
    const TKE::ValueDescriptor& descriptor = value.GetDescriptor();
    if (descriptor.label.isEmpty())
        return descriptor.description.isEmpty() ? value.GetName() : descriptor.description;
    return Label(descriptor);
}

QString FieldTexts::Label(const TKE::ValueDescriptor& descriptor)
{
    if (descriptor.label.isEmpty())
        return {};
    const auto& label = FindLabel(descriptor.label);
    return label.context ? Bare(QCoreApplication::translate(label.context, label.source.constData()))
                         : label.texts.constFirst();
}

QStringList FieldTexts::Labels(const TKE::ValueDescriptor& descriptor)
{
    return descriptor.label.isEmpty() ? QStringList() : FindLabel(descriptor.label).texts;
}

QString FieldTexts::Content(const TKE::ValueBase& value)
{
    QString text = TKE::ShownText::Of(value, QLocale());
    if (value.GetKind() == TKE::ValueKind::Bool)
        return value.GetBool() ? QCoreApplication::translate("JOBEDIT::FieldTexts", "on")
                               : QCoreApplication::translate("JOBEDIT::FieldTexts", "off");
    if (value.GetKind() == TKE::ValueKind::Selection)
    {
        const auto& selection = static_cast<const TKE::ValueSelection&>(value);
        if (selection.IsMultiple())
        {
            QStringList names;
            for (const int key : selection.GetKeys())
            {
                const TKE::SelectionItem* item = selection.FindItem(key);
                names << (item ? item->GetName() : QString::number(key));
            }
            text = names.join(QStringLiteral(", "));
        }
    }
    const QString& unit = value.GetDescriptor().unit;
    // Some items name the unit themselves.
    return text.isEmpty() || unit.isEmpty() || text.endsWith(unit) ? text : text + ' ' + unit;
}

} // namespace JOBEDIT
