#pragma once

#include "output_file.h"
#include "result.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>

#include <QString>
#include <QStringList>

#include <exception>

// PDFs as libqpdf reads and writes them. It throws; nothing leaves guarded().
namespace kelvo::documents {

// What libqpdf said of the document at `path`.
Error damaged(const QString &path, const QPDFExc &problem);
Error damaged(const QString &path, const std::exception &problem);

// `work`, which may throw what libqpdf throws, as a result about `path`.
template <typename Work>
auto guarded(const QString &path, Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const QPDFExc &problem) {
        return damaged(path, problem);
    } catch (const std::exception &problem) {
        return damaged(path, problem);
    }
}

// For load(); NotReadable.
Result<std::FILE *> openToRead(const QString &path);

// The files of a task, opened before anything is read of them; from then on no other
// file can be opened. NotReadable or NotWritable.
struct PdfFiles
{
    std::FILE *source = nullptr; // for load()
    std::optional<OutputFile> target;
    std::optional<OutputFile> second; // where a task writes two
};
Result<PdfFiles> openPdfFiles(const QString &source, const QString &target = {},
                              const QString &second = {});

// Takes `source` over, also where it throws. Its file must stay as it is for as long as `pdf`.
// A document that asks for a password is opened with the first of `passwords` that lets it be
// printed, else with the first that is right.
void load(QPDF &pdf, std::FILE *source, const QStringList &passwords = {});

// Whether whoever opened `pdf` so may print it.
bool mayPrint(QPDF &pdf);

// Writes `pdf`, never encrypted. Throws where the document is at fault; NotWritable
// for a disk that filled up.
Result<void> writePdf(QPDF &pdf, OutputFile &target);

} // namespace kelvo::documents
