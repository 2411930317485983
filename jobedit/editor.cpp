#include "editor.h"

#include "dialogpane.h"
#include "languages.h"
#include "longwork.h"

#include <QApplication>
#include <QTimer>

namespace JOBEDIT
{

Editor::Editor(std::shared_ptr<const TKE::JobModel> model) : m_window(std::make_unique<MainWindow>(std::move(model)))
{
    Watch();
}

Editor::~Editor() = default;

void Editor::SetLanguage(const QString& language)
{
    // These go on in the window that there is.
    if (LongWork::IsUnderWay() || QApplication::activeModalWidget())
        return QTimer::singleShot(50, this, [this, language] { SetLanguage(language); });
    CommitPendingEdit();
    Languages::Keep(language);
    Languages::Apply(language);
    // The new window is up before the old one goes: the application ends with its last window.
    auto fresh = std::make_unique<MainWindow>(m_window->TakeDocument());
    fresh->TakeView(*m_window);
    fresh->setVisible(m_window->isVisible());
    m_window = std::move(fresh);
    Watch();
}

void Editor::Watch()
{
    // Not before the menu that it was chosen from is done: it goes with its window.
    connect(m_window.get(), &MainWindow::LanguageChosen, this, &Editor::SetLanguage, Qt::QueuedConnection);
}

} // namespace JOBEDIT
