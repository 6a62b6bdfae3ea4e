#pragma once

#include "pde_session.h"
#include "plugin_abi.h"
#include "status.h"

#include <QString>

namespace kelvo {

// What every panel does in its Prologue. `Panel` is its context, a record with the
// members `bundle` and `title`; it is made here, and is the caller's to delete in
// Terminate. The title is the bundle's text of `titleKey`, or the key itself. Sizes
// are 0: the shell asks the panels' layouts. kPMInvalidPDEContext, and nothing made,
// when an argument is null.
template <typename Panel>
OSStatus announcePanel(const QString &titleKey, OSType signature, PMPDEContext *context,
                       OSType *creator, CFStringRef *userOptionKind, CFStringRef *title,
                       std::uint32_t *maxH, std::uint32_t *maxV)
{
    if (!context || !creator || !userOptionKind || !title || !maxH || !maxV)
        return kPMInvalidPDEContext;
    auto *panel = new Panel;
    panel->bundle = GetPDEBundle();
    panel->title = CFBundleCopyLocalizedString(panel->bundle, titleKey, titleKey,
                                               QStringLiteral("Localizable"));
    *context = reinterpret_cast<PMPDEContext>(panel);
    *creator = signature;
    *userOptionKind = &kPDEPanelKind;
    *title = &panel->title;
    *maxH = 0;
    *maxV = 0;
    return noErr;
}

} // namespace kelvo
