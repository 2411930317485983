#include "ipcparam/exciterpanel.h"

#include "application/errorhandler.h"
#include "exciter/exciter_settings.h"
#include "jobmodel/exciterparameter.h"
#include "value/tree.h"

#include <QPointer>

namespace TKE
{

ExciterPanel::ExciterPanel(const QString& basePath, bool loadFlag, bool rowFlag, int panelKind, QWidget* parent,
                           const QString& className, bool readOnly)
    : ParameterDlg(basePath, parent, className, readOnly, false)
    , m_loadFlag(loadFlag)
    , m_panelKind(panelKind)
    , m_rowFlag(rowFlag)
{
    m_exciterParameter = std::make_unique<ExciterParameter>(GetXMLFileDirPath(), m_loadFlag);
    if (m_exciterParameter->HasLoadError())
        ErrorHandler::Interface().Report(Severity::Error, m_exciterParameter->GetLoadErrorText());
}

ExciterPanel::~ExciterPanel() = default;

void ExciterPanel::InitPanel()
{
    ShareSizeHints();
    GetValuePtr(true, m_exciterModePtr, Parameters().ExciterMode());
    BuildSpecialPanel();
}

ValueSelection* ExciterPanel::GetExciterModeValue() const
{
    if (!m_exciterModePtr)
        return nullptr;
    return dynamic_cast<ValueSelection*>(Tree::Instance()->FindValue(m_exciterModePtr->GetPathName()));
}

int ExciterPanel::GetExciterMode() const
{
    const ValueSelection* mode = GetExciterModeValue();
    return mode ? mode->GetCurrentKey() : int(REPORTGENERATOR::Exciter_Settings::emNone);
}

// Not for the exciter settings to say: those decide on the tabs of the host only.
bool ExciterPanel::IsScanMode() const
{
    using Mode = REPORTGENERATOR::Exciter_Settings;
    const int mode = GetExciterMode();
    return mode >= Mode::emFrequencyScan && mode <= Mode::emMemoryScan;
}

// A mode that has no item has no name.
void ExciterPanel::UpdateTitle()
{
    if (const ValueSelection* mode = GetExciterModeValue())
        SetTitle(mode->GetSelectedItem() ? mode->GetSelectedItem()->GetName() : QString());
}

void ExciterPanel::Update(Observable* source, TChangeCode code)
{
    if (code == ccContent && source == m_exciterModePtr.Get())
        ExciterModeChanged();
}

ParameterDlg::BuildRowSettings ExciterPanel::RowSettings(bool rebaseOnValue) const
{
    return {.searchUpwards = true,
            .keepFrequencyUnit = m_rowFlag,
            .rebaseOnValue = rebaseOnValue,
            .kiloHertz = !m_loadFlag};
}

void ExciterPanel::Row(int row, int column, ValuePtr& value, const Parameter& parameter)
{
    BuildRow(Grid(), value, parameter, row, column, RowSettings(true));
}

void ExciterPanel::ApplyRule(std::initializer_list<Editable> rows)
{
    if (IsReadOnly())
        return;
    const QPointer<ExciterPanel> self(this);
    const int round = ++m_ruleRound;
    for (const Editable& row : rows)
    {
        if (row.value)
            row.value->SetState(row.isEditable ? stEnabled : stDisabled);
        if (!self || round != m_ruleRound)
            return;
    }
}

} // namespace TKE
