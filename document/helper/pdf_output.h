#pragma once

#include "output_file.h"
#include "pdf_canvas.h"

namespace kelvo::documents {

// A PDF that is drawn straight into a new 0600 file.
class PdfOutput
{
public:
    static Result<PdfOutput> create(const QString &path);

    PdfCanvas &canvas() { return m_canvas; }

    // NotWritable when anything was lost.
    Result<void> close();

private:
    explicit PdfOutput(std::unique_ptr<OutputFile> file);

    std::unique_ptr<OutputFile> m_file; // on the heap: the canvas writes into it
    PdfCanvas m_canvas;
};

} // namespace kelvo::documents
