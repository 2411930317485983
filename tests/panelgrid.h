#pragma once

#include "ipcparam/parameterdlg.h"
#include "jobmodel/jobmodel.h"
#include "value/tree.h"
#include "valuewidgets/valuelink.h"

#include <QtWidgets>

/// What the tests of panels share: values as the job model describes them, and a look at a panel's grid from outside.
namespace PanelTest
{

inline const QString basePath = QStringLiteral("/J/T/P/");

inline void Fill(const QString& group, const QString& path = basePath, TKE::Band band = TKE::Band::Hf)
{
    static const auto model = TKE::JobModel::Load({});
    for (const auto& parameter : model->FindGroup(group, band)->GetParameters())
        TKE::Tree::Instance()->CreateValue(path + parameter->GetUniqueParameterName(), parameter->GetValueDescriptor());
}

inline TKE::ValueBase* ValueOf(const QString& key)
{
    return TKE::Tree::Instance()->FindValue(basePath + key);
}

struct Place
{
    int row = -1, column = -1, rows = 0, columns = 0;
    bool operator==(const Place&) const = default;
};

/// The grid inside the frame of a panel, or inside one of its groups.
class Grid
{
public:
    explicit Grid(const QGroupBox* box) : m_grid(qobject_cast<QGridLayout*>(box->layout())) {}
    explicit Grid(const TKE::ParameterDlg& panel)
        : Grid(panel.findChild<QGroupBox*>(QString(), Qt::FindDirectChildrenOnly))
    {
    }

    /// Where several widgets share a cell, the first one.
    QWidget* At(int row, int column) const
    {
        for (int i = 0; i < m_grid->count(); ++i)
        {
            const Place place = PlaceOf(i);
            if (m_grid->itemAt(i)->widget() && place.row == row && place.column == column)
                return m_grid->itemAt(i)->widget();
        }
        return nullptr;
    }
    QString TextAt(int row, int column) const
    {
        if (const auto* button = qobject_cast<QAbstractButton*>(At(row, column)))
            return button->text();
        const auto* label = qobject_cast<QLabel*>(At(row, column));
        return label ? label->text() : QString();
    }
    /// The path of the value that the widget there is bound to.
    QString PathAt(int row, int column) const { return PathOf(At(row, column)); }

    QGroupBox* Group(const QString& title) const
    {
        for (int i = 0; i < m_grid->count(); ++i)
        {
            auto* box = qobject_cast<QGroupBox*>(m_grid->itemAt(i)->widget());
            if (box && box->title() == title)
                return box;
        }
        return nullptr;
    }
    Place PlaceOf(QWidget* widget) const { return PlaceOf(m_grid->indexOf(widget)); }

    static QString PathOf(const QWidget* widget)
    {
        const auto* link = dynamic_cast<const TKE::ValueLink*>(widget);
        return link && link->GetBoundValue() ? link->GetBoundValue()->GetPathName() : QString();
    }

private:
    Place PlaceOf(int index) const
    {
        Place place;
        if (index >= 0)
            m_grid->getItemPosition(index, &place.row, &place.column, &place.rows, &place.columns);
        return place;
    }

    QGridLayout* m_grid;
};

} // namespace PanelTest
