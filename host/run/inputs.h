#pragma once

#include "command_line.h"
#include "document_opening.h"
#include "exit_status.h"
#include "last_used.h"
#include "pdf_helpers.h"
#include "print_dialog.h"
#include "script_parser.h"

#include <QMap>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

// What a run begins with.
struct Inputs
{
    DialogOptions options;
    QMap<QString, QString> secrets; // texts of --secret, by name
    std::vector<ScriptLine> script;
};

// What is begun before there is an application, and answers once there is an event loop.
struct BegunAhead
{
    std::shared_ptr<DocumentOpening> document; // null: opened by the dialog
    // Asked for the printers, and for the PPD of the one that is named: the server works while Qt
    // is loaded. Null: there is a device without a queue, or nobody to hear the answer, which
    // comes once, as long as the user chooses a document.
    std::shared_ptr<PrinterDirectory> printers;
    std::optional<LastUsed> lastUsed; // none: this run is none that begins there
};
BegunAhead beginAhead(const CommandLine &line, std::optional<PdfHelpers> helpers);

// What stands in the command line itself.
Inputs beginInputs(const CommandLine &line, BegunAhead ahead);

// What the program ends with, and says.
struct InputFailure
{
    ExitStatus status;
    QString text;            // empty for Cancelled
    bool isOfScript = false; // "FILE:LINE: …", as a script's run tells its own
};

// Adds what is in files that the command line names: all that can be read before there is a
// window. None when all is well.
std::optional<InputFailure> readInputs(const CommandLine &line, Inputs &inputs);

} // namespace kelvo
