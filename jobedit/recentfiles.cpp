#include "recentfiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace JOBEDIT
{

namespace
{

const char* const recentFilesKey = "recentFiles";

} // namespace

RecentFiles::RecentFiles(QWidget* parent) : QMenu(parent)
{
    setTitle(tr("Open &Recent"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFiles::Fill);
}

QStringList RecentFiles::GetFiles()
{
    return QSettings().value(recentFilesKey).toStringList();
}

void RecentFiles::Add(const QString& fileName)
{
    const QString file = QFileInfo(fileName).absoluteFilePath();
    QStringList files = GetFiles();
    files.removeAll(file);
    files.prepend(file);
    QSettings().setValue(recentFilesKey, QStringList(files.mid(0, MaximumCount)));
}

void RecentFiles::Remove(const QString& fileName)
{
    QStringList files = GetFiles();
    files.removeAll(fileName);
    QSettings().setValue(recentFilesKey, files);
}

void RecentFiles::Fill()
{
    clear();
    const QStringList files = GetFiles();
    for (int number = 0; number < files.size(); ++number)
    {
        const QString& file = files[number];
        // An ampersand in a file name is no mnemonic.
        QString text = QDir::toNativeSeparators(file).replace('&', "&&");
        if (!QFileInfo::exists(file))
            text = tr("%1 (not there)").arg(text);
        text = number < 9 ? QString("&%1  %2").arg(number + 1).arg(text) : "    " + text;
        QAction* action = addAction(text, this, [this, file] { emit Chosen(file); });
        action->setToolTip(file);
    }
    if (files.isEmpty())
        addAction(tr("No files yet"))->setEnabled(false);
    addSeparator();
    addAction(tr("&Clear List"), this, [] { QSettings().remove(recentFilesKey); })->setEnabled(!files.isEmpty());
}

} // namespace JOBEDIT
