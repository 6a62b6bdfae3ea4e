#include "pdf_pages.h"

#include "document_helper.h"
#include "output_file.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

namespace kelvo {

Result<PdfPages> takenWhereSound(Result<PdfPages> pages, const QString &source,
                                 const QString &target)
{
    if (pages && pages.value().isSound
        && std::rename(QFile::encodeName(source).constData(), QFile::encodeName(target).constData())
            != 0) {
        return notWritable(target, errno);
    }
    return pages;
}

Result<PdfPages> tidyPdf(const QString &source, const QString &target, const QStringList &passwords,
                         const std::atomic_bool &cancelled)
{
    const HelperJob job{source, QFileInfo(target).path(), &cancelled};
    return takenWhereSound(ask<PdfPages>(Task::TidyPdf, job, source, target, passwords), source,
                           target);
}

Result<void> joinPdfs(const QStringList &sources, const QString &target,
                      const std::atomic_bool &cancelled)
{
    return ask<void>(Task::JoinPdfs, {target, QFileInfo(target).path(), &cancelled}, sources,
                     target);
}

} // namespace kelvo
