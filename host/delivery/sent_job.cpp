#include "sent_job.h"

#include "cups_connection.h"
#include "printer_condition.h"
#include "printer_list.h"
#include "texts.h"

#include <algorithm>

namespace kelvo {

namespace {

using Code = Error::Code;
using State = JobCondition::State;

ipp_t *requestAbout(const SentJob &job, ipp_op_t operation)
{
    ipp_t *request = ippNewRequest(operation);
    // Not by its queue: an administrator may have moved it to another one.
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 ("ipp://localhost/jobs/" + QByteArray::number(job.id)).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

QStringList words(ipp_t *response, const char *name)
{
    QStringList list;
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_KEYWORD);
    for (int i = 0; i < ippGetCount(attribute); ++i)
        list << QString::fromUtf8(ippGetString(attribute, i, nullptr));
    return list;
}

int number(ipp_t *response, const char *name)
{
    return std::max(0, ippGetInteger(ippFindAttribute(response, name, IPP_TAG_INTEGER), 0));
}

QString text(ipp_t *response, const char *name, ipp_tag_t tag)
{
    return QString::fromUtf8(ippGetString(ippFindAttribute(response, name, tag), 0, nullptr));
}

State stateFrom(int value)
{
    switch (value) {
    case IPP_JSTATE_HELD:
        return State::Held;
    case IPP_JSTATE_PROCESSING:
        return State::Printing;
    case IPP_JSTATE_STOPPED:
        return State::Stopped;
    case IPP_JSTATE_CANCELED:
        return State::Cancelled;
    case IPP_JSTATE_ABORTED:
        return State::Aborted;
    case IPP_JSTATE_COMPLETED:
        return State::Completed;
    default:
        return State::Waiting;
    }
}

// What the printer says while it has the job; the server's own notes are for nobody.
QString printersReason(ipp_t *response)
{
    QStringList reasons = words(response, "job-printer-state-reasons");
    reasons.removeIf([](const QString &reason) {
        return reason.startsWith(QLatin1String("cups-"))
            || reason.startsWith(QLatin1String("com.apple."))
            || reason.endsWith(QLatin1String("-report"));
    });
    return stateWords({}, reasons);
}

Error noSuchJob(const SentJob &job)
{
    return {Code::NotFound, job.name(),
            translate("Delivery", "the print server at %1 does not have this job (any more)")
                .arg(serverName())};
}

} // namespace

Result<JobCondition> readCondition(const SentJob &job, Patience &patience)
{
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    ipp_t *request = requestAbout(job, IPP_OP_GET_JOB_ATTRIBUTES);
    askFor(request,
           {"job-state", "job-hold-until", "job-impressions-completed", "job-printer-state-message",
            "job-printer-state-reasons"});
    const Message response(cupsDoRequest(http.value().get(), request, "/"));
    ipp_attribute_t *state = ippFindAttribute(response.get(), "job-state", IPP_TAG_ENUM);
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return noSuchJob(job);
    if (!lastCallSucceeded() || !state)
        return serverError(patience, job.name());
    JobCondition condition;
    condition.state = stateFrom(ippGetInteger(state, 0));
    condition.pages = number(response.get(), "job-impressions-completed");
    const QString said = text(response.get(), "job-printer-state-message", IPP_TAG_TEXT);
    switch (condition.state) {
    case State::Held:
        condition.holdUntil = text(response.get(), "job-hold-until", IPP_TAG_KEYWORD);
        if (condition.holdUntil.isEmpty()) // a time is a name
            condition.holdUntil = text(response.get(), "job-hold-until", IPP_TAG_NAME);
        break;
    case State::Printing:
        condition.reason = printersReason(response.get());
        break;
    case State::Aborted:
        condition.reason = stateWords(said, {});
        break;
    case State::Waiting:
    case State::Stopped:
        // Of a job that waits for a stopped printer the server says no more than that it waits.
        if (const auto queue = readCondition(job.queue, patience);
            queue && queue.value().state == PrinterCondition::State::Stopped) {
            condition.state = State::Stopped;
            condition.reason = queue.value().stateMessage;
        }
        break;
    default:
        break;
    }
    return condition;
}

Result<void> takeBack(const SentJob &job, Patience &patience)
{
    const auto http = connectToServer(patience);
    if (!http)
        return http.error();
    const Message response(
        cupsDoRequest(http.value().get(), requestAbout(job, IPP_OP_CANCEL_JOB), "/"));
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return noSuchJob(job);
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_POSSIBLE)
        return Error{Code::Refused, job.name(),
                     translate("Delivery", "it is too late to cancel this job")};
    if (!lastCallSucceeded())
        return serverError(patience, job.name());
    return {};
}

} // namespace kelvo
