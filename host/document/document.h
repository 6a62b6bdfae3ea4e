#pragma once

#include "outgoing_pdf.h"
#include "result.h"

#include <QSizeF>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

class PdfAhead;

// What the user prints, as a PDF in a private 0600 file that goes when the last
// copy of this goes. A value; cheap to copy; never changes.
class Document
{
public:
    QString title() const;
    QString pdfPath() const;
    int pageCount() const;
    QSizeF pageSize(int page) const; // points, as shown (rotation counted); page
                                     // from 1, else an invalid size
    bool isNull() const { return !d; }
    // Whether the PDF was damaged and what could be saved of it stands here:
    // worth a look at the preview before it is printed.
    bool isRepaired() const;
    // A sentence on what of the source is not in the PDF; mostly empty.
    QString remark() const;

    // A PDF that has been made of it, and who owns its file.
    struct Written
    {
        QString path;
        std::shared_ptr<const void> owner;
    };
    // What makeOutgoingPdf() would make of it. Only where it was opened with a PdfAhead, and
    // once: where there is none, for whatever reason, pdfPath() is to be read.
    std::optional<Written> writtenAhead(const PdfLayout &layout, const EmbeddedFile &file) const;

private:
    friend class DocumentReader;
    struct Data;
    std::shared_ptr<const Data> d;
};

// A document that only a password opens, or lets be printed, with the copy that was made of it: a
// pipe is read once. A value; cheap to copy.
class LockedDocument
{
public:
    bool isNull() const { return !d; }
    // Locked or Refused: that is not the password. It can be tried again, but not at once in two
    // threads. As openDocument() else.
    Result<Document> unlocked(const QString &password, const std::atomic_bool &cancelled) const;

private:
    friend class DocumentReader;
    struct Data;
    std::shared_ptr<const Data> d;
};

// A PDF that is checked, copied and counted. What qpdf can repair is repaired,
// else it is Damaged; Locked when it asks for a password, Refused when its author does
// not allow printing. `title` empty: the file's name.
Result<Document> documentFromPdf(const QString &path, const QString &title);

// One document of all pages of `documents`, in their order; each keeps what is typed into its
// fields (see joinPdfs()). Blocks; errors as of openDocument().
Result<Document> joinDocuments(const std::vector<Document> &documents, const QString &title,
                               const std::atomic_bool &cancelled);

// Where a document comes from.
struct DocumentSource
{
    QString path;  // "-" or empty: standard input
    QString title; // empty: the file's name, "(stdin)" for standard input
    // How long a pipe that `path` names may send nothing before it is given up; 0, and
    // for standard input: for ever.
    int patienceMs = 0;
    QStringList passwords = {}; // tried where it asks for one
};

// What the job is called, in one line that every place takes where a title goes: the
// ticket, the print server, windows. Control characters and what turns the direction
// of text are left out.
QString titleOf(const DocumentSource &source);
// A title that somebody asks for, likewise; empty where nothing of it is left.
QString askedTitle(const QString &title);

// Reads PDF, PostScript, plain text (UTF-8, else Latin-1) and pictures, told
// apart by their bytes, and makes a PDF of each, in child processes with limits on
// time, memory and size; PostScript through Ghostscript. Blocks: call it on a worker
// thread; `cancelled` is looked at ten times a second.
// Unsupported, TooLarge (limits::documentBytes, textBytes, pictureBytes),
// Damaged, Locked, Refused, TimedOut and Cancelled are about the source, and so is a text that
// no font has the characters of (Unsupported); NotWritable is about the temporary
// folder.
//
// With `ahead`, what the helper has read is kept for writtenAhead(). `locked` gets what a password
// is missing for.
Result<Document> openDocument(const DocumentSource &source, const std::atomic_bool &cancelled,
                              std::shared_ptr<PdfAhead> ahead = {},
                              LockedDocument *locked = nullptr);

} // namespace kelvo
