#pragma once

#include "asked_option.h"
#include "result.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace kelvo {

// What the user asked for. See usageText() for each option.
struct CommandLine
{
    // Documents, in order; "-", at most once: standard input. Empty: that, or the sample of
    // --demo.
    QStringList files;
    bool join = false;                  // --join: one job of all
    std::optional<QString> destination; // -d
    std::optional<int> copies;          // -n, 1 to 9999
    QList<AskedOption> options;         // -o, in order
    std::optional<QString> pages;       // -P
    std::optional<int> priority;        // -q, 1 to 100
    std::optional<QString> holdUntil;   // -H, as job-hold-until has it
    std::optional<QString> title;       // -t
    std::optional<QString> ppd;         // --ppd: a device without a queue
    bool demo = false;
    std::optional<QString> ticketIn, ticketOut, preset, presetOut, script;
    bool print = false;                 // --print: after the script
    QMap<QString, QString> secretFiles; // --secret NAME=FILE
    bool noWindow = false;
    std::optional<QString> toFolder, toPdf; // --to: at most one of them
    bool wait = false;                      // --wait: until the job is over
    int timeoutSeconds = 30;                // --timeout, 1 to 3600
    std::optional<QString> language;        // --language, "de" or "de_AT"
    bool listPrinters = false, listControls = false, version = false, help = false;
    bool helpScripts = false; // --help-scripts
};

// Whether standard input is one of the documents.
bool readsStandardInput(const CommandLine &line);

// Refused with what was wrong, where, and the nearest option that exists.
Result<CommandLine> parseCommandLine(const QStringList &arguments);
QString usageText();

// The value of --language, also of arguments that are refused: what is said of those is
// said in it.
std::optional<QString> languageAsked(const QStringList &arguments);

} // namespace kelvo
