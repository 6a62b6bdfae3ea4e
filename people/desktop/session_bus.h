#pragma once

#include "glib_owner.h"
#include "result.h"

namespace kelvo {

// The user's session bus, if there is one with an address book on it, running or not. None is
// started: NotFound or Unreachable say what to do.
Result<GLibOwner<GDBusConnection>> busWithAddressBook(GCancellable *cancellable);

// What is told when the bus or the address book on it fails; `where` is empty or a book's name.
Error doesNotAnswer(const GLibError &error, const QString &where = {});

} // namespace kelvo
