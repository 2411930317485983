#include "fieldnavigator.h"

#include "dialogpane.h"
#include "mainwindow.h"
#include "nodepane.h"
#include "valuewidgets/valuelink.h"

#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>
#include <algorithm>

namespace JOBEDIT
{

namespace
{

/// What of the widget takes the keyboard; null when nothing does.
QWidget* FocusTarget(QWidget& widget)
{
    const auto takes = [](const QWidget& candidate)
    { return (candidate.focusPolicy() & Qt::TabFocus) && candidate.isEnabled(); };
    if (QWidget* proxy = widget.focusProxy())
        return proxy;
    if (takes(widget) && !qobject_cast<QGroupBox*>(&widget))
        return &widget;
    QWidget* first = nullptr;
    for (QWidget* child : widget.findChildren<QWidget*>())
    {
        if (!takes(*child))
            continue;
        const auto* button = qobject_cast<QRadioButton*>(child);
        if (!button || button->isChecked())
            return child;
        if (!first)
            first = child;
    }
    return first;
}

/// Whether the user can have `widget` in view: pages that are not in front count, what is hidden otherwise does not.
bool CanBeSeen(const QWidget& widget, const QWidget& dialog)
{
    for (const QWidget* at = &widget; at && at != &dialog; at = at->parentWidget())
        if (at->isHidden() && !qobject_cast<const QStackedWidget*>(at->parentWidget()))
            return false;
    return true;
}

/// A widget that shows the value.
struct Field
{
    QWidget* widget = nullptr;
    bool isUsable = false; ///< it can be edited now
};

/// A widget that can be edited goes first, then one of the page in front. Null when the dialog does not show the value.
Field FindField(const QTabWidget& dialog, const TKE::ValueBase& value)
{
    Field best;
    bool bestIsInFront = false;
    for (QWidget* widget : dialog.findChildren<QWidget*>())
    {
        const auto* link = dynamic_cast<const TKE::ValueLink*>(widget);
        if (!link || link->GetBoundValue() != &value || !CanBeSeen(*widget, dialog))
            continue;
        const bool isInFront = dialog.currentWidget() && dialog.currentWidget()->isAncestorOf(widget);
        const bool isUsable = FocusTarget(*widget) && widget->isEnabledTo(&dialog);
        if (!best.widget || std::pair(isUsable, isInFront) > std::pair(best.isUsable, bestIsInFront))
        {
            best = {widget, isUsable};
            bestIsInFront = isInFront;
        }
    }
    return best;
}

/// False when the field cannot have the keyboard; its tab has it then.
bool Reveal(QWidget& field, QTabWidget& dialog)
{
    for (QWidget* at = &field; at != &dialog; at = at->parentWidget())
        if (auto* stack = qobject_cast<QStackedWidget*>(at->parentWidget()))
        {
            auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
            tabs ? tabs->setCurrentWidget(at) : stack->setCurrentWidget(at);
        }
    // A page that comes to the front for the first time is laid out before it can be scrolled.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QWidget* target = FocusTarget(field);
    const bool isUsable = target && target->isEnabled();
    (isUsable ? target : dialog.tabBar())->setFocus(Qt::TabFocusReason);
    for (QWidget* at = field.parentWidget(); at; at = at->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(at))
            area->ensureWidgetVisible(&field);
    return isUsable;
}

/// Dialogs of one kind show fields of the same names, but for panels that follow a mode.
QString KindOf(const JobNode& node, Form form)
{
    return node.type + ' ' + QString::number(int(node.band)) + QString::number(int(node.dataForm)) +
           QString::number(int(form));
}

} // namespace

int FieldNavigator::HomeOf(const QString& valuePath) const
{
    const std::vector<JobNode>& nodes = m_window.Nodes().GetNodes();
    int home = -1;
    for (int index = 0; index < int(nodes.size()); ++index)
        if (valuePath.startsWith(nodes[size_t(index)].path) &&
            (home < 0 || nodes[size_t(index)].path.size() > nodes[size_t(home)].path.size()))
            home = index;
    return home;
}

std::vector<FieldNavigator::Place> FieldNavigator::Candidates(const TKE::ValueBase& value) const
{
    const std::vector<JobNode>& nodes = m_window.Nodes().GetNodes();
    const Form form = m_window.Dialog().GetForm();
    const Form other = form == Form::Job ? Form::StandAlone : Form::Job;
    std::vector<Place> places;
    QSet<QString> kinds;
    const auto add = [&](const JobNode& node)
    {
        // Nodes of one kind show the same fields of nodes above them: one of them is enough.
        if (!HasDialog(node) || kinds.contains(KindOf(node, form)))
            return;
        kinds << KindOf(node, form);
        places.push_back({node.path, form});
        if (FindChain(node))
            places.push_back({node.path, other});
    };

    const int home = HomeOf(value.GetPathName());
    if (home < 0)
        return places;
    if (HasDialog(nodes[size_t(home)]))
        add(nodes[size_t(home)]);
    // All below it; for a node that nothing below shows, such as that of the spectral zoom, all beside it.
    for (int at = home; at >= 0 && places.empty(); at = nodes[size_t(at)].parent)
    {
        const QString& above = nodes[size_t(at)].path;
        if (const JobNode* current = m_window.Nodes().GetCurrentNode(); current && current->path.startsWith(above))
            add(*current);
        for (const JobNode& node : nodes)
            if (node.path.startsWith(above))
                add(node);
    }
    return places;
}

std::optional<FieldNavigator::Place> FieldNavigator::FindPlace(const QString& valuePath) const
{
    const TKE::Tree& tree = *TKE::Tree::Instance();
    const std::vector<JobNode>& nodes = m_window.Nodes().GetNodes();
    std::optional<Place> seen;
    for (const Place& place : Candidates(*tree.FindValue(valuePath)))
    {
        // Out of sight. Building a dialog may write, and who hears of it may remove the value.
        const auto dialog = MakeDialog(*std::ranges::find(nodes, place.node, &JobNode::path), place.form, nullptr);
        const TKE::ValueBase* value = tree.FindValue(valuePath);
        if (!value)
            return {};
        const Field field = dialog ? FindField(*dialog, *value) : Field();
        // A value that does not apply is disabled in all dialogs: the first one will do.
        if (field.isUsable || (field.widget && value->GetState() != TKE::stEnabled))
            return place;
        if (field.widget && !seen)
            seen = place;
    }
    return seen;
}

bool FieldNavigator::GoTo(const QString& valuePath)
{
    const auto find = [&]
    {
        const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(valuePath);
        const QTabWidget* dialog = m_window.Dialog().GetDialog();
        return value && dialog ? FindField(*dialog, *value) : Field();
    };
    const TKE::ValueBase* value = TKE::Tree::Instance()->FindValue(valuePath);
    if (!value)
        return false;
    Field field = find();
    if (!field.isUsable && !(field.widget && value->GetState() != TKE::stEnabled))
        if (const auto place = FindPlace(valuePath))
        {
            m_window.Dialog().SetForm(place->form);
            m_window.Nodes().SelectNode(place->node);
            field = find();
        }
    if (!field.widget)
        return false;
    if (!Reveal(*field.widget, *m_window.Dialog().GetDialog()))
        m_window.statusBar()->showMessage(tr("%1 is shown, but cannot be edited at the moment.").arg(valuePath), 10000);
    return true;
}

bool FieldNavigator::GoToOrTell(const QString& valuePath)
{
    if (GoTo(valuePath))
        return true;
    if (const int home = HomeOf(valuePath); home >= 0)
    {
        m_window.Nodes().SelectNode(QString(m_window.Nodes().GetNodes()[size_t(home)].path));
        m_window.Nodes().View()->setFocus(Qt::OtherFocusReason);
    }
    m_window.statusBar()->showMessage(tr("No dialog shows %1 at the moment.").arg(valuePath), 10000);
    return false;
}

} // namespace JOBEDIT
