#include "guidewindow.h"

#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

// The guide stands in a static library. The macro wants to be outside of any namespace.
static void InitGuide()
{
    Q_INIT_RESOURCE(jobedit_docs);
}

namespace JOBEDIT
{

void GuideWindow::Open(QWidget* parent)
{
    auto* guide = parent->findChild<GuideWindow*>();
    if (!guide)
        guide = new GuideWindow(parent);
    guide->show();
    guide->raise();
    guide->activateWindow();
}

GuideWindow::GuideWindow(QWidget* parent) : QDialog(parent)
{
    InitGuide();
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Guide"));
    QFile file(":/docs/userguide.md");
    auto* browser = new QTextBrowser(this);
    browser->setAccessibleName(tr("Guide"));
    if (file.open(QIODevice::ReadOnly))
        browser->setMarkdown(QString::fromUtf8(file.readAll()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser);
    resize(760, 640);
}

} // namespace JOBEDIT
