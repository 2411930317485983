#pragma once

#include "analysis/demodulatorpanel.h"
#include "keys/keys.h"
#include "panelgrid.h"

/// What the tests of the demodulator dialog and of its panels share.
namespace DemodulatorTest
{

using namespace TKE;
using PanelTest::basePath;

/// The names of all demodulations, in the order of the selection.
inline QStringList AllNames()
{
    QStringList names;
    const auto model = JobModel::Load();
    const auto* parameter = model->FindGroup(u"G_DEMOD_HF", Band::Hf)->FindParameter(Keys::DEMODULATOR_HF_DDC_MODTYPE);
    for (const SelectionItem& item : parameter->GetValueDescriptor().items)
        names << item.GetName();
    return names;
}

inline QString Prefix(bool vuhf)
{
    return vuhf ? Keys::DEMODULATOR_VUHF_ : Keys::DEMODULATOR_HF_DDC_;
}

/// The editors of a panel, by key.
inline QHash<QString, QWidget*> EditorsOf(const QWidget& panel)
{
    QHash<QString, QWidget*> editors;
    for (QWidget* widget : panel.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (!widget->objectName().isEmpty())
            editors.insert(widget->objectName(), widget);
    return editors;
}

inline std::unique_ptr<DemodulatorPanel> Make(const QString& name, bool vuhf)
{
    return std::unique_ptr<DemodulatorPanel>(CreateDemodulatorPanel(name, basePath, vuhf, nullptr, false));
}

/// The values of both bands, as new.
inline void FillBothBands()
{
    Tree::Instance()->Clear();
    PanelTest::Fill(QStringLiteral("G_DEMOD_HF"), basePath, Band::Hf);
    PanelTest::Fill(QStringLiteral("G_DEMOD_VUHF"), basePath, Band::Vuhf);
}

} // namespace DemodulatorTest
