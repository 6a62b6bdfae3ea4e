#pragma once

#include "plugin_abi.h"
#include "print_session.h"
#include "result.h"

#include <QStringList>

namespace kelvo {

// The device's panels, as a session drives them; where they stand is no business of
// its. All calls come on the GUI thread: load() once, then begin(), any number of
// sync(), and end() for each printer.
class DevicePanels
{
public:
    virtual ~DevicePanels() = default;

    virtual Result<void> load() = 0;
    // All of them, and the first is shown. `tickets` must live until end(). An error: they
    // are not made for this printer; nothing has begun then.
    virtual Result<void> begin(PrintSession &tickets) = 0;
    virtual bool isBegun() const = 0;
    // Of all panels, the one that the user sees last; nothing before begin(). kSyncWrite
    // is what Print does.
    virtual void sync(SyncDirection direction) = 0;
    virtual void end(OSStatus status) = 0;
};

} // namespace kelvo
