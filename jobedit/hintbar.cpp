#include "hintbar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>

namespace JOBEDIT
{

namespace
{

const char* const unwantedKey = "hint/unwanted";

} // namespace

HintBar::HintBar(QWidget* parent) : QFrame(parent)
{
    setObjectName("hintBar");
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    auto* text = new QLabel(tr("This is a new job, made from the sample. Select a node at the left to see its "
                               "parameters; open a job of your own with Ctrl+O. F1 shows the guide."),
                            this);
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::ToolTipText);
    auto* never = new QPushButton(tr("&Do Not Show Again"), this);
    never->setObjectName("neverAgain");
    auto* close = new QPushButton(tr("&Close"), this);
    for (QPushButton* button : {never, close})
        connect(button, &QPushButton::clicked, this, &QWidget::hide);
    connect(never, &QPushButton::clicked, this, [] { QSettings().setValue(unwantedKey, true); });

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 3, 3, 3);
    layout->addWidget(text, 1);
    layout->addWidget(never);
    layout->addWidget(close);
    hide();
}

void HintBar::Offer()
{
    setVisible(!QSettings().value(unwantedKey, false).toBool());
}

} // namespace JOBEDIT
