#pragma once

#include "document_helper.h"

#include <optional>

namespace kelvo {

// The helpers of a PdfAhead (pdf_ahead.h). They load their libraries from their start on, while
// the program loads its own. They end with the calling thread, and with this.
struct PdfHelpers
{
    // None: they cannot be started. Whoever reads the document without them says why.
    static std::optional<PdfHelpers> start();

    RunningHelper writer;  // reads, and writes
    RunningHelper checker; // looks again at what was written
};

} // namespace kelvo
