#pragma once

#include "mainwindow.h"

namespace JOBEDIT
{

/// The editor with its window. When the user chooses another language, the window is made anew in it and shows what the
/// old one showed; the job is not touched.
class Editor : public QObject
{
    Q_OBJECT

public:
    explicit Editor(std::shared_ptr<const TKE::JobModel> model);
    ~Editor() override;

    MainWindow& Window() { return *m_window; }
    void SetLanguage(const QString& language);

private:
    void Watch();

    std::unique_ptr<MainWindow> m_window;
};

} // namespace JOBEDIT
