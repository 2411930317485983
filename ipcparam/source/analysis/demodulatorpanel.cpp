#include "analysis/demodulatorpanel.h"

#include "keys/keys.h"
#include "widgets/vclistboxnumeric.h"

#include <QGridLayout>
#include <QSpacerItem>
#include <algorithm>

namespace TKE
{

namespace
{

/// Tags of the panels with so few rows that no line stands below their type row.
bool IsSmall(const QString& tag)
{
    static constexpr QLatin1StringView small[] = {
        QLatin1StringView("MORSE"),  QLatin1StringView("SSTV"),  QLatin1StringView("HELLSCHREIBER"),
        QLatin1StringView("PR"),     QLatin1StringView("HCARQ"), QLatin1StringView("SELCAL"),
        QLatin1StringView("ICAO"),   QLatin1StringView("DTMF"),  QLatin1StringView("ZVEI_VDEW"),
        QLatin1StringView("FMSBOS"), QLatin1StringView("ATIS"),  QLatin1StringView("POCSAG"),
        QLatin1StringView("WEFAX"),  QLatin1StringView("MPT"),   QLatin1StringView("AIS"),
        QLatin1StringView("FLEX"),   QLatin1StringView("ACARS")};
    return std::ranges::find(small, tag) != std::end(small);
}

/// Nothing stands on both sides of the separator in a small panel, nor where one side is empty: ASK has no rows of its
/// own, F7W no common ones.
bool HasSeparator(const QString& tag)
{
    return !IsSmall(tag) && tag != QLatin1String("ASK") && tag != QLatin1String("F7W");
}

/// Width that keeps the specific rows of panels without wide common rows where those of the others stand.
int LeftSpacerWidth(const QString& tag)
{
    // "SELECTIVE CALL" is the name of a demodulation, whose tag is "SELCAL", and never a tag itself; kept beside it.
    const bool wide = tag == QLatin1String("MORSE") || tag == QLatin1String("F7W") ||
                      tag == QLatin1String("SELECTIVE CALL") || tag == QLatin1String("SELCAL");
    return wide ? 200 : 150;
}

} // namespace

DemodulatorPanel::DemodulatorPanel(const QString& basePath, QWidget* parent, bool readOnly, const QString& demodulation)
    : ParameterDlg(basePath, parent, QStringLiteral("DemodulatorPanel"), readOnly, true), m_demodulation(demodulation)
{
    SetTranslationNamespace("TKE::DemodulatorPanel");
}

void DemodulatorPanel::Init(bool vuhf)
{
    BuildCommonRows(vuhf);
    // The subclass has a translation context of its own, called like the class.
    SetTranslationNamespace(metaObject()->className());
    BuildSpecificRows();

    PanelRows rows(*this, *Grid());
    const QString tag = GetModulationTag();
    if (HasSeparator(tag))
        rows.VerticalLine({2, 4});
    if (tag != QLatin1String("MULTITONE") && tag != QLatin1String("F7W"))
        rows.Line({1, 0}, GetLineSpan());
    SetDefaultStretchFactor();
}

void DemodulatorPanel::BuildCommonRows(bool)
{
    using namespace Keys::Demodulator;
    PanelRows rows(*this, *Grid());
    const QString tag = GetModulationTag();

    if (HasModType())
        rows.Combo({2, 0, 1, 2}, QT_TR_NOOP("Type:"), MODTYPE);
    else if (HasSSTVMode())
        rows.Combo({2, 0, 1, 2}, QT_TR_NOOP("Type:"), SSTVMODE);
    if (HasVariant())
        rows.Combo({2, 5}, QT_TR_NOOP("Variant :"), MODVARIANT);

    int row = 2;
    if (!IsSmall(tag))
        rows.Line({++row, 0}, GetLineSpan());
    if (HasBaudRate())
        rows.FloatSpin({++row, 0, 1, 2}, QT_TR_NOOP("Baud rate :"), BAUDRATE, 2, QT_TR_NOOP("Bd"));
    if (HasBaudRateCaptureRange())
        rows.FloatSpin({++row, 0, 1, 2}, QT_TR_NOOP("Baud rate capture range :"), BAUDRATECAPTURERANGE, 2);
    if (HasTrackingRanges())
    {
        rows.FloatSpin({++row, 0, 1, 2}, QT_TR_NOOP("Baud rate tracking range :"), BAUDRATETRACKINGRANGE, 2);
        rows.FloatSpin({++row, 0, 1, 2}, QT_TR_NOOP("Freq. offset tracking range :"), FREQUENCYOFFSETTRACKINGRANGE, 2);
    }
    if (HasSideband())
        rows.Combo({++row, 0, 1, 2}, QT_TR_NOOP("Sideband :"), SIDEBAND);
    if (HasPrimaryModulation())
    {
        rows.Combo({++row, 0, 1, 2}, QT_TR_NOOP("Primary modulation :"), PRIMARYMODULATION);
        rows.Combo({++row, 0, 1, 2}, QT_TR_NOOP("Primary mod. bandwidth:"), PRIMARYMODULATIONBANDWIDTH);
    }
    if (HasAFCenterFrequency())
        rows.FloatSpin({++row, 0, 1, 2}, QT_TR_NOOP("AF center frequency :"), AFCENTERFREQUENCY, 2, QT_TR_NOOP("Hz"));

    ++row;
    AddSpacerItem(LeftSpacerWidth(tag), 10, Grid(), row, 0);
    Grid()->addItem(new QSpacerItem(200, 10, QSizePolicy::Expanding, QSizePolicy::Minimum), row, 6, 1, 4);
}

QString DemodulatorPanel::BuildFinalKey(const QString& key) const
{
    return (m_vuhf ? Keys::DEMODULATOR_VUHF_ : Keys::DEMODULATOR_HF_DDC_) + GetModulationTag() + QLatin1Char('_') + key;
}

void DemodulatorPanel::SetDefaultStretchFactor()
{
    Grid()->setRowStretch(Grid()->rowCount() + 1, 1);
    Grid()->setColumnStretch(GetLineSpan() + 1, 1);
}

QWidget* DemodulatorPanel::AddSpacingList(Cell cell, const QString& key, int minRows, int maxRows, FactorType factor,
                                          int side)
{
    VCListBoxNumeric* list = AddListBoxFromVT(Grid(), cell.row, cell.column, cell.rowSpan, cell.columnSpan, key, 1,
                                              minRows, maxRows, false, {QString()}, factor, false);
    list->setColumnWidth(0, list->sizeHint().width() - 15);
    list->setFixedSize(side, side);
    return list;
}

} // namespace TKE
