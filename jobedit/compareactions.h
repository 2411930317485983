#pragma once

#include "comparedialog.h"

#include <QDateTime>
#include <QPointer>
#include <optional>

namespace JOBEDIT
{

class MainWindow;
struct OtherJob;

/// Tools > Compare..., and the look after the file of the open job: when somebody else has changed it, the differences
/// are shown once, and the user decides what becomes of them. One comparison is open at a time.
class CompareActions : public QObject
{
    Q_OBJECT

public:
    explicit CompareActions(MainWindow& window);

    /// Null when the file could not be read, which the user has been told then, or reading was cancelled.
    CompareDialog* CompareWithFile(const QString& fileName);
    CompareDialog* CompareWithSaved();
    CompareDialog* CompareChains(const QString& leftPath, const QString& rightPath);
    /// Shows how the file on disk differs from the open job. Where it does not, that is shown only when asked for.
    CompareDialog* CompareWithDisk(bool evenIfSame = true);

    /// Whether the user has decided what becomes of the file's present content: saving need not ask again.
    bool IsDiskSettled() const { return m_settled == DiskStamp(); }
    /// The user knows of the file's present content: it is not told of on its own.
    void NoteDisk() { m_told = DiskStamp(); }

    /// Shows the comparison that is open in the window that `other` belongs to, in the language of now.
    void TakeView(CompareActions& other);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Stamp
    {
        QString file;
        qint64 size = -1;
        QDateTime changed;
        bool operator==(const Stamp&) const = default;
    };
    /// What a comparison is made of, to make its window once more.
    struct Comparison
    {
        CompareSides sides;
        std::shared_ptr<const void> holder; ///< of the right side
        std::function<CompareTexts(const CompareSides& sides)> texts;
        bool isOfOpenFile = false; ///< which saving replaces
        Stamp settles{};           ///< the content on disk that the closing button decides about
    };
    Stamp DiskStamp() const;
    void LookAtDisk();
    void Slot_OnCompareWithFile();
    void Slot_OnCompareChains();
    std::shared_ptr<OtherJob> Load(const QString& fileName);
    void GoTo(const QString& path);
    CompareDialog* Make(const Comparison& comparison);
    CompareDialog* Compare(const Comparison& comparison, bool ticked = false, bool evenIfSame = true);
    void Show(CompareDialog* dialog, const Comparison& comparison);

    MainWindow& m_window;
    QAction* m_withSaved;
    QAction* m_toDifferences;
    QPointer<CompareDialog> m_open;
    std::optional<Comparison> m_comparison; // that is open
    Stamp m_told;
    Stamp m_settled;
};

} // namespace JOBEDIT
