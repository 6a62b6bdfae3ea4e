#pragma once

#include "job_description.h"

namespace kelvo {

// Asks a bundle for what it draws over pages and before them. A value; copies ask the same
// bundle. All drawing blocks: on any thread but the window's.
class BundleDrawer
{
public:
    BundleDrawer() = default; // draws nothing
    // On the GUI thread: the module is loaded when it is not yet. Null: draws nothing.
    explicit BundleDrawer(Bundle *bundle);

    // PDFs of one page, `page` points large or as large as the leading page; empty when the
    // bundle does not draw them.
    QByteArray draw(const Overlay &overlay, const QSizeF &page,
                    const std::atomic_bool &cancelled) const;
    QByteArray draw(const LeadingPage &page, const std::atomic_bool &cancelled) const;

private:
    DrawOverlayFunction m_drawOverlay = nullptr;
    DrawLeadingPageFunction m_drawLeadingPage = nullptr;
};

} // namespace kelvo
