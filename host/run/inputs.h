#pragma once

#include "command_line.h"
#include "document_opening.h"
#include "exit_status.h"
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

// A document that nobody looks at, no script either, is printed as soon as the panels have spoken:
// it is opened before they are loaded. Null: as late as one that is shown.
std::shared_ptr<DocumentOpening> openAhead(const CommandLine &line);

// What stands in the command line itself. The print server is asked for its printers, and for the
// PPD of the one that is named: it works while a window is built.
Inputs beginInputs(const CommandLine &line);

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
