#include "pdf_ahead.h"

#include <QFile>
#include <QFileInfo>

namespace kelvo {

using Request = RunningHelper::Request;

PdfAhead::PdfAhead(const QString &name, RunningHelper &&writer, RunningHelper &&checker)
    : m_name(name)
    , m_writer(std::move(writer))
    , m_checker(std::move(checker))
{
}

std::shared_ptr<PdfAhead> PdfAhead::start(const QString &name)
{
    // Where the document's files will be is not known yet. All are named by their whole paths.
    const HelperJob job{name, QStringLiteral("/")};
    auto writer = RunningHelper::start(DocumentHelper::Pages, job);
    if (!writer)
        return nullptr;
    auto checker = RunningHelper::start(DocumentHelper::Pages, job);
    if (!checker)
        return nullptr;
    return std::shared_ptr<PdfAhead>(
        new PdfAhead(name, std::move(writer).value(), std::move(checker).value()));
}

Result<PdfPages> PdfAhead::tidy(const QString &source, const QString &target,
                                const std::atomic_bool &cancelled)
{
    const QString written = QFileInfo(target).path() + QStringLiteral("/written.pdf");
    Result<PdfPages> pages = takenWhereSound(
        ask<PdfPages>(m_writer, Request::Next, Task::TidyPdfToWrite,
                      {.where = source, .cancelled = &cancelled}, source, target, written, m_name),
        source, target);
    if (pages && pages.value().isSound)
        m_written = written;
    return pages;
}

Result<QString> PdfAhead::write(const QByteArray &mimeType, const QByteArray &bytes)
{
    if (m_written.isEmpty() || m_isUsed.exchange(true))
        return Error{Error::Code::NotFound, m_written, {}};
    Result<void> made =
        ask<void>(m_writer, Request::Last, Task::WritePdf, {.where = m_written}, mimeType, bytes);
    if (made) {
        made = ask<void>(m_checker, Request::Last, Task::CheckEmbeddedFile, {.where = m_written},
                         m_written, m_name, bytes);
    }
    if (made)
        return m_written;
    QFile::remove(m_written);
    return made.error();
}

} // namespace kelvo
