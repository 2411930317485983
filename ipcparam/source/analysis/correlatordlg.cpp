#include "analysis/correlatordlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using Keys::Correlator::PatternKey;

namespace
{

constexpr int patternCount = 4;

} // namespace

CorrelatorDlg::CorrelatorDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("CorrelatorDlg"), readOnly, false)
{
    SetTranslationNamespace("TKE::CorrelatorDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void CorrelatorDlg::BuildPanel()
{
    static constexpr const char* titles[patternCount] = {QT_TR_NOOP("Pattern 1"), QT_TR_NOOP("Pattern 2"),
                                                         QT_TR_NOOP("Pattern 3"), QT_TR_NOOP("Pattern 4")};
    PanelRows panel(*this, *Grid());
    for (int i = 0; i < patternCount; ++i)
    {
        PanelRows rows = panel.Group({i / 2 * 2, i % 2 * 2, 2, 2}, titles[i]);
        rows.Combo({0, 0}, QT_TR_NOOP("Name :"), PatternKey(i + 1, Keys::Correlator::PATTERNNAME));
        rows.CheckBox({0, 2}, QT_TR_NOOP("Active"), PatternKey(i + 1, Keys::Correlator::ACTIVE));
        rows.FloatSpin({1, 0}, QT_TR_NOOP("Threshold :"), PatternKey(i + 1, Keys::Correlator::THRESHOLD), 2);
    }
    DisableUnusedValues();
}

void CorrelatorDlg::DisableUnusedValues()
{
    for (int i = 1; i <= patternCount; ++i)
        Enable(PatternKey(i, Keys::Correlator::SYMBOLVALANCY), false, false);
}

} // namespace TKE
