#include "early_work.h"

#include "background_work.h"
#include "interruption.h"

#include <dlfcn.h>

namespace kelvo {

namespace {

// The document, the printers, their PPD, the preview and two for painting. Qt paints large
// areas on threads of its own, and waits for ever for one that could not be started.
constexpr int threadsAtOnce = 6;

// A private run-time folder where the session has none: Qt would warn and make
// one of its own that stays.
std::unique_ptr<TemporaryFolder> provideRuntimeFolder()
{
    if (!qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR"))
        return nullptr;
    auto folder = std::make_unique<TemporaryFolder>();
    if (folder->isValid())
        qputenv("XDG_RUNTIME_DIR", folder->path().toLocal8Bit());
    return folder;
}

// Looks for the fonts. Qt brings fontconfig, and would look for them when it is loaded; what needs
// no window does not link it. Opened here and not on the thread: there it would wait for Qt's
// libraries, as they are loaded one after the other. Null: Qt looks for the fonts.
using FindFonts = int();
FindFonts *openFontconfig()
{
    void *library = ::dlopen("libfontconfig.so.1", RTLD_LAZY);
    return library ? reinterpret_cast<FindFonts *>(::dlsym(library, "FcInit")) : nullptr;
}

} // namespace

std::optional<EarlyWork> beginEarlyWork(const CommandLine &line)
{
    noteInterruptions();
    EarlyWork early;
    early.runtimeFolder = provideRuntimeFolder();
    // Fonts are a quarter of a run that nobody sees: "minimal" has none.
    const bool isSeen = !line.noWindow || line.script;
    if (!isSeen)
        qputenv("QT_QPA_PLATFORM", "minimal;offscreen");
    else if (line.noWindow || line.listControls)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!isSeen && !line.listControls)
        early.helpers = PdfHelpers::start();
    const auto enough = std::make_shared<std::promise<bool>>();
    early.areThreadsToBeHad = enough->get_future();
    if (!startBackgroundWork([enough, findFonts = isSeen ? openFontconfig() : nullptr] {
            if (findFonts)
                findFonts();
            // A thread that begins waits for libraries that are being loaded.
            enough->set_value(canStartThreads(threadsAtOnce));
        }))
        return std::nullopt;
    return early;
}

} // namespace kelvo
