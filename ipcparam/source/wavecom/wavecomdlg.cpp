#include "ipcparam/wavecomdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/vccomboboxclassic.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>
#include <array>
#include <utility>

namespace TKE
{

using namespace Keys;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto dataPrefix = "Data/"_L1;
constexpr int modeRow = 3;
constexpr int modeTypeRow = 4;

/// A decoder mode, by the name of its selection item, and the selection that holds its mode type.
struct ModeType
{
    QLatin1StringView modeName;
    QLatin1StringView key;
    QString compositeKey = WAVECOM_DEMODULATOR_HF + u'/' + key;
};

// The mode types of both bands stand under the one node.
const std::array<ModeType, 13> modeTypes{{
    {"FSK"_L1, WAVECOM_DEMODULATOR_HF_FSK_MODTYPE},
    {"Graphic"_L1, WAVECOM_DEMODULATOR_HF_GRAPHIC_MODTYPE},
    {"SELCAL"_L1, WAVECOM_DEMODULATOR_HF_SELCAL_MODTYPE},
    {"MIL-STANAG"_L1, WAVECOM_DEMODULATOR_HF_MILSTANAG_MODTYPE},
    {"McFSK"_L1, WAVECOM_DEMODULATOR_HF_MFSK_MODTYPE},
    {"PSK"_L1, WAVECOM_DEMODULATOR_HF_PSK_MODTYPE},
    {"Analysis"_L1, WAVECOM_DEMODULATOR_HF_ANALYSIS_MODTYPE},
    {"Analysis Indirect"_L1, WAVECOM_DEMODULATOR_VUHF_ANALYSISIND_MODTYPE},
    {"Analysis Direct"_L1, WAVECOM_DEMODULATOR_VUHF_ANALYSISDIR_MODTYPE},
    {"Indirect Modes"_L1, WAVECOM_DEMODULATOR_VUHF_INDIRECT_MODTYPE},
    {"Direct Modes"_L1, WAVECOM_DEMODULATOR_VUHF_DIRECT_MODTYPE},
    {"SELCAL Analog"_L1, WAVECOM_DEMODULATOR_VUHF_SELCALA_MODTYPE},
    {"SELCAL Digital"_L1, WAVECOM_DEMODULATOR_VUHF_SELCALD_MODTYPE},
}};

// Empty for a mode that has no mode type.
QString CompositeKeyOf(const QString& modeName)
{
    const auto found = std::ranges::find(modeTypes, modeName, &ModeType::modeName);
    return found != modeTypes.end() ? found->compositeKey : QString();
}

QWidget* WidgetAt(const QGridLayout& grid, int row, int column)
{
    QLayoutItem* item = grid.itemAtPosition(row, column);
    return item ? item->widget() : nullptr;
}

} // namespace

