#include "valuewidgets/hintcache.h"

#include <QWidget>

namespace TKE
{

void HintCache::Check(const QWidget& widget)
{
    const QFont& font = widget.font();
    Look look{widget.style(), font.family(),  font.pointSizeF(), font.pixelSize(),
              font.weight(),  font.stretch(), font.italic(),     widget.devicePixelRatioF()};
    if (look == m_current)
        return;
    m_current = std::move(look);
    m_hints.clear();
}

} // namespace TKE
