#pragma once

#include <QObject>

class QDropEvent;
class QWidget;

namespace JOBEDIT
{

/// Takes a file that is dropped anywhere on a window, also on its fields, which would take it for text.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    explicit FileDrop(QWidget& window);

signals:
    /// After the drop is over: who hears of it may ask questions.
    void Dropped(const QString& fileName);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static QString FileOf(const QDropEvent& event);

    QWidget& m_window;
};

} // namespace JOBEDIT
