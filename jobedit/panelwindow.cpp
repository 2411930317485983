#include "panelwindow.h"

#include "value/tree.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace JOBEDIT
{

PanelWindow::PanelWindow(const JobNode& node, const DirectPanel& panel, QWidget* parent)
    : QDialog(parent), m_node(node), m_panel(panel)
{
    setAttribute(Qt::WA_DeleteOnClose);
    if (const TKE::Node* own = TKE::Tree::Instance()->FindNode(m_node.path); own && !own->GetValues().empty())
        m_value.Reset(own->GetValues().front().get());
    m_hasValues = bool(m_value);
    setWindowTitle(tr("%1 - %2").arg(node.path, QCoreApplication::translate("JOBEDIT::DirectPanels", panel.title)));
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(MakePanels(node, {&panel}, area->viewport()).release());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    // Return in a field commits the field; it does not close the window.
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
    const QSize frame(40, 70); // scroll bar, margins and buttons
    resize(area->widget()->sizeHint().expandedTo({500, 300}).boundedTo({1200, 800}) + frame);
}

void PanelWindow::MakeAgain(QWidget* parent) const
{
    auto* again = new PanelWindow(m_node, m_panel, parent);
    again->restoreGeometry(saveGeometry());
    again->show();
}

bool PanelWindow::IsAlive() const
{
    return TKE::Tree::Instance()->FindNode(m_node.path) && bool(m_value) == m_hasValues;
}

} // namespace JOBEDIT
