#include "scan/memoryscandlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/readername.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>

namespace TKE
{

using namespace Keys;

namespace
{

constexpr int listHeight = 180; // pixels

// The columns of the channels.
constexpr const char* headers[] = {
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "No."),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "On"),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "Frequency [kHz]"),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "IF bandwidth"),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "Demodulation"),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "Threshold [dBµV]"),
    QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "AFC"),
};
constexpr const char* megahertzHeader = QT_TRANSLATE_NOOP("TKE::MemoryScanDlg", "Frequency [MHz]");
constexpr int frequencyColumn = 2;
constexpr int hfColumns = 6; // only V/UHF has an AFC

} // namespace

MemoryScanDlg::MemoryScanDlg(const QString& basePath, int channelCount, bool jobContext, bool vuhf, QWidget* parent,
                             bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("MemoryScanDlg"), readOnly, false)
    , m_channelCount(channelCount)
    , m_jobContext(jobContext)
    , m_vuhf(vuhf)
    , m_prefix(vuhf ? MEMORYSCAN_VUHF_ : MEMORYSCAN_HF_)
    , m_rules(*this, Binding::Raw)
{
    SetTranslationNamespace("TKE::MemoryScanDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void MemoryScanDlg::BuildPanel()
{
    BuildScan();
    BuildTuner();
    BuildChannels();

    m_rules.Observe({m_prefix + MemoryScan::DWELLTIME_CHECK});
    ApplyRules();
}

void MemoryScanDlg::BuildScan()
{
    PanelRows scan = PanelRows(*this, *Grid(), Binding::Raw).Group({0, 0}, QT_TR_NOOP("Scan"));
    scan.IntSpin({0, 0}, QT_TR_NOOP("Scan dwelltime :"), m_prefix + MemoryScan::DWELLTIME, QT_TR_NOOP("ms"));
    scan.CheckBox({0, 3}, QT_TR_NOOP("infinite"), m_prefix + MemoryScan::DWELLTIME_CHECK);
    scan.IntSpin({1, 0}, QT_TR_NOOP("Hold time :"), m_prefix + MemoryScan::HOLDTIME, QT_TR_NOOP("ms"));
    scan.Combo({2, 0}, QT_TR_NOOP("Direction :"), m_prefix + MemoryScan::DIRECTION);
    scan.IntSpin({3, 0}, QT_TR_NOOP("Cycles :"), m_prefix + MemoryScan::CYCLES);
    if (m_jobContext)
        scan.CheckBox({4, 0, 1, 2}, QT_TR_NOOP("Start with the job"), m_prefix + MemoryScan::AUTOSTART);
}

void MemoryScanDlg::BuildTuner()
{
    PanelRows tuner = PanelRows(*this, *Grid(), Binding::Raw).Group({0, 1}, QT_TR_NOOP("Tuner"));
    tuner.Combo({0, 0}, QT_TR_NOOP("Gain :"), m_prefix + MemoryScan::GAIN_CTRL_MODE);
    tuner.IntSpin({1, 0}, QT_TR_NOOP("Value :"), m_prefix + MemoryScan::MGCVALUE, QT_TR_NOOP("dB"));
    if (m_vuhf)
    {
        tuner.Combo({2, 0}, QT_TR_NOOP("Attenuation mode :"), m_prefix + MemoryScan::ATTENUATION_MODE);
        tuner.IntSpin({3, 0}, QT_TR_NOOP("Attenuation value :"), m_prefix + MemoryScan::ATTENUATION_MANUAL_VALUE,
                      QT_TR_NOOP("dB"));
    }
    else
        tuner.CheckBox({2, 0, 1, 2}, QT_TR_NOOP("Preamplifier On/Off"), m_prefix + MemoryScan::PREAMPLIFIER_STATUS);
}

void MemoryScanDlg::BuildChannels()
{
    const char* title = QT_TR_NOOP("Channels");
    PanelRows rows = PanelRows(*this, *Grid(), Binding::Raw).Group({1, 0, 1, 2}, title);
    auto* area = new QScrollArea(rows.Box());
    area->setObjectName(QStringLiteral("MEMORYSCAN_CHANNELS"));
    area->setWidgetResizable(true);
    area->setMinimumHeight(listHeight);
    static_cast<QGridLayout*>(rows.Box()->layout())->addWidget(area, 0, 0);
    rows.AccessibleName({0, 0}, title);

    auto* content = new QWidget(area);
    auto* grid = new QGridLayout(content);
    PanelRows header(*this, *grid, Binding::Raw);
    for (int column = 0; column < (m_vuhf ? hfColumns + 1 : hfColumns); ++column)
        header.Unit({0, column}, m_vuhf && column == frequencyColumn ? megahertzHeader : headers[column]);
    for (int channel = 1; channel <= m_channelCount; ++channel)
        BuildChannel(*grid, channel);
    grid->setRowStretch(grid->rowCount(), 1);
    area->setWidget(content);
}

void MemoryScanDlg::BuildChannel(QGridLayout& grid, int channel)
{
    PanelRows rows(*this, grid, Binding::Raw);
    const auto key = [&](QLatin1StringView piece) { return MemoryScan::ChannelKey(m_prefix, channel, piece); };

    AddLeftLabel(&grid, channel, 0, 1, 1, QString::number(channel));
    rows.CheckBox({channel, 1}, "", key(MemoryScan::STATUS));
    rows.LineEditFrequency({channel, frequencyColumn}, nullptr, key(MemoryScan::FREQUENCY), !m_vuhf);
    rows.Combo({channel, 3}, nullptr, key(MemoryScan::IFBANDWIDTH));
    rows.Combo({channel, 4}, nullptr, key(MemoryScan::ANALOGDEMOD_METHOD));
    rows.IntSpin({channel, 5}, nullptr, key(MemoryScan::THRESHOLD));
    if (m_vuhf)
        rows.CheckBox({channel, hfColumns}, "", key(MemoryScan::AFC_ON));
    for (int column = 1; column < grid.columnCount(); ++column)
    {
        const auto* header = static_cast<QLabel*>(grid.itemAtPosition(0, column)->widget());
        ReaderName::Set(*grid.itemAtPosition(channel, column)->widget(), header->text() + u' ' + QString::number(channel));
    }
}

void MemoryScanDlg::Update(Observable* source, TChangeCode code)
{
    if (m_rules.Concerns(source, code))
        ApplyRules();
}

void MemoryScanDlg::ApplyRules()
{
    m_rules.EnableWhile(m_rules.IsOff(m_prefix + MemoryScan::DWELLTIME_CHECK), {m_prefix + MemoryScan::DWELLTIME});
    m_rules.Apply();
}

} // namespace TKE
