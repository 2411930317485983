#pragma once

#include "changemark.h"

#include <QWidget>
#include <optional>
#include <vector>

class QTabWidget;

namespace JOBEDIT
{

/// Paints the marks of the changed fields over a dialog, beside each field, and says them to assistive technology. Part
/// of the dialog, and goes with it; takes no events from it.
///
/// It holds neither fields nor values: each painting looks at what the dialog shows at that moment, so panels may be
/// rebuilt and values may go at any time.
class MarkOverlay : public QWidget
{
    Q_OBJECT

public:
    MarkOverlay(const JobDocument& document, QTabWidget& dialog);

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Placed
    {
        QRect bar;
        ChangeMark mark;
        bool operator==(const Placed&) const = default;
    };
    std::vector<Placed> Find() const;
    void FollowDialog();
    /// The words of the fields shown, or none.
    void Describe(bool marked) const;

    const JobDocument& m_document;
    QTabWidget& m_dialog;
    std::optional<std::vector<Placed>> m_painted; // on the page that is shown now
};

} // namespace JOBEDIT
