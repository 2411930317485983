#include "namedialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace JOBEDIT
{

NameDialog::NameDialog(const QString& title, const QString& label, const QString& name, Fault fault, QWidget* parent)
    : QDialog(parent), m_fault(std::move(fault)), m_name(new QLineEdit(name, this)), m_reason(new QLabel(this))
{
    setWindowTitle(title);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(m_name);
    m_name->setObjectName("name");
    m_name->setMinimumWidth(360);
    m_name->selectAll();
    m_reason->setObjectName("reason");
    m_reason->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_name);
    layout->addWidget(m_reason, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &NameDialog::Check);
    Check();
}

QString NameDialog::GetName() const
{
    return m_name->text().trimmed();
}

QString NameDialog::Ask(const QString& title, const QString& label, const QString& name, Fault fault, QWidget* parent)
{
    NameDialog dialog(title, label, name, std::move(fault), parent);
    return dialog.exec() == Accepted ? dialog.GetName() : QString();
}

void NameDialog::Check()
{
    const QString fault = m_fault(GetName());
    m_reason->setText(fault);
    m_name->setAccessibleDescription(fault);
    m_ok->setEnabled(fault.isEmpty());
}

} // namespace JOBEDIT
