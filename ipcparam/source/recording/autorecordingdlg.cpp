#include "ipcparam/autorecordingdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/vcbuttongroup.h"

#include <QGridLayout>
#include <QPointer>
#include <QPushButton>

namespace TKE
{

using namespace Keys;

AutoRecordingDlg::AutoRecordingDlg(const QString& basePath, QWidget* parent, bool recordResultsOnly, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("AutoRecordingDlg"), readOnly, false)
    , m_recordResultsOnly(recordResultsOnly)
{
    SetTranslationNamespace("TKE::AutoRecordingDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void AutoRecordingDlg::BuildPanel()
{
    BuildTargets();
    if (!m_recordResultsOnly)
        BuildTrigger();
    SetEnabledDisabled();
}

void AutoRecordingDlg::BuildTargets()
{
    PanelRows rows = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Automatic Recording for"));
    Grid()->addWidget(rows.Box(), 0, 0, 1, 3);
    if (m_recordResultsOnly)
    {
        rows.CheckBox({0, 0}, QT_TR_NOOP("Record Results"), AUTORECORDING_RECORDRESULTS);
        return;
    }

    rows.CheckBox({0, 0}, QT_TR_NOOP("Audio"), AUTORECORDING_AUDIO);
    rows.CheckBox({1, 0}, QT_TR_NOOP("Amrec"), AUTORECORDING_AMREC);
    rows.CheckBox({0, 1}, QT_TR_NOOP("Bitstream"), AUTORECORDING_BITSTREAM);
    rows.CheckBox({1, 1}, QT_TR_NOOP("Decoded Text"), AUTORECORDING_DECODED_TEXT);
    rows.CheckBox({0, 2}, QT_TR_NOOP("Transmission Systems"), AUTORECORDING_TRANSMISSION_SYS);
    rows.CheckBox({1, 2}, QT_TR_NOOP("FAX"), AUTORECORDING_FAX);
    rows.Combo({2, 1}, nullptr, AUTORECORDING_FFM_OR_SCAN);
    rows.AccessibleName({2, 1}, QT_TR_NOOP("Fixed frequency or scan"));

    // No builder makes this group: it has neither margins nor title, and stays enabled whatever the choice of FFM or
    // scan.
    auto* grid = static_cast<QGridLayout*>(rows.Box()->layout());
    auto* scanType = new VCButtonGroup(rows.Box(), AUTORECORDING_SCAN_TYPE, Qt::Vertical);
    scanType->SetValueSelection_ValuePath(GetBasePath() + AUTORECORDING_SCAN_TYPE);
    scanType->setContentsMargins(0, 0, 0, 0);
    scanType->setTitle(QString());
    if (IsReadOnly())
        scanType->Lock();
    grid->addWidget(scanType, 2, 2, 2, 1);
    rows.AccessibleName({2, 2}, QT_TR_NOOP("Scan type"));

    auto* selectAll = new QPushButton(GetTranslation(QT_TR_NOOP("Select all")), rows.Box());
    selectAll->setObjectName(AUTORECORDING_RECORD_ALL);
    connect(selectAll, &QPushButton::clicked, this, &AutoRecordingDlg::Slot_OnRecordAllPressed);
    grid->addWidget(selectAll, 2, 0);

    auto* deselectAll = new QPushButton(GetTranslation(QT_TR_NOOP("Deselect all")), rows.Box());
    deselectAll->setObjectName(AUTORECORDING_DESELECT_ALL);
    connect(deselectAll, &QPushButton::clicked, this, &AutoRecordingDlg::Slot_OnDeselectAllPressed);
    grid->addWidget(deselectAll, 3, 0);
}

void AutoRecordingDlg::BuildTrigger()
{
    PanelRows rows = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Trigger by"));
    Grid()->addWidget(rows.Box(), 1, 0, 1, 3);

    rows.Combo({0, 0, 1, 2}, QT_TR_NOOP("TriggerMode :"), AUTORECORDING_TRIGGER_MODE, nullptr, {1, 2});
    rows.IntSpin({0, 4, 1, 2}, QT_TR_NOOP("Reappearance Time :"), AUTORECORDING_REAPPEARANCE_TIME, QT_TR_NOOP("s"));
    rows.Line({1, 0}, 8);
    rows.Combo({2, 0}, nullptr, AUTORECORDING_EVENT_TRIGGER_FIRST, nullptr, {1, 3});
    rows.AccessibleName({2, 0}, QT_TR_NOOP("First event"));
    rows.Combo({2, 3}, nullptr, AUTORECORDING_AND_OR);
    rows.AccessibleName({2, 3}, QT_TR_NOOP("Combination of the events"));
    rows.Combo({2, 4}, nullptr, AUTORECORDING_EVENT_TRIGGER_SECOND, nullptr, {1, 3});
    rows.AccessibleName({2, 4}, QT_TR_NOOP("Second event"));
    rows.Unit({2, 7}, ""); // keeps the column of the units aligned
    rows.IntSpin({3, 0, 1, 3}, QT_TR_NOOP("Threshold :"), AUTORECORDING_THRESHOLD, QT_TR_NOOP("dB"));
}

// No widget of this panel depends on another's value.
void AutoRecordingDlg::SetEnabledDisabled() {}

// The two slots reach the same choice by different paths, on purpose: one by the key as it stands, the other by its
// full name.
void AutoRecordingDlg::Slot_OnRecordAllPressed()
{
    SetAll(true, true);
}

void AutoRecordingDlg::Slot_OnDeselectAllPressed()
{
    SetAll(false, false);
}

void AutoRecordingDlg::SetAll(bool record, bool fromBase)
{
    const QPointer<AutoRecordingDlg> self(this); // who hears of a write may rebuild the dialog
    SetSelection(AUTORECORDING_FFM_OR_SCAN, QStringLiteral("FFM"), fromBase);
    for (const QLatin1StringView key :
         {AUTORECORDING_BITSTREAM, AUTORECORDING_DECODED_TEXT, AUTORECORDING_TRANSMISSION_SYS, AUTORECORDING_FAX,
          AUTORECORDING_AUDIO, AUTORECORDING_AMREC})
    {
        if (!self)
            return;
        SetChecked(key, record, true);
    }
}

} // namespace TKE
