#include "analysis/tdsheaderddcdlg.h"

#include "framework/panelrows.h"
#include "keys/keys.h"
#include "valuewidgets/vcbuttongroup.h"

#include <QGridLayout>
#include <memory>

namespace TKE
{

using namespace Keys;

TdsHeaderDDCDlg::TdsHeaderDDCDlg(const QString& basePath, QWidget* parent, bool classifierHeader, bool noFrequencyLock,
                                 bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("TdsHeaderDDCDlg"), readOnly, false)
    , m_classifierHeader(classifierHeader)
    , m_noFrequencyLock(noFrequencyLock)
{
    SetTranslationNamespace("TKE::TdsHeaderDDCDlg");
    BuildPanel();
    SetDefaultStretchFactor();
}

void TdsHeaderDDCDlg::BuildPanel()
{
    PanelRows rows(*this, *Grid());

    if (!m_noFrequencyLock)
        rows.CheckBox({0, 0}, QT_TR_NOOP("Lock frequency"), DDC_LOCK_FREQUENCY_OFFLINE);

    // Made without its builder, which would show the group even when a header has no delayed signal modes.
    auto modes = std::make_unique<VCButtonGroup>(nullptr, DDC_SIGNAL_DELAYED_MODES, Qt::Vertical);
    if (!modes->SetValueSelection_ValuePath(GetBasePath() + DDC_SIGNAL_DELAYED_MODES))
        return;
    modes->setContentsMargins(0, 0, 0, 0);
    modes->setTitle(QString());
    if (IsReadOnly())
        modes->Lock();
    modes->setToolTip(QString());
    modes->setAccessibleName(GetTranslation(QT_TR_NOOP("Delayed signal modes")));
    Grid()->addWidget(modes.release(), 1, 0, 2, 1);
}

} // namespace TKE
