#pragma once

#include "job_description.h"

namespace kelvo {

// Asks a bundle for what is drawn over pages. A value; copies ask the same bundle.
class OverlayDrawer
{
public:
    OverlayDrawer() = default; // draws nothing
    // On the GUI thread: the module is loaded when it is not yet. Null: draws nothing.
    explicit OverlayDrawer(Bundle *bundle);

    // A PDF of one page, `page` points large; empty when the bundle does not draw it. Any
    // thread but the window's.
    QByteArray draw(const Overlay &overlay, const QSizeF &page,
                    const std::atomic_bool &cancelled) const;

private:
    DrawOverlayFunction m_function = nullptr;
};

} // namespace kelvo
