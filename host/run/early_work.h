#pragma once

#include "command_line.h"
#include "pdf_helpers.h"
#include "temporary_folder.h"

#include <future>
#include <memory>
#include <optional>

namespace kelvo {

// What is begun before the dialog's libraries are loaded: that takes as long as fonts take to be
// found.
struct EarlyWork
{
    std::unique_ptr<TemporaryFolder> runtimeFolder; // where the session has none; lives for the run
    // Set when the fonts have been looked for: whether the system gives as many threads as the
    // dialog needs. Whoever asks for fonts before would look for them a second time.
    std::future<bool> areThreadsToBeHad;
    // For a document that nobody looks at, no script either: it is printed as soon as the panels
    // have spoken. None: it is opened as late as one that is shown.
    std::optional<PdfHelpers> helpers;
};

// Makes the environment that the dialog runs in, and begins. From now on signals are a Cancel
// (interruption.h). Call it while there is no other thread. None when the system has no thread to
// give (see noThreadReason).
std::optional<EarlyWork> beginEarlyWork(const CommandLine &line);

} // namespace kelvo
