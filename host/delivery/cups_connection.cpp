#include "cups_connection.h"

#include "texts.h"

#include <QByteArray>

#include <algorithm>
#include <chrono>
#include <vector>

namespace kelvo {

namespace {

using Code = Error::Code;

qint64 now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

// How often a blocked call of libcups asks whether it should go on.
constexpr double wakeUp = 0.2; // seconds

int goOn(http_t *, void *patience)
{
    return static_cast<Patience *>(patience)->isOver() ? 0 : 1;
}

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

QString howToFindTheServer()
{
    return translate("Delivery",
                     "check that it runs (lpstat -r), or name another one with CUPS_SERVER");
}

} // namespace

Patience::Patience(int timeoutMs)
    : m_timeoutMs(timeoutMs)
    , m_lastProgress(now())
{
}

void Patience::progress()
{
    m_lastProgress = now();
}

bool Patience::isTimedOut(int graceMs) const
{
    return now() - m_lastProgress >= m_timeoutMs + graceMs;
}

QString serverName()
{
    const QString server = QString::fromUtf8(cupsServer());
    return server.startsWith(u'/') ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

Result<Connection> connectToServer(Patience &patience)
{
    // libcups keeps its settings by thread. Its own call back would ask on the
    // terminal, and wait there.
    cupsSetPasswordCB2(noPassword, nullptr);
    Connection http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 patience.timeoutMs(), nullptr));
    if (!http) {
        if (patience.isOver())
            return serverError(patience, serverName());
        // libcups says "Host is down" of any that takes no connection.
        const QString reason = cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE
            ? translate("Delivery", "nothing takes connections there")
            : QString::fromUtf8(cupsLastErrorString()).simplified();
        return Error{Code::Unreachable, serverName(),
                     joined({translate("Delivery", "no print server can be reached at %1: %2")
                                 .arg(serverName(), reason),
                             howToFindTheServer()})};
    }
    endWith(http.get(), patience);
    patience.progress();
    return http;
}

void endWith(http_t *http, Patience &patience)
{
    httpSetTimeout(http, wakeUp, goOn, &patience);
}

ipp_t *newRequest(ipp_op_t operation)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

ipp_t *newRequest(ipp_op_t operation, const QString &queue)
{
    ipp_t *request = ippNewRequest(operation);
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

void askFor(ipp_t *request, std::initializer_list<const char *> attributes)
{
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(attributes.size()), nullptr, attributes.begin());
}

namespace {

// An answer in memory.
struct Answer
{
    QByteArray bytes;
    qsizetype at = 0; // up to which it is read
};

ssize_t readOn(void *context, ipp_uchar_t *buffer, size_t size)
{
    auto *answer = static_cast<Answer *>(context);
    const qsizetype count = std::min(qsizetype(size), answer->bytes.size() - answer->at);
    std::copy_n(answer->bytes.constData() + answer->at, count, reinterpret_cast<char *>(buffer));
    answer->at += count;
    return count;
}

// Null: there is no answer, or none that says yes.
Message answerTo(http_t *http, ipp_t *request, Patience &patience)
{
    if (cupsSendRequest(http, request, "/", ippLength(request)) != HTTP_STATUS_CONTINUE)
        return nullptr;
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE && !patience.isOver())
        status = httpUpdate(http);
    if (status != HTTP_STATUS_OK)
        return nullptr;
    Answer answer;
    std::vector<char> block(64 * 1024);
    ssize_t count = 0;
    while ((count = httpRead2(http, block.data(), block.size())) > 0) {
        patience.progress();
        answer.bytes.append(block.data(), count);
    }
    Message response(ippNew());
    const bool isWhole =
        count == 0 && ippReadIO(&answer, readOn, 1, nullptr, response.get()) == IPP_STATE_DATA;
    return isWhole && ippGetStatusCode(response.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE
        ? std::move(response)
        : nullptr;
}

} // namespace

// What is unusual, such as a server that asks who this is, libcups knows how to do, and to tell.
Message askAtOnce(http_t *http, ipp_t *request, Patience &patience)
{
    if (Message response = answerTo(http, request, patience)) {
        ippDelete(request);
        return response;
    }
    if (!patience.isOver())
        httpReconnect2(http, patience.timeoutMs(), nullptr);
    return Message(cupsDoRequest(http, request, "/"));
}

bool lastCallSucceeded()
{
    return cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE;
}

Error noThread(const QString &where)
{
    return {Code::NotReadable, where, noThreadReason()};
}

Error timedOut(const Patience &patience, const QString &where)
{
    return {Code::TimedOut, where,
            joined({translate("Delivery", "the print server at %1 did not answer for %2 s")
                        .arg(serverName(), QString::number(patience.timeoutMs() / 1000.0)),
                    howToFindTheServer()})};
}

Error serverError(const Patience &patience, const QString &where)
{
    if (patience.isStopped())
        return {Code::Cancelled, where, translate("Delivery", "cancelled")};
    if (patience.isTimedOut())
        return timedOut(patience, where);
    const QString reason = QString::fromUtf8(cupsLastErrorString()).simplified();
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        return {Code::NotFound, where,
                translate("Delivery",
                          "the print server at %1 has no such printer; lpstat -e lists those "
                          "it has")
                    .arg(serverName())};
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
        return {Code::Unreachable, where,
                joined({translate("Delivery", "the print server at %1 does not answer (%2)")
                            .arg(serverName(), reason),
                        howToFindTheServer()})};
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
        return {Code::Refused, where,
                translate("Delivery",
                          "the print server at %1 asks for a password, which this program "
                          "cannot give; ask its administrator to let you print")
                    .arg(serverName())};
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
        return {Code::Refused, where,
                translate("Delivery",
                          "the print server at %1 does not let you use this printer; ask its "
                          "administrator")
                    .arg(serverName())};
    default:
        return {
            Code::Refused, where,
            translate("Delivery", "the print server at %1 said no: %2").arg(serverName(), reason)};
    }
}

Result<QString> queueName(const QString &printer)
{
    const QString name = printer.section(u'/', 0, 0);
    for (const QChar character : name) {
        if (character.unicode() <= 0x20 || character.unicode() == 0x7f || character == u'#'
            || character == u'?')
            return Error{Code::NotFound, printer,
                         translate("Delivery", "no printer has such a name")};
    }
    if (name.isEmpty() || name.toUtf8().size() > 127)
        return Error{Code::NotFound, printer, translate("Delivery", "no printer has such a name")};
    return name;
}

} // namespace kelvo
