#pragma once

#include "ipcparam/parameterdlg.h"

namespace TKE
{

/// The classifier: automatic segmentation and the classes of modulation that it looks for.
class ClassificatorDlg : public ParameterDlg
{
    Q_OBJECT

public:
    /// `frequencyOffsetKept` leaves the demodulator's frequency offset editable. `symbolRecognition` offers the
    /// recognition of symbols in place of the digital classes. `segmentationOnly` shows the segmentation alone and
    /// implies `symbolRecognition`.
    ClassificatorDlg(const QString& basePath, bool frequencyOffsetKept, bool symbolRecognition, bool segmentationOnly,
                     QWidget* parent, bool readOnly);

    /// Disables the demodulator's frequency offset unless it is kept.
    void DisableUnusedValues();

private:
    void BuildPanel();

    bool m_frequencyOffsetKept;
    bool m_symbolRecognition;
    bool m_segmentationOnly;
};

} // namespace TKE
