#include "analysis/classificatordlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"

namespace TKE
{

using namespace Keys;

ClassificatorDlg::ClassificatorDlg(const QString& basePath, bool frequencyOffsetKept, bool symbolRecognition,
                                   bool segmentationOnly, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("ClassificatorDlg"), readOnly, false)
    , m_frequencyOffsetKept(frequencyOffsetKept)
    , m_symbolRecognition(segmentationOnly || symbolRecognition)
    , m_segmentationOnly(segmentationOnly)
{
    SetTranslationNamespace("TKE::ClassificatorDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void ClassificatorDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    rows.CheckBox({0, 0}, QT_TR_NOOP("Auto segmentation"), CLASSIFIER_DDC_AUTO_SEGMENTATION);
    rows.IntSpin({1, 0}, QT_TR_NOOP("Segmentation frequency :"), CLASSIFIER_DDC_SEGMENTATION_FREQUENCY,
                 QT_TR_NOOP("Hz"));
    rows.IntSpin({2, 0}, QT_TR_NOOP("Segmentation bandw. :"), CLASSIFIER_DDC_SEGMENTATION_BANDWIDTH);
    // The unit of the bandwidth stands to the right of its column, that of the frequency to the left: so users know it.
    rows.Label({2, 2}, QT_TR_NOOP("Hz"));
    if (!m_segmentationOnly)
    {
        rows.VerticalLine({0, 3}, 5);
        rows.CheckBox({0, 4}, QT_TR_NOOP("Analog modulation"), CLASSIFIER_DDC_ANALOG_MODULATION);
        rows.CheckBox({1, 4}, QT_TR_NOOP("Multi channel modulation"), CLASSIFIER_DDC_MC_MODULATION);
        if (m_symbolRecognition)
        {
            rows.CheckBox({2, 4}, QT_TR_NOOP("Symbol Recognition"), CLASSIFIER_DDC_SYMBOL_RECOGNITION);
            rows.Label({3, 4}, QT_TR_NOOP("Mod. analysis method :"));
            rows.Combo({4, 4}, nullptr, CLASSIFIER_DDC_MODULATIONANALYSISMETHOD);
            rows.AccessibleName({4, 4}, QT_TR_NOOP("Mod. analysis method :"));
        }
        else
        {
            rows.CheckBox({2, 4}, QT_TR_NOOP("ARQ modulation"), CLASSIFIER_DDC_ARQ_MODULATION);
            rows.CheckBox({3, 4}, QT_TR_NOOP("Multitone modulation"), CLASSIFIER_DDC_MT_MODULATION);
            rows.CheckBox({4, 4}, QT_TR_NOOP("PSK modem"), CLASSIFIER_DDC_PSK_MODULATION);
        }
    }
    DisableUnusedValues();
}

void ClassificatorDlg::DisableUnusedValues()
{
    if (!m_frequencyOffsetKept)
        Enable(DEMODULATOR_HF_DDC_FREQUENCYOFFSET, false, false);
}

} // namespace TKE
