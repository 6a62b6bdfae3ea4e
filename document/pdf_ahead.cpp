#include "pdf_ahead.h"

#include <QFile>
#include <QFileInfo>

namespace kelvo {

using Request = RunningHelper::Request;

PdfAhead::PdfAhead(PdfHelpers helpers, const QString &name)
    : m_helpers(std::move(helpers))
    , m_name(name)
{
}

Result<PdfPages> PdfAhead::tidy(const QString &source, const QString &target,
                                const QStringList &passwords, const std::atomic_bool &cancelled)
{
    const QString written = QFileInfo(target).path() + QStringLiteral("/written.pdf");
    Result<PdfPages> pages =
        takenWhereSound(ask<PdfPages>(m_helpers.writer, Request::Next, Task::TidyPdfToWrite,
                                      {.where = source, .cancelled = &cancelled}, source, target,
                                      passwords, written, m_name),
                        source, target);
    if (pages && pages.value().isSound)
        m_written = written;
    return pages;
}

Result<QString> PdfAhead::write(const PdfLayout &layout, const EmbeddedFile &file)
{
    if (m_written.isEmpty() || file.name != m_name || m_isUsed.exchange(true))
        return Error{Error::Code::NotFound, m_written, {}};
    Result<void> made = ask<void>(m_helpers.writer, Request::Last, Task::WritePdf,
                                  {.where = m_written}, layout, file);
    if (made) {
        made = ask<void>(m_helpers.checker, Request::Last, Task::CheckEmbeddedFile,
                         {.where = m_written}, m_written, m_name, file.bytes);
    }
    if (made)
        return m_written;
    QFile::remove(m_written);
    return made.error();
}

} // namespace kelvo
