#pragma once

#include "child_process.h"
#include "helper_messages.h"
#include "secrets.h"
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

// A helper that runs, and waits for a request. Started before it is known what it will be asked,
// it has loaded its libraries by then. It ends with the thread that starts it.
class RunningHelper
{
public:
    // NotFound and Damaged where it is not there, or is of another version.
    static Result<RunningHelper> start(DocumentHelper helper, const HelperJob &job);
    // The same for documentHelper() with limits of its own.
    static Result<RunningHelper> start(Result<ChildProgram> program, const HelperJob &job);

    enum class Request { Next, Last }; // after the last one it ends
    // The answer to an encoded request, in any thread. Errors are about the document: see
    // runChild(). Damaged also for a helper of another version.
    Result<QByteArray> ask(const QByteArray &request, Request which, const HelperJob &job);

private:
    RunningHelper(RunningChild &&child, QString program);

    RunningChild m_child;
    QString m_program;
};

// The same with a helper that is started for the one request, the one that knows `task`.
Result<QByteArray> askHelper(Task task, const QByteArray &request, const HelperJob &job);
Error senselessAnswer(const QString &where);

// A request for `task` with its arguments, in the order of helper_messages.h.
template <typename... Arguments>
QByteArray helperRequest(Task task, const Arguments &...arguments)
{
    QByteArray request;
    QDataStream out(&request, QIODevice::WriteOnly);
    out << textSource().folder << textSource().languages << task;
    (out << ... << arguments);
    return request;
}

// What an answer about `where` says.
template <typename Value>
Result<Value> decodedAnswer(const Result<QByteArray> &answer, const QString &where)
{
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
    return in.status() == QDataStream::Ok && in.atEnd() ? result : senselessAnswer(where);
}

// Asks for `task`. Blocks: for worker threads.
template <typename Value, typename... Arguments>
Result<Value> ask(Task task, const HelperJob &job, const Arguments &...arguments)
{
    QByteArray request = helperRequest(task, arguments...);
    const Result<QByteArray> answer = askHelper(task, request, job);
    overwrite(request); // with passwords and tickets
    return decodedAnswer<Value>(answer, job.where);
}

// The same of a helper that runs.
template <typename Value, typename... Arguments>
Result<Value> ask(RunningHelper &helper, RunningHelper::Request which, Task task,
                  const HelperJob &job, const Arguments &...arguments)
{
    QByteArray request = helperRequest(task, arguments...);
    const Result<QByteArray> answer = helper.ask(request, which, job);
    overwrite(request);
    return decodedAnswer<Value>(answer, job.where);
}

} // namespace kelvo
