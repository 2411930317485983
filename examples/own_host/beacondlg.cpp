#include "beacondlg.h"

#include "jobmodel/jobmodel.h"

#include <QGridLayout>
#include <QLabel>

BeaconDlg::BeaconDlg(const QString& basePath, QWidget* parent, bool readOnly)
    : ParameterDlg(basePath, parent, "BeaconDlg", readOnly, false)
{
    SetTranslationNamespace("BeaconDlg");
    SetTitle(GetTranslation("Beacon"));

    // One row for each parameter of the group; what a row looks like stands in the descriptor file.
    int row = 0;
    const auto model = TKE::JobModel::Load(GetXMLFileDirPath());
    if (const TKE::ParameterGroup* group = model->FindGroup(u"BEACON", TKE::Band::Hf))
    {
        for (const auto& parameter : group->GetParameters())
        {
            BuildRow(Grid(), m_rows.emplace_back(this), *parameter, row, 0, {});
            row = Grid()->rowCount(); // a frequency takes two
        }
    }
    // A row made by hand, of a value one level above.
    AddLabel(Grid(), row, 0, 1, 1, GetTranslation("Operator :"));
    AddLineEditFromVTParent(Grid(), row, 1, 1, 1, "STATION_OPERATOR", true, false);

    m_warning = AddLeftLabel(Grid(), row + 1, 0, 1, 3, {});
    GetValuePtr(m_power, "BEACON_POWER");
    GetValuePtr(m_limit, GetBasePath(), "STATION_POWER_LIMIT");
    ShowWarning();
    SetDefaultStretchFactor();
}

void BeaconDlg::Update(TKE::Observable*, TKE::TChangeCode)
{
    ShowWarning(); // also when a value has gone: its pointer is empty then
}

void BeaconDlg::ShowWarning()
{
    const bool tooMuch = m_power && m_limit && m_power->GetText().toInt() > m_limit->GetText().toInt();
    m_warning->setText(tooMuch ? GetTranslation("More power than the station may use") : QString());
}
