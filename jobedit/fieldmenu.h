#pragma once

#include <QObject>
#include <QPointer>

class QMenu;

namespace TKE
{
class ValueBase;
}

namespace JOBEDIT
{

class JobDocument;
class MainWindow;

/// Gives every field of every dialog, and its label, a context menu: back to the saved value or the default, the path,
/// and what is known of the value. A field that has a menu of its own keeps it; the entries then follow in that menu.
/// Also by the menu key and Shift+F10.
class FieldMenu : public QObject
{
    Q_OBJECT

public:
    explicit FieldMenu(MainWindow& window);

    /// Adds the entries. Without `editable` those that write are greyed. The entries hold no value: chosen, they write
    /// to what stands at the path then, if it is enabled.
    static void Fill(QMenu& menu, JobDocument& document, const TKE::ValueBase& value, bool editable);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    bool OnContextMenu(QWidget& widget, const QPoint& position);
    void OnMenuMade(QMenu& menu);

    MainWindow& m_window;
    QPointer<QWidget> m_asked; // whose own menu is about to be made
};

} // namespace JOBEDIT
