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

namespace
{

constexpr int pictureWidth = 720;

/// Shows the pictures as wide as the text.
class GuideBrowser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override
    {
        if (type != QTextDocument::ImageResource)
            return QTextBrowser::loadResource(type, name);
        const QImage picture(":/docs/" + name.path());
        return picture.scaledToWidth(pictureWidth, Qt::SmoothTransformation);
    }
};

} // namespace

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
    //: The file of the guide in the language of the translation.
    QFile file(":/docs/" + tr("userguide.md"));
    auto* browser = new GuideBrowser(this);
    browser->setAccessibleName(tr("Guide"));
    if (file.open(QIODevice::ReadOnly))
        browser->setMarkdown(QString::fromUtf8(file.readAll()));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser);
    resize(pictureWidth + 60, 640);
}

} // namespace JOBEDIT
