#include "ipcparam/dflocatedlg.h"

#include "framework/panelrules.h"
#include "keys/keys.h"

#include <QGridLayout>

namespace TKE
{

using namespace Keys;

namespace
{

// Items of METHOD
constexpr int triangulation = 0;
constexpr int singleStation = 1;
constexpr int hybrid = 3;
constexpr int periodic = 1; // item of REPETITION

} // namespace

DFLocateDlg::DFLocateDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("DFLocateDlg"), readOnly, false)
    , m_rules(std::make_unique<PanelRules>(*this, Binding::Raw))
{
    SetTranslationNamespace("TKE::DFLocateDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

DFLocateDlg::~DFLocateDlg() = default;

void DFLocateDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Raw);

    PanelRows finding = rows.Group({0, 0}, QT_TR_NOOP("Direction finding"));
    finding.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Direction finding On/Off"), DFLOCATE_DF_ON);
    finding.Combo({1, 0}, QT_TR_NOOP("DF mode :"), DFLOCATE_DF_MODE);
    finding.Combo({2, 0}, QT_TR_NOOP("DF bandwidth :"), DFLOCATE_DF_BANDWIDTH);
    finding.IntSpin({3, 0}, QT_TR_NOOP("Integration time :"), DFLOCATE_INTEGRATIONTIME, QT_TR_NOOP("ms"));
    finding.Combo({4, 0}, QT_TR_NOOP("Averaging :"), DFLOCATE_AVERAGING_MODE);
    finding.IntSpin({5, 0}, QT_TR_NOOP("Level threshold :"), DFLOCATE_LEVEL_THRESHOLD, QT_TR_NOOP("dBµV"));
    finding.IntSpin({6, 0}, QT_TR_NOOP("Quality threshold :"), DFLOCATE_QUALITY_THRESHOLD, QT_TR_NOOP("%"));

    PanelRows location = rows.Group({0, 1}, QT_TR_NOOP("Location"));
    location.CheckBox({0, 0, 1, 2}, QT_TR_NOOP("Location On/Off"), DFLOCATE_LOCATE_ON);
    location.Combo({1, 0}, QT_TR_NOOP("Method :"), DFLOCATE_METHOD);
    location.IntSpin({2, 0}, QT_TR_NOOP("Min. number of bearings :"), DFLOCATE_MIN_BEARINGS);
    location.Combo({3, 0}, QT_TR_NOOP("Repetition :"), DFLOCATE_REPETITION);
    location.IntSpin({4, 0}, QT_TR_NOOP("Interval :"), DFLOCATE_INTERVAL, QT_TR_NOOP("s"));
    location.IntSpin({5, 0}, QT_TR_NOOP("Max. uncertainty :"), DFLOCATE_MAX_UNCERTAINTY, QT_TR_NOOP("km"));
    location.IntSpin({6, 0}, QT_TR_NOOP("Layer height :"), DFLOCATE_LAYER_HEIGHT, QT_TR_NOOP("km"));

    const char* stationsTitle = QT_TR_NOOP("Stations");
    PanelRows stations = rows.Group(stationsTitle);
    if (stations.CheckList({0, 0}, nullptr, DFLOCATE_STATIONS))
    {
        stations.AccessibleName({0, 0}, stationsTitle);
        Grid()->addWidget(stations.Box(), 1, 0, 1, 2);
    }
    else
        delete stations.Box(); // without stations to choose from there is nothing to show

    m_rules->Observe({DFLOCATE_DF_ON, DFLOCATE_LOCATE_ON, DFLOCATE_METHOD, DFLOCATE_REPETITION});
    ApplyRules();
}

void DFLocateDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules->Concerns(source, code))
        ApplyRules();
}

void DFLocateDlg::ApplyRules()
{
    const auto isFinding = m_rules->IsOn(DFLOCATE_DF_ON);
    m_rules->EnableWhile(isFinding, {DFLOCATE_DF_MODE, DFLOCATE_DF_BANDWIDTH, DFLOCATE_INTEGRATIONTIME,
                                     DFLOCATE_AVERAGING_MODE, DFLOCATE_LEVEL_THRESHOLD, DFLOCATE_QUALITY_THRESHOLD});

    const auto isLocating = m_rules->IsOn(DFLOCATE_LOCATE_ON);
    const auto isLocatingWith = [&](const QString& key, std::initializer_list<int> itemKeys)
    { return PanelRules::Both(isLocating, m_rules->IsOneOf(key, itemKeys)); };
    m_rules->EnableWhile(isLocating, {DFLOCATE_METHOD, DFLOCATE_REPETITION, DFLOCATE_MAX_UNCERTAINTY, DFLOCATE_STATIONS});
    m_rules->EnableWhile(isLocatingWith(DFLOCATE_METHOD, {triangulation, hybrid}), {DFLOCATE_MIN_BEARINGS});
    m_rules->EnableWhile(isLocatingWith(DFLOCATE_METHOD, {singleStation}), {DFLOCATE_LAYER_HEIGHT});
    m_rules->EnableWhile(isLocatingWith(DFLOCATE_REPETITION, {periodic}), {DFLOCATE_INTERVAL});
    m_rules->Apply();
}

} // namespace TKE
