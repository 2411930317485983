#include "ipcparam/alarmconditionsspdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

#include <QGridLayout>
#include <QLabel>

namespace TKE
{

using namespace Keys;

AlarmConditionsSPDlg::AlarmConditionsSPDlg(const QString& basePath, QWidget* parent)
    : ParameterDlg(basePath, parent, QStringLiteral("AlarmConditionsSPDlg"), false, false)
{
    SetTranslationNamespace("TKE::AlarmConditionsSPDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void AlarmConditionsSPDlg::BuildPanel()
{
    AddCondition(
        1, QT_TR_NOOP("Minimal percentage of bursts that have to be within the profile frequency range > threshold :"),
        MATCHEDFREQUENCIES_CHECK, MATCHEDFREQUENCIES);
    AddCondition(
        2, QT_TR_NOOP("Maximal percentage of bursts that may be outside of the profile frequency range > threshold :"),
        ADDITIONALFREQUENCIES_CHECK, ADDITIONALFREQUENCIES);
    AddCondition(3, QT_TR_NOOP("Minimal percentage of bursts that match the profile frequency list > threshold :"),
                 MATCHEDSEPERATEFREQUENCIES_CHECK, MATCHEDSEPERATEFREQUENCIES);
    AddCondition(4, QT_TR_NOOP("Minimal percentage of bursts that have to match the profile modulation > threshold :"),
                 MATCHEDBURSTSWITHMODULATION_CHECK, MATCHEDBURSTSWITHMODULATION);
    AddCondition(5, QT_TR_NOOP(" Maximal percentage of time slots that contain no bursts > threshold :"),
                 TIMESLOTSWITHOUTBURST_CHECK, TIMESLOTSWITHOUTBURST);
    Grid()->setColumnStretch(0, 10); // most of the room that is left is the questions'
}

// The switch stands under the full name of its key, the threshold under the key as it is.
void AlarmConditionsSPDlg::AddCondition(int row, const char* question, const QString& switchKey,
                                        const QString& thresholdKey)
{
    PanelRows(*this, *Grid(), Binding::Mapped).Switch({row, 0}, question, switchKey);
    PanelRows threshold(*this, *Grid(), Binding::Raw);
    threshold.IntSpin({row, 2}, nullptr, thresholdKey, QT_TR_NOOP("%"));
    threshold.AccessibleName({row, 2}, question);
    // The questions are long: they wrap, the longest into two lines where that is possible.
    if (QLayoutItem* item = Grid()->itemAtPosition(row, 0))
    {
        if (auto* label = qobject_cast<QLabel*>(item->widget()))
        {
            label->setWordWrap(true);
            label->setMinimumWidth(50 * label->fontMetrics().averageCharWidth());
        }
    }
}

} // namespace TKE
