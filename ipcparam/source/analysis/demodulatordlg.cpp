#include "analysis/demodulatordlg.h"

#include "analysis/demodulatorpanel.h"
#include "analysis/demodulatorscroller.h"
#include "framework/panelrows.h"
#include "keys/keys.h"

#include <QEvent>
#include <QGridLayout>
#include <QWheelEvent>
#include <utility>

namespace TKE
{

namespace
{
constexpr QRect panelGeometry(0, 40, 600, 400); // a panel whose rows need more gets more
constexpr Cell offsetCell{0, 7};
} // namespace

DemodulatorDlg::DemodulatorDlg(const QString& basePath, bool vuhf, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, QStringLiteral("DemodulatorDlg"), readOnly, false)
    , m_vuhf(vuhf)
    , m_modulationTypeKey(vuhf ? Keys::DEMODULATOR_VUHF_MODTYPE : Keys::DEMODULATOR_HF_DDC_MODTYPE)
    , m_modulationType(this)
    , m_scroller(new DemodulatorScroller(this))
{
    SetTranslationNamespace("TKE::DemodulatorDlg");
}

void DemodulatorDlg::BuildPanel()
{
    // The top row has to end where the panel begins.
    layout()->setContentsMargins(0, 0, 0, 0);
    Grid()->setContentsMargins(9, 3, 9, 3);

    GetValuePtr(m_modulationType, m_modulationTypeKey);
    PanelRows rows(*this, *Grid());
    AddSpacerItem(50, 10, Grid(), 0, 0);
    rows.Combo({0, 1, 1, 2}, QT_TR_NOOP("Demodulation:"), m_modulationTypeKey);
    AddSpacerItem(50, 10, Grid(), 0, 4);
    rows.IntSpin({0, 5, 1, 2}, QT_TR_NOOP("Frequency offset:"),
                 m_vuhf ? Keys::DEMODULATOR_VUHF_FREQUENCYOFFSET : Keys::DEMODULATOR_HF_DDC_FREQUENCYOFFSET,
                 QT_TR_NOOP("Hz"));
    CreatePanel();
    SetDefaultStretchFactor();
}

void DemodulatorDlg::Update(Observable* source, TChangeCode code)
{
    ParameterDlg::Update(source, code);
    if (code == ccContent && m_modulationType && source == m_modulationType.Get())
        CreatePanel();
}

void DemodulatorDlg::CreatePanel()
{
    const QString demodulation = GetSelectedValue(m_modulationTypeKey);
    delete std::exchange(m_currentPanel, nullptr);
    m_currentPanel = CreateDemodulatorPanel(demodulation, GetBasePath(), m_vuhf, this, IsReadOnly());
    if (m_currentPanel)
    {
        m_currentPanel->setGeometry(panelGeometry);
        ChainTabOrder();
    }
    setMinimumSize(600, 400);
    if (isVisible()) // otherwise the size is not known before the dialog is shown
        PlacePanel();
    if (m_currentPanel)
    {
        // While the dialog is hidden the panel is not laid out yet, since its size will be another.
        QLayout* layout = m_currentPanel->layout();
        layout->setEnabled(isVisible());
        m_currentPanel->show();
        layout->setEnabled(true);
    }
}

void DemodulatorDlg::PlacePanel()
{
    if (!m_currentPanel)
    {
        m_scroller->Clear();
        return;
    }
    // A large font makes the top row higher than the panel allows for.
    const int rowEnd = Grid()->parentWidget()->mapTo(this, Grid()->cellRect(0, 0).bottomLeft()).y() + 1;
    const int top = qMax(panelGeometry.top(), rowEnd);
    m_scroller->Place(*m_currentPanel, rect().adjusted(0, top, 0, 0), panelGeometry.size());
}

void DemodulatorDlg::ChainTabOrder()
{
    QLayoutItem* offset = Grid()->itemAtPosition(offsetCell.row, offsetCell.column);
    QWidget* before = offset ? offset->widget() : nullptr;
    if (!before)
        return;
    // A widget made later comes last in the window; behind the top row is where this one belongs.
    for (QWidget* widget : m_currentPanel->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
    {
        if (!(widget->focusPolicy() & Qt::TabFocus))
            continue;
        setTabOrder(before, widget);
        before = widget;
    }
}

QSize DemodulatorDlg::sizeHint() const
{
    const QSize topRow = ParameterDlg::sizeHint();
    if (!m_currentPanel)
        return topRow;
    const QSize panel = m_currentPanel->sizeHint();
    return {qMax(topRow.width(), panel.width()), qMax(topRow.height(), panelGeometry.top()) + panel.height()};
}

bool DemodulatorDlg::event(QEvent* event)
{
    const bool handled = ParameterDlg::event(event);
    switch (event->type())
    {
    case QEvent::Resize:
    case QEvent::Show:
        PlacePanel();
        break;
    case QEvent::LayoutRequest:
        if (isVisible()) // a page behind others need not measure itself
            PlacePanel();
        break;
    case QEvent::Wheel:
        m_scroller->Wheel(static_cast<QWheelEvent*>(event));
        break;
    default:
        break;
    }
    return handled;
}

} // namespace TKE
