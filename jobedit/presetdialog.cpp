#include "presetdialog.h"

#include "namedialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace JOBEDIT
{

PresetDialog::PresetDialog(QWidget* parent)
    : QDialog(parent), m_list(new QListWidget(this)), m_details(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Presets"));
    m_list->setObjectName("presets");
    m_list->setAccessibleName(tr("Presets"));
    m_details->setObjectName("details");
    m_details->setWordWrap(true);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_details->setMinimumHeight(m_details->fontMetrics().lineSpacing() * 3);
    m_details->setAlignment(Qt::AlignTop);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_apply = buttons->addButton(tr("&Apply"), QDialogButtonBox::ApplyRole);
    m_rename = buttons->addButton(tr("&Rename..."), QDialogButtonBox::ActionRole);
    m_remove = buttons->addButton(tr("&Delete"), QDialogButtonBox::ActionRole);
    m_apply->setObjectName("apply");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_details);
    layout->addWidget(buttons);
    resize(480, 400);

    connect(m_list, &QListWidget::currentRowChanged, this, &PresetDialog::ShowCurrent);
    connect(m_list, &QListWidget::itemActivated, this, &PresetDialog::Apply);
    connect(m_apply, &QPushButton::clicked, this, &PresetDialog::Apply);
    connect(m_rename, &QPushButton::clicked, this, &PresetDialog::Rename);
    connect(m_remove, &QPushButton::clicked, this, &PresetDialog::Remove);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(new QShortcut(Qt::Key_F2, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            &PresetDialog::Rename);
    connect(new QShortcut(QKeySequence::Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            this, &PresetDialog::Remove);
    Fill({});
}

void PresetDialog::Fill(const QString& current)
{
    m_list->clear();
    m_list->addItems(m_presets.GetNames());
    const auto found = m_list->findItems(current, Qt::MatchExactly);
    m_list->setCurrentItem(found.isEmpty() ? m_list->item(0) : found.first());
    ShowCurrent();
}

void PresetDialog::ShowCurrent()
{
    const QString name = Current();
    QString reason;
    const auto set = name.isEmpty() ? std::nullopt : m_presets.Load(name, reason);
    if (name.isEmpty())
        m_details->setText(tr("There are no presets yet. Save those of a tab or a chain from the Edit menu."));
    else if (set)
        m_details->setText(tr("%1 parameters of %2 (%3)").arg(set->parameters.size()).arg(set->source, set->type));
    else
        m_details->setText(tr("This preset is damaged. %1").arg(reason));
    m_apply->setEnabled(set.has_value());
    m_rename->setEnabled(!name.isEmpty());
    m_remove->setEnabled(!name.isEmpty());
}

void PresetDialog::Apply()
{
    if (!m_apply->isEnabled())
        return;
    emit Chosen(Current());
    accept();
}

void PresetDialog::Rename()
{
    const QString name = Current();
    if (name.isEmpty())
        return;
    const QString newName = NameDialog::Ask(
        tr("Rename Preset"), tr("New &name of %1:").arg(name), name,
        [&](const QString& wanted)
        {
            return wanted != name && m_presets.Contains(wanted) ? tr("There is a preset of that name already.")
                                                                : m_presets.NameFault(wanted);
        },
        this);
    QString reason;
    if (newName.isEmpty() || newName == name)
        return;
    if (!m_presets.Rename(name, newName, reason))
        QMessageBox::warning(this, windowTitle(), reason);
    Fill(newName);
}

void PresetDialog::Remove()
{
    const QString name = Current();
    if (name.isEmpty() ||
        QMessageBox::question(this, windowTitle(), tr("Delete the preset %1? This cannot be undone.").arg(name)) !=
            QMessageBox::Yes)
        return;
    QString reason;
    if (!m_presets.Remove(name, reason))
        QMessageBox::warning(this, windowTitle(), reason);
    Fill({});
}

QString PresetDialog::Current() const
{
    return m_list->currentItem() ? m_list->currentItem()->text() : QString();
}

} // namespace JOBEDIT
