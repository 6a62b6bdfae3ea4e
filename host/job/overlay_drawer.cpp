#include "overlay_drawer.h"

namespace kelvo {

OverlayDrawer::OverlayDrawer(Bundle *bundle)
{
    if (bundle)
        m_function = reinterpret_cast<DrawOverlayFunction>(bundle->findFunction(kDrawOverlayName));
}

QByteArray OverlayDrawer::draw(const Overlay &overlay, const QSizeF &page,
                               const std::atomic_bool &cancelled) const
{
    const OverlayToDraw asked{overlay.name, page, &cancelled};
    QByteArray pdf;
    if (!m_function || m_function(&asked, &pdf) != noErr)
        return {};
    return pdf;
}

} // namespace kelvo
