#include "pdf_output.h"

namespace kelvo::documents {

PdfOutput::PdfOutput(std::unique_ptr<OutputFile> file)
    : m_file(std::move(file))
    , m_canvas([file = m_file.get()](const char *bytes, std::size_t size) {
        return file->write(bytes, size);
    })
{
}

Result<PdfOutput> PdfOutput::create(const QString &path)
{
    Result<OutputFile> file = OutputFile::create(path);
    if (!file)
        return file.error();
    return PdfOutput(std::make_unique<OutputFile>(std::move(file).value()));
}

Result<void> PdfOutput::close()
{
    const Result<void> drawn = m_canvas.close();
    // The system's reason says more than cairo's.
    if (Result<void> closed = m_file->close(); !closed)
        return closed;
    if (!drawn)
        return Error{drawn.error().code, m_file->error().where, drawn.error().detail};
    return {};
}

} // namespace kelvo::documents
