#pragma once

#include "frequencyplan.h"

#include <QWidget>

class QLabel;
class QSplitter;

namespace JOBEDIT
{

class PlanPicture;
class PlanView;

/// The frequency plan of a job: a view per band that has chains, above one another or side by side, buttons above them,
/// the legend and what the selected chain does below.
class PlanPane : public QWidget
{
    Q_OBJECT

public:
    explicit PlanPane(QWidget* parent = nullptr);

    void SetPlan(FrequencyPlan plan);
    const FrequencyPlan& GetPlan() const { return m_plan; }
    /// Marks the chain in both bands without choosing it.
    void SelectPath(const QString& path);
    /// Puts the focus into the first view that has chains.
    void FocusView();

    PlanView* View(TKE::Band band) const { return m_views[band == TKE::Band::Vuhf]; }
    /// The plan with the ranges that are shown.
    PlanPicture Picture(const QString& title) const;

signals:
    void NodeChosen(const QString& path);
    void ExportRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Legend;

    void AddButtons(QWidget* bar);
    void ShowSelected();
    /// The view that the buttons mean: that with the focus last.
    PlanView* CurrentView() const;

    FrequencyPlan m_plan;
    PlanView* m_views[2];
    PlanView* m_current;
    QSplitter* m_splitter;
    Legend* m_legend;
    QLabel* m_selected;
};

} // namespace JOBEDIT
