#pragma once

#include "child_process.h"
#include "helper_messages.h"
#include "texts.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QString>

#include <atomic>

// The programs that read, draw and write documents for us: a document is made by
// anybody, and what reads it must not be the process with the user's window and
// secrets in it. The libraries that they need bring dozens of others with them, which
// the program therefore never loads.
namespace kelvo {

enum class DocumentHelper {
    Pages,     // kelvo-pdf-pages: PDFs are checked, cut, and given their ticket (libqpdf)
    Converter, // kelvo-converter: text and pictures become PDF (Pango, cairo, Qt)
    Drawing,   // kelvo-page-drawing: pages become pictures (poppler)
};

// How `helper` is started, with the arguments that every helper has. NotFound when it
// does not lie beside the program's libraries (libraryFolder()).
Result<ChildProgram> documentHelper(DocumentHelper helper);

// In place of that folder; empty: that one.
void setDocumentHelperFolder(const QString &path);

// Which document a request is about, and how long it is wanted.
struct HelperJob
{
    QString where;                               // how messages name the document
    QString folder;                              // the helper's current and temporary folder
    const std::atomic_bool *cancelled = nullptr; // null: never
    int file = -1;                               // as ChildProgram::file
};

// Runs the helper for `task` with an encoded request; the encoded answer. Errors are
// about the document: see runChild(). NotFound and Damaged also for a helper that is
// not there or of another version.
Result<QByteArray> askHelper(Task task, const QByteArray &request, const HelperJob &job);
Error senselessAnswer(const QString &where);

// Asks for `task` with its arguments, in the order of helper_messages.h. Blocks: for
// worker threads.
template <typename Value, typename... Arguments>
Result<Value> ask(Task task, const HelperJob &job, const Arguments &...arguments)
{
    QByteArray request;
    QDataStream out(&request, QIODevice::WriteOnly);
    out << textSource().folder << textSource().languages << task;
    (out << ... << arguments);
    const Result<QByteArray> answer = askHelper(task, request, job);
    if (!answer)
        return answer.error();

    QDataStream in(answer.value());
    bool succeeded = false;
    in >> succeeded;
    Result<Value> result = Error{};
    if (succeeded) {
        if constexpr (std::is_void_v<Value>) {
            result = {};
        } else {
            Value value{};
            in >> value;
            result = std::move(value);
        }
    } else {
        Error error{};
        in >> error;
        result = error;
    }
    return in.status() == QDataStream::Ok && in.atEnd() ? result : senselessAnswer(job.where);
}

} // namespace kelvo
