#pragma once

#include "printers.h"
#include "result.h"

namespace kelvo {

class Patience;

// What PrinterDirectory asks a server. Both block.

// Its queues, and instances of them that the user has set up, the default one first, else
// by name. One request, and another one where the server has to say which is the default.
// What only announces itself in the network is not among them: it has no queue yet, and
// libcups waits for it a quarter of a second (cupsGetDests2). `preferred` comes before the
// server's default, which it does not become, but not before one that the user has named
// (lpoptions, LPDEST, PRINTER).
Result<QList<Printer>> readPrinters(Patience &patience, const QString &preferred = {});

Result<PrinterCondition> readCondition(const QString &printer, Patience &patience);

} // namespace kelvo
