#include "printer_list.h"

#include "printers.h"
#include "program_end.h"
#include "terminal.h"

namespace kelvo {

int printQueues(int timeoutMs)
{
    const auto printers = listPrinters(timeoutMs);
    if (!printers)
        return fail(ExitStatus::NoDestination, printers.error().detail);
    for (const Printer &printer : printers.value()) {
        const QString state = !printer.acceptsJobs  ? QStringLiteral("rejecting")
            : printer.state == Printer::State::Idle ? QStringLiteral("idle")
            : printer.state == Printer::State::Busy ? QStringLiteral("printing")
                                                    : QStringLiteral("stopped");
        // No column is empty: a shell's `read` would take the next one for it.
        const QString none = QStringLiteral("-");
        const auto orNone = [&none](const QString &text) {
            return text.trimmed().isEmpty() ? none : text.simplified();
        };
        printLine(stdout,
                  QStringList{printer.name, state,
                              printer.isDefault ? QStringLiteral("default") : none,
                              orNone(printer.makeAndModel), orNone(printer.location)});
    }
    return 0;
}

} // namespace kelvo
