#include "pde_hooks.h"

#include "pde_session.h"

namespace kelvo {

OSStatus KelvoPDEProlog(PMPDEContext *, OSType *, CFStringRef *, CFStringRef *, std::uint32_t *,
                        std::uint32_t *)
{
    return noErr;
}

OSStatus KelvoPDEInitialize(PMPDEContext, std::uint32_t *, PMPDERef, PMUserPane,
                            PMPrintSession session)
{
    setCurrentPrintSession(session);
    return noErr;
}

OSStatus KelvoPDESync(PMPDEContext, PMPrintSession, std::int32_t)
{
    return noErr;
}

OSStatus KelvoPDEGetSummaryText(PMPDEContext, SummaryArray *, SummaryArray *)
{
    return noErr;
}

OSStatus KelvoPDEOpen(PMPDEContext)
{
    return noErr;
}

OSStatus KelvoPDEClose(PMPDEContext)
{
    return noErr;
}

OSStatus KelvoPDETerminate(PMPDEContext, OSStatus)
{
    setCurrentPrintSession(nullptr);
    return noErr;
}

} // namespace kelvo
