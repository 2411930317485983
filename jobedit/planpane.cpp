#include "planpane.h"

#include "planexport.h"
#include "planview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace JOBEDIT
{

/// What the shapes and colours of the marks mean.
class PlanPane::Legend : public QWidget
{
public:
    Legend(const PlanPainter& painter, QWidget* parent) : QWidget(parent), m_painter(painter) {}

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_painter.PaintLegend(painter, rect());
    }
    void resizeEvent(QResizeEvent*) override { setFixedHeight(m_painter.LegendHeight(width())); }

private:
    const PlanPainter& m_painter;
};

PlanPane::PlanPane(QWidget* parent)
    : QWidget(parent)
    , m_views{new PlanView(TKE::Band::Hf), new PlanView(TKE::Band::Vuhf)}
    , m_current(m_views[0])
    , m_splitter(new QSplitter(Qt::Vertical, this))
    , m_legend(new Legend(m_views[0]->Painter(), this))
    , m_selected(new QLabel(this))
{
    auto* bar = new QWidget(this);
    AddButtons(bar);

    m_splitter->setChildrenCollapsible(false);
    for (PlanView* view : m_views)
    {
        m_splitter->addWidget(view);
        connect(view, &PlanView::NodeChosen, this, &PlanPane::NodeChosen);
        connect(view, &PlanView::SelectionChanged, this,
                [this, view]
                {
                    if (view->hasFocus())
                        m_current = view;
                    ShowSelected();
                });
    }
    m_views[0]->setObjectName("planHf");
    m_views[1]->setObjectName("planVuhf");
    m_views[1]->hide();

    m_selected->setObjectName("planSelected");
    m_selected->setTextFormat(Qt::PlainText);
    m_selected->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_selected->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_selected->setContentsMargins(6, 0, 6, 2);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(bar);
    layout->addWidget(m_splitter, 1);
    layout->addWidget(m_legend);
    layout->addWidget(m_selected);
    ShowSelected();
}

void PlanPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // In a low dock the bands stand side by side, or neither would show more than a few chains.
    m_splitter->setOrientation(width() > 2 * height() ? Qt::Horizontal : Qt::Vertical);
}

void PlanPane::AddButtons(QWidget* bar)
{
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(2, 0, 2, 0);
    const auto add = [&](const QString& text, const QString& tip, auto&& pressed)
    {
        auto* button = new QToolButton(bar);
        button->setText(text);
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, pressed);
        layout->addWidget(button);
    };
    const auto zoom = [this](double factor)
    {
        const auto [from, to] = CurrentView()->GetRange();
        CurrentView()->Zoom(factor, (from + to) / 2);
    };
    add(tr("+"), tr("Zoom in"), [zoom] { zoom(1.5); });
    add(tr("\u2212"), tr("Zoom out"), [zoom] { zoom(1.0 / 1.5); });
    add(tr("Show All"), tr("Show the whole band"),
        [this]
        {
            for (PlanView* view : m_views)
                view->ShowAll();
        });
    add(tr("Show Chain"), tr("Show what the selected chain does"), [this] { CurrentView()->ShowSelected(); });
    layout->addStretch();
    add(tr("Export..."), tr("Write the plan as a picture"), [this] { emit ExportRequested(); });
}

void PlanPane::SetPlan(FrequencyPlan plan)
{
    m_plan = std::move(plan);
    for (PlanView* view : m_views)
        view->SetPlan(m_plan);
    // A band without chains takes no room; without any chain the first says so.
    m_views[1]->setVisible(!m_views[1]->IsEmpty());
    m_views[0]->setVisible(!m_views[0]->IsEmpty() || m_views[1]->IsEmpty());
    ShowSelected();
}

void PlanPane::SelectPath(const QString& path)
{
    for (PlanView* view : m_views)
        if (view->GetSelectedPath() != path)
            view->SelectPath(path);
}

void PlanPane::FocusView()
{
    CurrentView()->setFocus(Qt::ShortcutFocusReason);
}

PlanPicture PlanPane::Picture(const QString& title) const
{
    PlanPicture picture(m_plan, title);
    for (const PlanView* view : m_views)
        picture.SetRange(view->Painter().GetBand(), view->GetRange().first, view->GetRange().second);
    return picture;
}

PlanView* PlanPane::CurrentView() const
{
    for (PlanView* view : m_views)
        if (view->hasFocus())
            return view;
    if (!m_current->isHidden())
        return m_current;
    return m_views[m_views[0]->isHidden()];
}

void PlanPane::ShowSelected()
{
    const PlanView* view = m_current->SelectedText().isEmpty() ? m_views[m_current == m_views[0]] : m_current;
    const QString text = view->SelectedText();
    m_selected->setText(text.isEmpty() ? tr("No chain of the plan is selected.")
                                       : QString(text).replace('\n', "  \u00b7  "));
    m_selected->setToolTip("<qt>" + text.toHtmlEscaped().replace('\n', "<br>"));
}

} // namespace JOBEDIT
