#include "ipcparam/activitygenerationdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

#include <QGridLayout>
#include <QGroupBox>

namespace TKE
{

using namespace Keys;

ActivityGenerationDlg::ActivityGenerationDlg(const QString& itemPath, QWidget* parent, bool hasEnergy, bool hasLevel,
                                             bool hasConventionalDetection, bool readOnly)
    : ParameterDlg(GetParentPath(itemPath), parent, QStringLiteral("ActivityGenerationDlg"), readOnly, false)
    , m_hasEnergy(hasEnergy)
    , m_hasLevel(hasLevel)
    , m_hasConventionalDetection(hasConventionalDetection)
{
    SetTranslationNamespace("TKE::ActivityGenerationDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

// The detectors stand in column 0, the session above the database in column 1.
void ActivityGenerationDlg::BuildPanel()
{
    if (m_hasLevel)
        BuildLevel(0);
    if (m_hasEnergy)
        BuildEnergy(m_hasLevel ? 1 : 0);
    if (m_hasConventionalDetection)
        BuildConventionalDetection();
    if (HasSession())
        BuildSession(0);
    BuildDatabase(HasSession() ? 1 : 0);

    // All groups together have to fit into the least size of the host.
    layout()->setContentsMargins(6, 2, 6, 2);
    for (QGroupBox* box : findChildren<QGroupBox*>())
    {
        box->layout()->setContentsMargins(6, 2, 6, 2);
        static_cast<QGridLayout*>(box->layout())->setVerticalSpacing(2);
    }
}

void ActivityGenerationDlg::BuildLevel(int row)
{
    PanelRows level = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Level"));
    level.FloatSpin({0, 0}, QT_TR_NOOP("Min. Burst Duration :"), LevelMinBurstDuration, 1, QT_TR_NOOP("s"));
    level.FloatSpin({1, 0}, QT_TR_NOOP("Max. Break Duration :"), LevelMaxBreakDuration, 1, QT_TR_NOOP("s"));
    Grid()->addWidget(level.Box(), row, 0);
}

// The chain of energy, digital demodulator and classifier, in three groups from `row` on.
void ActivityGenerationDlg::BuildEnergy(int row)
{
    const PanelRows rows(*this, *Grid(), Binding::Raw);

    PanelRows energy = rows.Group(QT_TR_NOOP("Energy"));
    energy.Combo({0, 0}, QT_TR_NOOP("Production Channel :"), EnergyChannel);
    Grid()->addWidget(energy.Box(), row, 0);

    PanelRows ddem = rows.Group(QT_TR_NOOP("DDem"));
    ddem.Combo({0, 0}, QT_TR_NOOP("Criteria :"), DDemActiveCriteria);
    ddem.FloatSpin({1, 0}, QT_TR_NOOP("Min. Burst Duration :"), DDemMinBurstDuration, 1, QT_TR_NOOP("s"));
    ddem.FloatSpin({2, 0}, QT_TR_NOOP("Max. Break Duration :"), DDemMaxBreakDuration, 1, QT_TR_NOOP("s"));
    ddem.IntSpin({3, 0}, QT_TR_NOOP("Morse Quality Threshold :"), DDemMorseQualityThreshold, QT_TR_NOOP("%"));
    Grid()->addWidget(ddem.Box(), row + 1, 0);

    PanelRows classifier = rows.Group(QT_TR_NOOP("Classifier"));
    classifier.IntSpin({0, 0}, QT_TR_NOOP("Interm. Classification Score :"), ClassIntermScore);
    classifier.IntSpin({1, 0}, QT_TR_NOOP("Final Classification Score :"), ClassFinalScore);
    classifier.IntSpin({2, 0}, QT_TR_NOOP("Start Score :"), ClassStartScore);
    classifier.IntSpin({3, 0}, QT_TR_NOOP("Stop Score :"), ClassStopScore);
    classifier.IntSpin({4, 0}, QT_TR_NOOP("Min. Classification Confidence :"), ClassMinConfidence, QT_TR_NOOP("%"));
    Grid()->addWidget(classifier.Box(), row + 2, 0);
}

// Stays a child of the panel outside of its grid, as hosts have always known it.
void ActivityGenerationDlg::BuildConventionalDetection()
{
    PanelRows detection = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Detection Conventional"));
    detection.FloatSpin({0, 0}, QT_TR_NOOP("Min. Burst Duration :"), DetConvMinBurstDuration, 1, QT_TR_NOOP("s"));
}

void ActivityGenerationDlg::BuildSession(int row)
{
    PanelRows session = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Session"));
    session.IntSpin({0, 0}, QT_TR_NOOP("Session Close Time :"), SessionCloseTime, QT_TR_NOOP("s"));
    session.Switch({1, 0}, QT_TR_NOOP("Restart Attachments On Session Close :"), RestartAttachmentsOnSessionClose);
    Grid()->addWidget(session.Box(), row, 1, 1, 1);
}

void ActivityGenerationDlg::BuildDatabase(int row)
{
    PanelRows database = PanelRows(*this, *Grid(), Binding::Raw).Group(QT_TR_NOOP("Database"));
    // The master switch of the whole activity generation.
    database.Switch({0, 0}, QT_TR_NOOP("Write to Database :"), ACTIVITY_GENERATION_ON);
    database.Switch({1, 0}, QT_TR_NOOP("Cut at Locations :"), CutAtLocations);
    int next = 2;
    if (!HasSession())
        database.IntSpin({next++, 0}, QT_TR_NOOP("Session Close Time :"), SessionCloseTime, QT_TR_NOOP("s"));
    if (m_hasEnergy)
    {
        database.Line({next, 0}, 2);
        database.Switch({next + 1, 0}, QT_TR_NOOP("Write Energy Results :"), DbWriteEnergy);
        database.Combo({next + 2, 0}, QT_TR_NOOP("Write DDem Results :"), DbWriteDDem);
        database.Combo({next + 3, 0}, QT_TR_NOOP("Write Classifier Results :"), DbWriteClass);
    }
    Grid()->addWidget(database.Box(), row, 1, 2, 1);
}

} // namespace TKE
