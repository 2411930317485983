#pragma once

#include "exciter/exciterscansettingsdlg.h"
#include "exciter/exciterscudlg.h"
#include "exciter/excitersmudlg.h"
#include "exciter/exciterwdedlg.h"
#include "exciter/wdeexciterdlg.h"
#include "exciter/wderasterdetectordlg.h"
#include "exciter/wdesimulationdlg.h"
#include "exciter/wdesinglechanneldetectordlg.h"
#include "ipcparam/excitergeneraldlg.h"
#include "keys/keys.h"
#include "panelgrid.h"

#include <array>

/// What the tests of the exciter panels share: a tree with all their values, and every panel by its name.
namespace ExciterTest
{

using namespace TKE;
using namespace Keys;
using PanelTest::basePath;

inline const QString modePath = QStringLiteral("/J/ExciterMode"); // two levels above the panels
inline const QString switchPath = QStringLiteral("/J/T/");        // of the general panel's switches
inline const std::array switches{ExciterCheck, SingleChannelDetectorCheck, RasterDetectorCheck, SimulationCheck};

using Panel = std::unique_ptr<ExciterPanel>;

inline constexpr int channels = 2;

template <class P> Panel New(int count)
{
    if constexpr (std::is_constructible_v<P, QString, int, bool, bool, QWidget*, bool>)
        return std::make_unique<P>(basePath, count, true, false, nullptr, false);
    else
        return std::make_unique<P>(basePath, !std::is_same_v<P, ExciterGeneralDlg>, false, nullptr, false);
}

inline Panel Make(const QString& name, int count = channels)
{
    static const QHash<QString, Panel (*)(int count)> makers{
        {"ExciterGeneralDlg", New<ExciterGeneralDlg>},
        {"ExciterSMUDlg", New<ExciterSMUDlg>},
        {"ExciterSCUDlg", New<ExciterSCUDlg>},
        {"ExciterWDEDlg", New<ExciterWDEDlg>},
        {"ExciterScanSettingsDlg", New<ExciterScanSettingsDlg>},
        {"WDEExciterDlg", New<WDEExciterDlg>},
        {"WDERasterDetectorDlg", New<WDERasterDetectorDlg>},
        {"WDESingleChannelDetectorDlg", New<WDESingleChannelDetectorDlg>},
        {"WDESimulationDlg", New<WDESimulationDlg>}};
    return makers.value(name)(count);
}

inline const QStringList panelNames{
    "ExciterGeneralDlg", "ExciterSMUDlg",        "ExciterSCUDlg",          "ExciterWDEDlg",
    "WDEExciterDlg",     "WDERasterDetectorDlg", "ExciterScanSettingsDlg", "WDESingleChannelDetectorDlg",
    "WDESimulationDlg"};

inline std::vector<Panel> MakeAll()
{
    std::vector<Panel> panels;
    for (const QString& name : panelNames)
        panels.push_back(Make(name));
    return panels;
}

inline ValueSelection* Mode()
{
    return static_cast<ValueSelection*>(Tree::Instance()->FindValue(modePath));
}

inline void SetMode(int mode)
{
    Mode()->SetStoredText(QString::number(mode));
}

inline ValueBase* Switch(QLatin1StringView key)
{
    return Tree::Instance()->FindValue(switchPath + key);
}

// "+" on and enabled, "-" off and disabled, "?" anything else; then autostart.
inline QString Switches()
{
    QString text;
    for (const QLatin1StringView key : switches)
    {
        const ValueBase* value = Switch(key);
        const bool isOn = value->GetBool();
        text += value->GetState() != (isOn ? stEnabled : stDisabled) ? u'?' : isOn ? u'+' : u'-';
    }
    return text + u' ' + Tree::Instance()->FindValue(QStringLiteral("/J/ExciterAutostart"))->GetText();
}

// The values that a rule has disabled, wherever they lie.
inline QString Disabled()
{
    QStringList names;
    for (const QString group : {"G_EXC_SMU", "G_EXC_SCU", "G_EXC_WDE", "G_EXC_SCAN", "G_WDE_EXCITER", "G_WDE_RASTER",
                                "G_WDE_SINGLE", "G_WDE_SIMULATION"})
    {
        for (const auto& parameter : JobModel::Load()->FindGroup(group, Band::Hf)->GetParameters())
        {
            const QString& name = parameter->GetUniqueParameterName();
            const ValueBase* value = PanelTest::ValueOf(name);
            if (value && value->GetState() == stDisabled)
                names << name;
        }
    }
    names.sort();
    return names.join(u' ');
}

// Fills a group with the nodes of its channels.
inline void FillChannels(const QString& group)
{
    for (const auto& parameter : JobModel::Load()->FindGroup(group, Band::Hf)->GetParameters())
    {
        const QString& name = parameter->GetUniqueParameterName();
        if (!parameter->IsPerChannel())
            Tree::Instance()->CreateValue(basePath + name, parameter->GetValueDescriptor());
        for (int n = 1; parameter->IsPerChannel() && n <= channels; ++n)
            Tree::Instance()->CreateValue(basePath + parameter->GetChannelNoun() + QString::number(n) + u'/' + name,
                                          parameter->GetValueDescriptor(n));
    }
}

inline void FillTree()
{
    static const auto model = JobModel::Load(); // the values refer to it
    PanelTest::Fill(QStringLiteral("G_EXC_MODE"), QStringLiteral("/J/"));
    PanelTest::Fill(QStringLiteral("G_EXC_CHECKS"), switchPath);
    for (const char* group : {"G_EXC_SMU", "G_EXC_SCU", "G_EXC_WDE", "G_EXC_SCAN"})
        PanelTest::Fill(QString::fromUtf8(group));
    for (const char* group : {"G_WDE_EXCITER", "G_WDE_RASTER", "G_WDE_SINGLE", "G_WDE_SIMULATION"})
        FillChannels(QString::fromUtf8(group));
}

} // namespace ExciterTest
