#include "ipcparam/parameterdlg.h"

#include "jobmodel/parameter.h"
#include "widgets/vclistboxnumeric.h"

#include <QGridLayout>
#include <QLabel>

namespace TKE
{

namespace
{

// Sub-types of the control types that have any.
constexpr int dateTimeSubType = 3;  // whole numbers shown as date and time
constexpr int frequencyRow = 0;     // frequencies: number and unit
constexpr int textRow = 1;          // a bare line edit
constexpr int frequencyTextRow = 2; // a frequency as text

constexpr ParameterDlg::FactorType hertzPerMegaHertz = 1000000;
constexpr ParameterDlg::FactorType hertzPerKiloHertz = 1000;
constexpr int listRows = 5;
constexpr int listColumns = 2;
constexpr int listColumnWidth = 200; // pixels

} // namespace

void ParameterDlg::BuildRow(QGridLayout* grid, ValueObservingPtr<ValueBase>& value, const Parameter& parameter, int row,
                            int column, const BuildRowSettings& settings)
{
    const QString savedBasePath = m_basePath;
    if (settings.rebaseOnValue)
    {
        GetValuePtr(settings.searchUpwards, value, parameter);
        if (value)
            m_basePath = value->GetPathName().chopped(value->GetName().size());
    }

    const QString key = parameter.GetUniqueParameterName();
    const QString text = GetTranslation(parameter.GetLabel());
    const bool fromBase = settings.searchUpwards;
    const int widgetColumn = column + 1;
    const auto isSubType = [&](int subType)
    { return parameter.IsValidControlType() && parameter.GetControlSubType() == subType; };

    QLabel* label = nullptr;
    const auto addLabel = [&](const QString& toolTip)
    {
        label = AddLabel(grid, row, column, 1, 1, text);
        label->setToolTip(toolTip);
    };
    const auto addIntSpin = [&] { AddIntSpinFromVT(grid, row, widgetColumn, 1, 1, key, fromBase, 1.0); };
    const auto addFloatSpin = [&](int precision)
    { AddFloatSpinFromVT(grid, row, widgetColumn, 1, 1, key, precision, fromBase, 1.0); };
    const auto addTimeEdit = [&] { AddTimeEditFromVT(grid, row, widgetColumn, 1, 1, key, fromBase); };
    const auto addBareLineEdit = [&] { AddLineEditFromVT(grid, row, widgetColumn, 1, 1, key, false, fromBase); };

    using JOBXMLGENERATOR::ControlType;
    switch (parameter.GetControlType())
    {
    case ControlType::Combo:
        addLabel(parameter.GetDescription());
        AddComboFromVT(grid, row, widgetColumn, 1, 1, key, fromBase);
        break;
    case ControlType::CheckBox:
        AddCheckBoxFromVT(grid, row, widgetColumn, 1, 1, key, text, fromBase);
        break;
    case ControlType::Integer:
        addLabel(parameter.GetDescription());
        isSubType(dateTimeSubType) ? addTimeEdit() : addIntSpin();
        break;
    case ControlType::Real:
        addLabel(parameter.GetDescription());
        if (parameter.IsFloat())
            addFloatSpin(parameter.GetFloatPrecision());
        else if (parameter.IsDouble())
            addFloatSpin(parameter.GetDoublePrecision());
        break;
    case ControlType::Text:
        addLabel(parameter.GetDescription());
        addBareLineEdit();
        break;
    case ControlType::Number:
        addLabel(parameter.GetDescription());
        if (isSubType(dateTimeSubType))
            addTimeEdit();
        else if (parameter.IsLong())
            addFloatSpin(0);
        else if (parameter.IsInteger())
            addIntSpin();
        break;
    case ControlType::Frequency:
        if (parameter.IsDoubleList())
        {
            const QStringList header{text + (settings.kiloHertz ? tr(" [kHz]") : tr(" [MHz]"))};
            VCListBoxNumeric* list =
                AddListBoxFromVT(grid, row, column, listRows, listColumns, key, 1, 0, parameter.GetRowCount(), true, header,
                                 settings.kiloHertz ? hertzPerKiloHertz : hertzPerMegaHertz, fromBase);
            list->setColumnWidth(0, listColumnWidth);
            list->setAccessibleName(header.first()); // no label names it
            break;
        }
        // The one row whose tool tip is translated.
        addLabel(GetTranslation(parameter.GetDescription()));
        if (!parameter.IsValidControlType() || isSubType(frequencyRow))
            AddFrequencyFromVT(grid, row, widgetColumn, 2, 3, key, !settings.keepFrequencyUnit, fromBase);
        else if (isSubType(textRow))
            addBareLineEdit();
        else if (isSubType(frequencyTextRow))
            AddLineEditFrequencyFromVT(grid, row, widgetColumn, 1, 2, key, true, fromBase, settings.kiloHertz);
        break;
    }

    if (grid)
        MakeBuddy(label, grid->itemAtPosition(row, widgetColumn));
    if (!parameter.GetUnit().isEmpty())
        AddLeftLabel(grid, row, column + 2, 1, 1, GetTranslation(parameter.GetUnit()));
    GetValuePtr(settings.searchUpwards, value, parameter);
    if (settings.rebaseOnValue)
        m_basePath = savedBasePath;
}

} // namespace TKE
