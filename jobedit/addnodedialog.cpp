#include "addnodedialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace JOBEDIT
{

AddNodeDialog::AddNodeDialog(JobDocument& document, const QString& nearPath, QWidget* parent)
    : QDialog(parent)
    , m_document(document)
    , m_nearPath(nearPath)
    , m_kinds(NodeKinds(document.GetModel()))
    , m_filter(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_place(new QComboBox(this))
    , m_name(new QLineEdit(this))
    , m_result(new QLabel(this))
{
    setWindowTitle(tr("Add Chain"));
    m_filter->setObjectName("kindFilter");
    m_filter->setPlaceholderText(tr("Filter by type, band or parameters"));
    m_filter->setAccessibleName(tr("Filter of the kinds"));
    m_filter->setClearButtonEnabled(true);
    m_list->setObjectName("kinds");
    m_list->setAccessibleName(tr("Kinds of chains"));
    m_list->setHeaderLabels({tr("Kind"), tr("Band"), tr("Parameters")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setAllColumnsShowFocus(true);
    m_place->setObjectName("place");
    m_place->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_name->setObjectName("name");
    m_result->setObjectName("reason");
    m_result->setWordWrap(true);
    m_result->setMinimumHeight(m_result->fontMetrics().lineSpacing() * 2);

    auto* form = new QFormLayout;
    form->addRow(tr("&Below:"), m_place);
    form->addRow(tr("&Name:"), m_name);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Add"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addLayout(form);
    layout->addWidget(m_result);
    layout->addWidget(buttons);
    resize(760, 540);

    FillKinds();
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_filter, &QLineEdit::textChanged, this, &AddNodeDialog::ApplyFilter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &AddNodeDialog::Slot_OnKind);
    connect(m_place, &QComboBox::currentIndexChanged, this, &AddNodeDialog::Slot_OnPlace);
    connect(m_name, &QLineEdit::textChanged, this, &AddNodeDialog::Check);
    Slot_OnKind();
}

const NodeKind* AddNodeDialog::GetKind() const
{
    const QTreeWidgetItem* item = m_list->currentItem();
    return item && !item->isHidden() ? &m_kinds[size_t(m_list->indexOfTopLevelItem(m_list->currentItem()))] : nullptr;
}

const NodePlace* AddNodeDialog::GetPlace() const
{
    const int index = m_place->currentIndex();
    return index < 0 ? nullptr : &m_places[size_t(index)];
}

QString AddNodeDialog::GetName() const
{
    return m_name->text().trimmed();
}

void AddNodeDialog::accept()
{
    if (m_ok->isEnabled())
        QDialog::accept();
}

void AddNodeDialog::FillKinds()
{
    // The kind of the node that the user stands on is what is wanted most.
    const TKE::NodeSpec* near = m_document.File().FindNodeSpec(m_nearPath);
    QTreeWidgetItem* current = nullptr;
    for (const NodeKind& kind : m_kinds)
    {
        auto* item = new QTreeWidgetItem(m_list, {kind.spec.type, kind.BandText(), kind.parameters});
        item->setToolTip(2, kind.parameters);
        if (!current && near && near->type == kind.spec.type && near->band == kind.spec.band)
            current = item;
    }
    m_list->setCurrentItem(current ? current : m_list->topLevelItem(0));
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);
}

void AddNodeDialog::ApplyFilter(const QString& text)
{
    QTreeWidgetItem* first = nullptr;
    for (int row = 0; row < m_list->topLevelItemCount(); ++row)
    {
        QTreeWidgetItem* item = m_list->topLevelItem(row);
        const QString all = item->text(0) + u' ' + item->text(1) + u' ' + item->text(2);
        item->setHidden(!all.contains(text.trimmed(), Qt::CaseInsensitive));
        if (!first && !item->isHidden())
            first = item;
    }
    if (first && (!m_list->currentItem() || m_list->currentItem()->isHidden()))
        m_list->setCurrentItem(first);
    Slot_OnKind();
}

void AddNodeDialog::Slot_OnKind()
{
    const NodeKind* kind = GetKind();
    {
        const QSignalBlocker blocker(m_place);
        m_place->clear();
        m_places = kind ? PlacesFor(*kind, m_document, m_nearPath) : std::vector<NodePlace>();
        for (const NodePlace& place : m_places)
        {
            QStringList names;
            for (const TKE::NodeSpec& spec : place.added)
                names << spec.name;
            m_place->addItem(names.isEmpty() ? place.path : tr("%1 in new %2").arg(place.path, names.join('/')));
        }
    }
    Slot_OnPlace();
}

void AddNodeDialog::Slot_OnPlace()
{
    if (const NodePlace* place = GetPlace())
        m_name->setText(UniqueNodeName(place->ParentPath(), GetKind()->spec.name));
    Check();
}

void AddNodeDialog::Check()
{
    const NodePlace* place = GetPlace();
    QString fault;
    if (!GetKind())
        fault = tr("No kind has this in its type, band or parameters.");
    else if (!place)
        fault = tr("The job has no node that this kind can be below.");
    else
        fault = NodeNameFault(place->ParentPath(), GetName());
    m_result->setText(fault.isEmpty() ? tr("Adds %1").arg(place->ParentPath() + GetName()) : fault);
    m_name->setAccessibleDescription(fault);
    m_ok->setEnabled(fault.isEmpty());
}

} // namespace JOBEDIT
