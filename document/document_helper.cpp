#include "document_helper.h"

#include "folders.h"
#include "texts.h"

#include <QFileInfo>
#include <QMutex>

#include <algorithm>
#include <cstring>

namespace kelvo {

namespace {

struct HelperFolder
{
    QMutex mutex;
    QString path; // empty: libraryFolder()
};

// Never destroyed: a thread may outlive every static object.
HelperFolder &helperFolder()
{
    static auto &state = *new HelperFolder;
    return state;
}

QLatin1String nameOf(DocumentHelper helper)
{
    switch (helper) {
    case DocumentHelper::Pages:
        return QLatin1String("kelvo-pdf-pages");
    case DocumentHelper::Converter:
        return QLatin1String("kelvo-converter");
    case DocumentHelper::Drawing:
        return QLatin1String("kelvo-page-drawing");
    }
    return {};
}

DocumentHelper helperFor(Task task)
{
    switch (task) {
    case Task::ConvertText:
    case Task::ConvertPicture:
    case Task::ImportPicture:
        return DocumentHelper::Converter;
    case Task::TidyPdf:
    case Task::TidyPdfToWrite:
    case Task::WritePdf:
    case Task::MakePdf:
    case Task::JoinPdfs:
    case Task::CheckEmbeddedFile:
        break;
    }
    return DocumentHelper::Pages;
}

int secondsFor(Task task)
{
    // A long text is no sign of anything wrong; it has a limit of its own.
    if (task == Task::ConvertText)
        return 0;
    return task == Task::ImportPicture ? limits::importSeconds : limits::converterSeconds;
}

} // namespace

void setDocumentHelperFolder(const QString &path)
{
    const QMutexLocker lock(&helperFolder().mutex);
    helperFolder().path = path;
}

Result<ChildProgram> documentHelper(DocumentHelper helper)
{
    QString folder;
    {
        const QMutexLocker lock(&helperFolder().mutex);
        folder = helperFolder().path;
    }
    if (folder.isEmpty())
        folder = libraryFolder();
    const QString name = nameOf(helper);
    const QString path = folder + QLatin1Char('/') + name;
    if (QFileInfo::exists(path))
        return ChildProgram{.program = path, .arguments = {QStringLiteral(KELVO_VERSION)}};
    return Error{Error::Code::NotFound, name,
                 translate("Document",
                           "this part that reads documents is not installed beside the "
                           "program; install kelvo-print anew")};
}

Error senselessAnswer(const QString &where)
{
    return Error{Error::Code::Damaged, where,
                 translate("Document",
                           "the program that reads it gave no answer that makes sense; the "
                           "file may be damaged")};
}

RunningHelper::RunningHelper(RunningChild &&child, QString program)
    : m_child(std::move(child))
    , m_program(std::move(program))
{
}

Result<RunningHelper> RunningHelper::start(Result<ChildProgram> program, const HelperJob &job)
{
    if (!program)
        return program.error();
    ChildProgram &child = program.value();
    child.folder = job.folder;
    child.file = job.file;
    Result<RunningChild> started = RunningChild::start(child, job.where);
    if (!started)
        return started.error();
    return RunningHelper(std::move(started).value(), child.program);
}

Result<RunningHelper> RunningHelper::start(DocumentHelper helper, const HelperJob &job)
{
    return start(documentHelper(helper), job);
}

Result<QByteArray> RunningHelper::ask(const QByteArray &request, Request which,
                                      const HelperJob &job)
{
    const MessageSize size = static_cast<MessageSize>(request.size());
    constexpr qsizetype header = sizeof size;
    QByteArray input = QByteArray(reinterpret_cast<const char *>(&size), header) + request;
    const auto isAnswer = [](const QByteArray &output) {
        MessageSize announced = 0;
        if (output.size() < header)
            return false;
        std::memcpy(&announced, output.constData(), header);
        const auto rest = static_cast<MessageSize>(output.size() - header);
        // More than was announced, or than is ever told, is none that makes sense.
        return rest >= announced || announced > kMostAnswered;
    };
    static const std::atomic_bool never = false;
    Result<ChildEnd> end = m_child.ask(
        input, which == Request::Last ? RunningChild::Input::Ends : RunningChild::Input::GoesOn,
        isAnswer, job.where, job.cancelled ? *job.cancelled : never);
    overwrite(input);
    if (!end)
        return end.error();
    switch (end.value().status) {
    case 0:
        return std::move(end.value().output).sliced(std::min(header, end.value().output.size()));
    case kOtherVersionStatus:
        return Error{Error::Code::Damaged, m_program,
                     translate("Document",
                               "this is not the part that reads documents of kelvo-print %1; "
                               "install kelvo-print anew")
                         .arg(QStringLiteral(KELVO_VERSION))};
    case kOutOfMemoryStatus:
        return Error{Error::Code::TooLarge, job.where,
                     translate("Document", "reading it needs more than %1 MB of memory")
                         .arg(limits::converterMemory / limits::MiB)};
    default:
        return Error{Error::Code::Damaged, job.where,
                     translate("Document", "the program that reads it ended with status %1: %2")
                         .arg(end.value().status)
                         .arg(end.value().message.section(u'\n', -1))};
    }
}

Result<QByteArray> askHelper(Task task, const QByteArray &request, const HelperJob &job)
{
    Result<ChildProgram> child = documentHelper(helperFor(task));
    if (child)
        child.value().seconds = secondsFor(task);
    Result<RunningHelper> helper = RunningHelper::start(std::move(child), job);
    if (!helper)
        return helper.error();
    return helper.value().ask(request, RunningHelper::Request::Last, job);
}

} // namespace kelvo
