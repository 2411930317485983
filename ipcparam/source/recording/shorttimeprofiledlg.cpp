#include "ipcparam/shorttimeprofiledlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/readername.h"
#include "valuewidgets/vccheckbox.h"
#include "widgets/vclistboxnumeric.h"

#include <QGridLayout>
#include <QLabel>

namespace TKE
{

using namespace Keys;

namespace
{
constexpr double kiloHertz = 1000.0; // stored in Hz
} // namespace

ShorttimeProfileDlg::ShorttimeProfileDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("ShorttimeProfileDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::ShorttimeProfileDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void ShorttimeProfileDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid(), Binding::Raw);
    rows.LineEdit({0, 0}, QT_TR_NOOP("Date of creation :"), FIRSTEDITDATETIME, nullptr, false, {1, 3});
    rows.LineEdit({1, 0}, QT_TR_NOOP("Last modification :"), LASTEDITDATETIME, nullptr, false, {1, 3});
    rows.LineEdit({2, 0}, QT_TR_NOOP("Creating operator :"), CREATINGOPERATOR, nullptr, false, {1, 3});
    rows.LineEdit({3, 0}, QT_TR_NOOP("Modifying operator :"), MODIFIYINGOPERATOR, nullptr, false, {1, 3});
    BuildRequiredParameters();
    BuildBandwidth();
    rows.VerticalLine({0, 7});
    BuildFrequencies();
    SetEnabledDisabled();
}

void ShorttimeProfileDlg::BuildRequiredParameters()
{
    PanelRows rows = PanelRows(*this, *Grid(), Binding::Mapped).Group(QT_TR_NOOP("Required Parameters"));
    auto* grid = static_cast<QGridLayout*>(rows.Box()->layout());
    Grid()->addWidget(rows.Box(), 4, 0, 5, 4);

    rows.Unit({0, 0}, QT_TR_NOOP("Burst Length Min."));
    rows.FloatSpin({0, 1}, nullptr, MINBURSTLENGTH, 6, QT_TR_NOOP("s"));
    rows.Unit({1, 0}, QT_TR_NOOP("Burst Length Max."));
    rows.FloatSpin({1, 1}, nullptr, MAXBURSTLENGTH, 6, QT_TR_NOOP("s"));
    // The same in every language, as "1/s" is.
    AddCheckBoxFromVT(grid, 2, 0, 1, 3, USEHOPPINGRATE, QStringLiteral("Use Hoprate for Matching"), false);
    rows.Unit({3, 0}, QT_TR_NOOP("Hop Rate"));
    rows.FloatSpin({3, 1}, nullptr, NOMINALHOPPINGRATE, 6);
    AddLeftLabel(grid, 3, 2, 1, 1, QStringLiteral("1/s"));
    rows.Unit({4, 0}, QT_TR_NOOP("Burst Count Min."));
    rows.IntSpin({4, 1}, nullptr, MINBURSTCOUNT);

    // The labels at the left margin are none of the rows'; they still name the editors beside them.
    for (const int row : {0, 1, 3, 4})
    {
        auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
        label->setBuddy(grid->itemAtPosition(row, 1)->widget());
    }
}

void ShorttimeProfileDlg::BuildBandwidth()
{
    // The same in every language.
    AddCheckBoxFromVT(Grid(), 9, 0, 1, 4, USEBANDWIDTH, QStringLiteral(R"(Bandwidth (Min\Nominal\Max))"), false);
    PanelRows rows(*this, *Grid(), Binding::Raw);
    rows.LineEditFrequency({10, 0}, nullptr, MINBANDWIDTH, false);
    rows.LineEditFrequency({10, 1}, nullptr, NOMINALBANDWIDTH, false);
    rows.LineEditFrequency({10, 2}, nullptr, MAXBANDWIDTH, false);
    rows.AccessibleName({10, 0}, QT_TR_NOOP("Minimum bandwidth"));
    rows.AccessibleName({10, 1}, QT_TR_NOOP("Nominal bandwidth"));
    rows.AccessibleName({10, 2}, QT_TR_NOOP("Maximum bandwidth"));
}

// No switch enables or disables what it is about.
void ShorttimeProfileDlg::BuildFrequencies()
{
    PanelRows switches(*this, *Grid(), Binding::Mapped);
    PanelRows rows(*this, *Grid(), Binding::Raw);

    switches.CheckBox({0, 8}, "", USEFREQUENCY);
    switches.AccessibleName({0, 8}, QT_TR_NOOP("Use the frequency limits"));
    rows.LineEditFrequency({0, 9}, QT_TR_NOOP("Min frequency :"), MINFREQUENCY, false);
    rows.LineEdit({0, 11}, QT_TR_NOOP("Chs. :"), NUMBEROFCHANNELS);
    rows.LineEditFrequency({1, 9}, QT_TR_NOOP("Max frequency :"), MAXFREQUENCY, false);

    switches.CheckBox({2, 8}, "", USEHOPSTEP);
    switches.AccessibleName({2, 8}, QT_TR_NOOP("Use the hop step"));
    rows.LineEditFrequency({2, 9}, QT_TR_NOOP("Max hopstep :"), MAXHOPSTEP, false);
    rows.LineEdit({3, 9}, QT_TR_NOOP("Modulation type :"), MODULATIONTYPE, nullptr, false, {1, 3});

    switches.CheckBox({4, 8}, "", USEFREQUENCYSETTBL);
    switches.AccessibleName({4, 8}, QT_TR_NOOP("Use the frequency list"));
    QLabel* label = rows.Label({4, 9}, QT_TR_NOOP("Freq. list [kHz] :"));
    ReaderName::FromLabel(*label, *AddListBoxFromVT(Grid(), 4, 10, 5, 3, FREQUENCYSETTBL, 1, 0, 50, false,
                                                    {GetTranslation(QT_TR_NOOP("Frequency"))}, kiloHertz, false));
}

void ShorttimeProfileDlg::SetEnabledDisabled()
{
    Enable(FIRSTEDITDATETIME, false, true);
    Enable(LASTEDITDATETIME, false, true);
    Enable(CREATINGOPERATOR, false, true);
    Enable(MODIFIYINGOPERATOR, false, true);
    Enable(NUMBEROFCHANNELS, false, true);
    Enable(MODULATIONTYPE, false, true);
}

} // namespace TKE
