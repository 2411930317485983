#include "reuseactions.h"

#include "dialogpane.h"
#include "longact.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "namedialog.h"
#include "nodepane.h"
#include "presetdialog.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QShortcut>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeView>

namespace JOBEDIT
{

ReuseActions::ReuseActions(MainWindow& window) : QObject(&window), m_window(window)
{
    QMenu* menu = window.EditMenu();
    menu->addSeparator();
    menu->addAction(tr("Copy &Tab's Parameters"), this, &ReuseActions::CopyTab)
        ->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    QAction* copy = menu->addAction(tr("Copy C&hain's Parameters"), this, &ReuseActions::CopyChain);
    QAction* paste = menu->addAction(tr("Past&e Parameters into Selected Chains"), this, &ReuseActions::Paste);
    paste->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_V);
    window.NodeMenu()->addSeparator();
    window.NodeMenu()->addActions({copy, paste});
    m_presetMenu = menu->addMenu(tr("Preset&s"));
    connect(m_presetMenu, &QMenu::aboutToShow, this, &ReuseActions::FillPresetMenu);
    FillPresetMenu();

    // In the tree, the usual keys mean the whole chain; in a field they mean its text.
    QTreeView* tree = window.Nodes().View();
    connect(new QShortcut(QKeySequence::Copy, tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            &ReuseActions::CopyChain);
    connect(new QShortcut(QKeySequence::Paste, tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            &ReuseActions::Paste);
}

void ReuseActions::CopyTab()
{
    ToClipboard(TabParameters());
}

void ReuseActions::CopyChain()
{
    ToClipboard(ChainParameters());
}

void ReuseActions::Paste()
{
    QString reason;
    if (const auto set = ParameterSet::FromMimeData(QGuiApplication::clipboard()->mimeData(), reason))
        Apply(*set, tr("Paste Parameters"));
    else
        Tell(reason);
}

void ReuseActions::ApplyPreset(const QString& name)
{
    QString reason;
    if (const auto set = m_presets.Load(name, reason))
        return Apply(*set, tr("Apply Preset %1").arg(name));
    const QString text = tr("The preset %1 could not be read.").arg(name);
    m_window.Messages().Add(TKE::Severity::Error, text, reason);
    QMessageBox::warning(&m_window, tr("Presets"), text + "\n\n" + reason);
}

void ReuseActions::FillPresetMenu()
{
    m_presetMenu->clear();
    m_presetMenu->addAction(tr("Save &Tab as Preset..."), this, [this] { SaveAsPreset(TabParameters()); });
    m_presetMenu->addAction(tr("Save &Chain as Preset..."), this, [this] { SaveAsPreset(ChainParameters()); });
    m_presetMenu->addAction(tr("&Manage Presets..."), this,
                            [this]
                            {
                                auto* dialog = new PresetDialog(&m_window);
                                connect(dialog, &PresetDialog::Chosen, this, &ReuseActions::ApplyPreset);
                                dialog->show();
                            });
    m_presetMenu->addSeparator();
    for (const QString& name : m_presets.GetNames())
        m_presetMenu->addAction(QString(name).replace('&', "&&"), this, [this, name] { ApplyPreset(name); });
}

void ReuseActions::SaveAsPreset(const std::optional<ParameterSet>& set)
{
    if (!set)
        return;
    const QString name = NameDialog::Ask(
        tr("Save as Preset"), tr("&Name of the preset with %1 parameters:").arg(set->parameters.size()), set->type,
        [this](const QString& wanted) { return m_presets.NameFault(wanted); }, &m_window);
    if (name.isEmpty())
        return;
    if (m_presets.Contains(name))
    {
        QString damage;
        const QString text =
            m_presets.Load(name, damage)
                ? tr("There is a preset %1 already. Replace it?").arg(name)
                : tr("There is a preset %1 already, which is damaged: %2\n\nReplace it?").arg(name, damage);
        if (QMessageBox::question(&m_window, tr("Save as Preset"), text) != QMessageBox::Yes)
            return;
    }
    QString reason;
    if (m_presets.Save(name, *set, reason))
        return Tell(tr("The preset %1 was saved with %2 parameters.").arg(name).arg(set->parameters.size()));
    m_window.Messages().Add(TKE::Severity::Error, tr("The preset %1 could not be saved.").arg(name), reason);
    QMessageBox::warning(&m_window, tr("Save as Preset"), reason);
}

void ReuseActions::Apply(const ParameterSet& set, const QString& stepName)
{
    CommitPendingEdit();
    LongAct work(stepName, &m_window, m_window.Document().History());
    std::vector<ValueChange> changes;
    const auto targets = m_window.Nodes().GetSelectedNodes();
    for (const JobNode& target : targets)
    {
        for (ValueChange& change : set.ChangesFor(target.path))
            changes.push_back(std::move(change));
        work.Progress(0, 1); // cancelled, it writes nothing
    }
    const WriteResult result = WriteValues(m_window.Document(), stepName, changes);
    if (result.isCancelled)
        return Tell(tr("%1: cancelled, nothing has changed").arg(stepName));
    constexpr size_t listed = 300; // a chain's worth and more; the rest only repeats it for other chains
    for (size_t number = 0; number < std::min(listed, result.refused.size()); ++number)
        m_window.Messages().Add(TKE::Severity::Warning, tr("%1 was not written").arg(result.refused[number].path),
                                result.refused[number].reason);
    const QString summary = tr("%1: %2 parameters changed in %3 chains, %4 did not fit.")
                                .arg(stepName)
                                .arg(result.written)
                                .arg(targets.size())
                                .arg(result.refused.size());
    m_window.Messages().Add(result.refused.empty() ? TKE::Severity::Info : TKE::Severity::Warning, summary);
    Tell(summary);
}

void ReuseActions::ToClipboard(const std::optional<ParameterSet>& set)
{
    if (!set)
        return;
    QGuiApplication::clipboard()->setMimeData(set->ToMimeData().release()); // the clipboard owns it
    Tell(tr("%1 parameters of %2 copied").arg(set->parameters.size()).arg(set->source));
}

std::optional<ParameterSet> ReuseActions::TabParameters() const
{
    CommitPendingEdit();
    const JobNode* node = m_window.Nodes().GetCurrentNode();
    const QTabWidget* dialog = m_window.Dialog().GetDialog();
    if (node && dialog && dialog->currentWidget())
        if (auto set = ParameterSet::OfTab(*node, *dialog->currentWidget(), dialog->tabText(dialog->currentIndex()));
            !set.parameters.empty())
            return set;
    Tell(tr("There is no tab with parameters to take."));
    return {};
}

std::optional<ParameterSet> ReuseActions::ChainParameters() const
{
    CommitPendingEdit();
    if (const JobNode* node = m_window.Nodes().GetCurrentNode())
        if (auto set = ParameterSet::OfNode(*node, m_window.Nodes().GetNodes()); !set.parameters.empty())
            return set;
    Tell(tr("The selected node has no parameters to take."));
    return {};
}

void ReuseActions::Tell(const QString& text) const
{
    m_window.statusBar()->showMessage(text, 8000);
}

} // namespace JOBEDIT
