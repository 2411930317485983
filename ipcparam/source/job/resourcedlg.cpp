#include "ipcparam/resourcedlg.h"

#include "framework/panelrows.h"
#include "ipcparam/joboptions.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

namespace
{

// Kinds of resources
constexpr QLatin1StringView hfKind{"HF"};
constexpr QLatin1StringView vuhfKind{"VUHF"};
constexpr QLatin1StringView hfWideband{"HF_WB"};
constexpr QLatin1StringView vuhfWideband{"VUHF_WB"};
constexpr QLatin1StringView directionFinder{"DF"};
constexpr QLatin1StringView decoder{"DECODER"};
constexpr QLatin1StringView exciter{"EXCITER"};
constexpr QLatin1StringView recorder{"RECORDER"};

} // namespace

ResourceDlg::ResourceDlg(const QString& basePath, const JobOptions& options, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("ResourceDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::ResourceDlg");
    BuildPanel(options.GetText());
    SetDefaultStretchFactor();
}

void ResourceDlg::BuildPanel(const QString& kind)
{
    PanelRows resource = PanelRows(*this, *Grid(), Binding::Raw).Group({0, 0, 1, 2}, QT_TR_NOOP("Resource"));
    resource.LineEdit({0, 0}, QT_TR_NOOP("Name :"), RESOURCE_NAME, nullptr, false);
    resource.TextLabel({1, 0}, QT_TR_NOOP("Type :"), RESOURCE_TYPE);
    resource.Combo({0, 2}, QT_TR_NOOP("Site :"), RESOURCE_SITE);
    resource.IntSpin({1, 2}, QT_TR_NOOP("Number :"), RESOURCE_COUNT);
    resource.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Exclusive use"), RESOURCE_EXCLUSIVE);
    BuildOptions(kind);
    BuildLicence();

    // Shown, never edited.
    Enable(RESOURCE_NAME, false, true);
    Enable(RESOURCE_LICENCE_VALIDUNTIL, false, true);
}

void ResourceDlg::BuildOptions(const QString& kind)
{
    // Made only for a kind that has options.
    const auto group = [this] { return PanelRows(*this, *Grid(), Binding::Raw).Group({1, 0}, QT_TR_NOOP("Options")); };
    if (kind == hfKind || kind == vuhfKind)
    {
        PanelRows options = group();
        options.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Demodulator"), RESOURCE_OPTION_DEMODULATOR);
        options.CheckBox({1, 0, 1, 2}, QT_TR_NOOP("Decoder"), RESOURCE_OPTION_DECODER);
        options.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Classifier"), RESOURCE_OPTION_CLASSIFIER);
    }
    else if (kind == hfWideband || kind == vuhfWideband)
    {
        PanelRows options = group();
        options.IntSpin({0, 0}, QT_TR_NOOP("DDC channels :"), RESOURCE_OPTION_DDC_COUNT);
        options.CheckBox({1, 0, 1, 2}, QT_TR_NOOP("Signal detection"), RESOURCE_OPTION_DETECTION);
        options.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Short-time detection"), RESOURCE_OPTION_DETECTION_SHORT);
    }
    else if (kind == directionFinder)
    {
        PanelRows options = group();
        options.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Location"), RESOURCE_OPTION_LOCATE);
        options.CheckBox({1, 0, 1, 2}, QT_TR_NOOP("Single station location"), RESOURCE_OPTION_SSL);
    }
    else if (kind == decoder)
        group().IntSpin({0, 0}, QT_TR_NOOP("Decoder channels :"), RESOURCE_OPTION_DECODER_COUNT);
    else if (kind == exciter)
        group().CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Wide-band exciter"), RESOURCE_OPTION_WDE);
    else if (kind == recorder)
        group().IntSpin({0, 0}, QT_TR_NOOP("Storage limit :"), RESOURCE_OPTION_STORAGE_LIMIT, QT_TR_NOOP("GB"));
}

void ResourceDlg::BuildLicence()
{
    const char* title = QT_TR_NOOP("Licence options");
    PanelRows licence = PanelRows(*this, *Grid(), Binding::Raw).Group({1, 1}, title);
    licence.CheckList({0, 0}, nullptr, RESOURCE_LICENCE_OPTIONS, {1, 3});
    licence.AccessibleName({0, 0}, title);
    licence.TimeEdit({1, 0}, QT_TR_NOOP("Valid until :"), RESOURCE_LICENCE_VALIDUNTIL);
    licence.CheckBox({2, 0, 1, 3}, QT_TR_NOOP("Release licence when the job pauses"), RESOURCE_LICENCE_RELEASE);
}

} // namespace TKE
