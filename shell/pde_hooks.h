#pragma once

#include "plugin_abi.h"

// Called first by the shell's operations, each with the operation's own
// arguments: the one place for what a product built on the shell does beside
// it. The session is kept from Initialize to Terminate; the others answer noErr
// and do nothing.
namespace kelvo {

OSStatus KelvoPDEProlog(PMPDEContext *context, OSType *creator, CFStringRef *userOptionKind,
                        CFStringRef *title, std::uint32_t *maxH, std::uint32_t *maxV);
// Makes `session` the current print session, also when it is null.
OSStatus KelvoPDEInitialize(PMPDEContext context, std::uint32_t *flags, PMPDERef ref,
                            PMUserPane parentUserPane, PMPrintSession session);
OSStatus KelvoPDESync(PMPDEContext context, PMPrintSession session, std::int32_t direction);
OSStatus KelvoPDEGetSummaryText(PMPDEContext context, SummaryArray *titles, SummaryArray *texts);
OSStatus KelvoPDEOpen(PMPDEContext context);
OSStatus KelvoPDEClose(PMPDEContext context);
// There is no current print session afterwards.
OSStatus KelvoPDETerminate(PMPDEContext context, OSStatus status);

} // namespace kelvo
