#include "valuewidgets/vcfrequency.h"

#include "valuewidgets/guicentral.h"
#include "valuewidgets/readername.h"
#include "valuewidgets/vccomboboxclassic.h"
#include "valuewidgets/vclineedit.h"

#include <QGridLayout>
#include <QPushButton>

namespace TKE
{

// The number field, whose value switches the whole editor.
class VCFrequency::Number final : public VCLineEdit
{
public:
    explicit Number(VCFrequency* editor) : VCLineEdit(editor, QStringLiteral("Number")) {}

protected:
    QWidget* GetStateWidget() const override { return parentWidget(); }
    bool CanShow(const ValueBase& value) const override { return value.GetKind() == ValueKind::Frequency; }
};

VCFrequency::VCFrequency(QWidget* parent, const QString& name)
    : QWidget(parent)
    , m_number(new Number(this))
    , m_unit(new VCComboBoxClassic(this, QStringLiteral("Unit")))
    , m_tune(new QPushButton(tr("Tune"), this))
{
    setObjectName(name);
    m_tune->setObjectName(QStringLiteral("Tune"));
    m_number->SuppressErrorMessage(true);
    ReaderName::Set(*m_unit, tr("Unit"));
    for (int code = SuffixedDouble::Hertz; code <= SuffixedDouble::Giga; ++code)
        m_unit->addItem(SuffixedDouble::GetUnitText(SuffixedDouble::ESuffix(code)));
    connect(m_unit, &QComboBox::activated, this,
            [](int row) { GuiCentral::Instance().SetFrequencyUnit(SuffixedDouble::Hertz + row); });

    // At the top of its rows, so that the number stands beside its label though the editor spans two of them.
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_number, 0, 0);
    grid->addWidget(m_unit, 0, 1);
    grid->addWidget(m_tune, 1, 0, 1, 2);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    setFocusProxy(m_number);

    GuiCentral::Instance().Attach(this);
    ShowUnit();
}

bool VCFrequency::SetFrequency_ValuePath(const QString& path)
{
    return m_number->BindPath(path);
}

bool VCFrequency::Bind(ValueBase* value)
{
    return m_number->Bind(value);
}

ValueBase* VCFrequency::GetBoundValue() const
{
    return m_number->GetBoundValue();
}

void VCFrequency::Lock()
{
    m_number->Lock();
}

void VCFrequency::Update(Observable*, TChangeCode)
{
    ShowUnit();
}

void VCFrequency::ShowUnit()
{
    const SuffixedDouble::ESuffix unit = GuiCentral::Instance().GetFrequencyUnit();
    m_unit->setCurrentIndex(unit - SuffixedDouble::Hertz);
    m_number->SetFrequencyUnit(unit);
}

} // namespace TKE
