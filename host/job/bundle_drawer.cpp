#include "bundle_drawer.h"

namespace kelvo {

namespace {

template <typename Function, typename Asked>
QByteArray answerOf(Function function, const Asked &asked)
{
    QByteArray pdf;
    if (!function || function(&asked, &pdf) != noErr)
        return {};
    return pdf;
}

} // namespace

BundleDrawer::BundleDrawer(Bundle *bundle)
{
    if (!bundle)
        return;
    m_drawOverlay = reinterpret_cast<DrawOverlayFunction>(bundle->findFunction(kDrawOverlayName));
    m_drawLeadingPage =
        reinterpret_cast<DrawLeadingPageFunction>(bundle->findFunction(kDrawLeadingPageName));
}

QByteArray BundleDrawer::draw(const Overlay &overlay, const QSizeF &page,
                              const std::atomic_bool &cancelled) const
{
    return answerOf(m_drawOverlay, OverlayToDraw{overlay.name, page, &cancelled});
}

QByteArray BundleDrawer::draw(const LeadingPage &page, const std::atomic_bool &cancelled) const
{
    return answerOf(m_drawLeadingPage, LeadingPageToDraw{page.size, page.content, &cancelled});
}

} // namespace kelvo
