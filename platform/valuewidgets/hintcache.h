#pragma once

#include <QHash>
#include <QSize>
#include <QString>

class QStyle;
class QWidget;

namespace TKE
{

/// Size hints of widgets of one class, shared by those that look alike. Forgotten when style, font or screen scale
/// change.
class HintCache
{
public:
    /// The hint of widgets with that `look` (a number made of all that makes a difference); `make` computes it the
    /// first time.
    template <class Make> QSize Get(const QWidget& widget, size_t look, Make make)
    {
        Check(widget);
        if (const auto found = m_hints.constFind(look); found != m_hints.constEnd())
            return *found;
        const QSize hint = make();
        m_hints.insert(look, hint);
        return hint;
    }

private:
    void Check(const QWidget& widget);

    // The traits of the font rather than the font, which must not outlive the application as this does.
    struct Look
    {
        const QStyle* style = nullptr;
        QString family;
        qreal pointSize = 0;
        int pixelSize = 0;
        int weight = 0;
        int stretch = 0;
        bool italic = false;
        qreal scale = 0;
        bool operator==(const Look&) const = default;
    };
    Look m_current;
    QHash<size_t, QSize> m_hints;
};

} // namespace TKE