WavecomDlg::WavecomDlg(const QString& basePath, QWidget* parent, bool dataNode, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("WavecomDlg"), readOnly, false), m_dataNode(dataNode)
{
    SetTranslationNamespace("TKE::WavecomDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

WavecomDlg::~WavecomDlg()
{
    DeleteObserver(m_modeValue);
}

void WavecomDlg::BuildPanel()
{
    m_modeValue = AddObserver(WAVECOM_HF_MODE);
    BuildData();
    BuildOptions();
}

void WavecomDlg::BuildData()
{
    PanelRows rows = PanelRows(*this, *Grid(), m_dataNode ? Binding::Raw : Binding::Mapped).Group(QT_TR_NOOP("Data"));
    m_dataGroup = static_cast<QGroupBox*>(rows.Box());
    m_dataLayout = static_cast<QGridLayout*>(m_dataGroup->layout());
    const auto addSpacer = [this](int row) { AddSpacerItem(10, 10, m_dataLayout, row, 2); };

    // These two lie at the base path in the data-node form, too.
    rows.Combo({0, 0}, QT_TR_NOOP("Workflow :"), WAVECOM_HF_WORKFLOW);
    addSpacer(0);
    rows.Combo({1, 0}, QT_TR_NOOP("Show expert GUI :"), WAVECOM_HF_SHOWEXPERTGUI);
    addSpacer(1);
    rows.CheckBox({2, 1}, QT_TR_NOOP("Display metadata"), DataKey(WAVECOM_HF_DISPLAYMETADATA));
    addSpacer(2);
    rows.Combo({modeRow, 0}, QT_TR_NOOP("Decoder mode :"), DataKey(WAVECOM_HF_MODE));
    addSpacer(modeRow);
    rows.Label({modeTypeRow, 0}, QT_TR_NOOP("Decoder mode type:"));
    CreateSpecificPart();
    addSpacer(modeTypeRow);
    Grid()->addWidget(m_dataGroup, 0, 0, 1, 3);
}

void WavecomDlg::BuildOptions()
{
    PanelRows rows =
        PanelRows(*this, *Grid(), m_dataNode ? Binding::Raw : Binding::Mapped).Group(QT_TR_NOOP("Options"));
    rows.CheckBox({0, 0}, QT_TR_NOOP("Professional modes"), DataKey(WAVECOM_HF_OPTIONPROFESSIONALMODES));
    rows.CheckBox({1, 0}, QT_TR_NOOP("Satellite modes"), DataKey(WAVECOM_HF_OPTIONSATELLITEMODES));
    rows.CheckBox({2, 0}, QT_TR_NOOP("Classifier"), DataKey(WAVECOM_HF_OPTIONCLASSIFIER));
    Grid()->addWidget(rows.Box(), 0, 4, 1, 3);
}

// A mode without mode type gets a combo box all the same, which is bound to nothing.
void WavecomDlg::CreateSpecificPart()
{
    const QString key = CompositeKeyOf(GetSelectedValue(WAVECOM_HF_MODE));
    if (!m_dataGroup || !m_dataLayout)
        return;
    const bool hadFocus = m_modeTypeCombo && m_modeTypeCombo == window()->focusWidget();
    delete std::exchange(m_modeTypeCombo, nullptr);
    m_modeTypeCombo = AddComboFromVT(m_dataLayout, modeTypeRow, 1, 1, 1, DataKey(key), m_dataNode);
    m_modeTypeCombo->show();

    if (auto* label = qobject_cast<QLabel*>(WidgetAt(*m_dataLayout, modeTypeRow, 0)))
        label->setBuddy(m_modeTypeCombo);
    // A widget made later comes last in the window; below the mode is where this one belongs.
    if (QWidget* mode = WidgetAt(*m_dataLayout, modeRow, 1))
        setTabOrder(mode, m_modeTypeCombo);
    if (hadFocus)
        m_modeTypeCombo->setFocus();
}

QString WavecomDlg::DataKey(const QString& key) const
{
    return m_dataNode ? dataPrefix + key : key;
}

QString WavecomDlg::GetItemPath(const QString& key)
{
    if (!m_dataNode)
        return ParameterDlg::GetItemPath(key);
    // The options are missing here, though their check boxes stand under "Data/": callers find them where the base
    // looks.
    const bool isData = key == WAVECOM_HF_WORKFLOW || key == WAVECOM_HF_SHOWEXPERTGUI ||
                        key == WAVECOM_HF_DISPLAYMETADATA || key == WAVECOM_HF_MODE ||
                        std::ranges::find(modeTypes, key, &ModeType::compositeKey) != modeTypes.end();
    return isData ? GetBasePath() + dataPrefix + key : ParameterDlg::GetItemPath(key);
}

void WavecomDlg::Update(Observable* source, TChangeCode code)
{
    if (code == ccContent)
        CreateSpecificPart();
    else if (m_modeValue && source == m_modeValue && m_modeValue->GetState() == stReleased)
        m_modeValue = nullptr; // it goes away before the panel does
}

} // namespace TKE
