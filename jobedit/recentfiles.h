#pragma once

#include <QMenu>
#include <QStringList>

namespace JOBEDIT
{

/// The menu of the job files opened or saved last, the latest first. It is kept in the settings of the application and
/// shared by all its windows.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    static constexpr int MaximumCount = 10;

    explicit RecentFiles(QWidget* parent = nullptr);

    static QStringList GetFiles();
    /// Puts the file first.
    static void Add(const QString& fileName);
    static void Remove(const QString& fileName);

signals:
    void Chosen(const QString& fileName);

private:
    void Fill();
};

} // namespace JOBEDIT
