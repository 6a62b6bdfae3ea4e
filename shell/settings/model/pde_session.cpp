#include "pde_session.h"

#include "print_session.h"

#include <cstring>

namespace kelvo {

namespace {

PMPrintSession currentSession = nullptr;
OSStatus (*shellSync)(PMPrintSession, std::int32_t) = nullptr;
JobTypeProvider currentJobTypeProvider;

} // namespace

PMPrintSession GetCurrentPrintSession()
{
    return currentSession;
}

void setCurrentPrintSession(PMPrintSession session)
{
    currentSession = session;
}

CFBundleRef GetPDEBundle()
{
    return CFBundleGetBundleWithIdentifier(kPDEBundleIdentifier);
}

OSStatus GetTicketFromSession(PMPrintSession session, const QString &key, PMTicketRef *out)
{
    if (!out)
        return paramErr;
    QByteArray handle;
    const OSStatus status = PMSessionGetDataFromSession(session, key, &handle);
    if (status == noErr && handle.size() == sizeof(PMTicketRef))
        std::memcpy(out, handle.constData(), sizeof(PMTicketRef));
    return status;
}

OSStatus PDESync(PMPrintSession session, std::int32_t direction)
{
    return shellSync ? shellSync(session, direction) : kPMInvalidParameter;
}

void setShellSync(OSStatus (*sync)(PMPrintSession session, std::int32_t direction))
{
    shellSync = sync;
}

void setJobTypeProvider(const JobTypeProvider &provider)
{
    currentJobTypeProvider = provider;
}

const JobTypeProvider &jobTypeProvider()
{
    return currentJobTypeProvider;
}

} // namespace kelvo
