#include "queue_ppds.h"

#include "size_limits.h"
#include "texts.h"

#include <QStringList>

namespace kelvo {

namespace {

using Code = Error::Code;

// The printers of a class, which may be classes; empty for a printer.
Result<QStringList> membersOf(http_t *http, const QString &queue, Patience &patience)
{
    ipp_t *request = newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request, {"member-names"});
    const Message response(cupsDoRequest(http, request, "/"));
    if (!response || !lastCallSucceeded())
        return serverError(patience, queue);
    patience.progress();
    ipp_attribute_t *attribute = ippFindAttribute(response.get(), "member-names", IPP_TAG_NAME);
    QStringList members;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        members << QString::fromUtf8(ippGetString(attribute, i, nullptr));
    return members;
}

Error brokenOff(const QString &where)
{
    return {
        Code::Unreachable, where,
        translate("Delivery", "the print server at %1 broke off while it sent the PPD; try again")
            .arg(serverName())};
}

// The file at `resource` of the server, whole; NotFound when there is none.
Result<QByteArray> readResource(http_t *http, const QString &resource, const QString &where,
                                Patience &patience)
{
    httpClearFields(http);
    if (httpGet(http, resource.toUtf8().constData()) != 0)
        return serverError(patience, where);
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE && !patience.isOver())
        status = httpUpdate(http);
    if (patience.isOver())
        return serverError(patience, where);
    // The state turns to the body's only when the head is whole. A connection that ends
    // in the middle of it leaves the status of its first line, and no body to be read.
    if (status != HTTP_STATUS_ERROR && httpGetState(http) != HTTP_STATE_GET_SEND)
        return brokenOff(where);
    if (status == HTTP_STATUS_NOT_FOUND) {
        httpFlush(http);
        return Error{Code::NotFound, where,
                     translate("Delivery",
                               "the print server has no PPD for it: it prints with common "
                               "settings only")};
    }
    if (status != HTTP_STATUS_OK)
        return Error{status == HTTP_STATUS_ERROR ? Code::Unreachable : Code::Refused, where,
                     translate("Delivery", "the print server at %1 does not give its PPD: %2")
                         .arg(serverName(), QString::fromUtf8(httpStatus(status)))};
    QByteArray bytes;
    char block[32768];
    ssize_t count = 0;
    while ((count = httpRead2(http, block, sizeof block)) > 0) {
        patience.progress();
        bytes.append(block, count);
        if (bytes.size() > limits::ppdBytes)
            return Error{
                Code::TooLarge, where,
                translate("Delivery", "its PPD has more than %1 bytes").arg(limits::ppdBytes)};
    }
    if (patience.isOver())
        return serverError(patience, where);
    // A body that ends early is no PPD, whatever there is of it.
    if (count < 0 || httpGetState(http) == HTTP_STATE_GET_SEND)
        return brokenOff(where);
    if (bytes.isEmpty())
        return Error{Code::Damaged, where,
                     translate("Delivery",
                               "the print server at %1 has an empty PPD for it; have the queue "
                               "set up again with the device’s PPD")
                         .arg(serverName())};
    return bytes;
}

Result<void> collectPpds(http_t *http, const QString &queue, int depth, Patience &patience,
                         std::vector<QByteArray> &ppds)
{
    // Classes in classes; two that hold one another have no end.
    constexpr int deepest = 8;
    constexpr std::size_t most = 256;
    if (depth > deepest || ppds.size() >= most) {
        ppds.emplace_back();
        return {};
    }
    const auto members = membersOf(http, queue, patience);
    if (!members)
        return members.error();
    if (members.value().isEmpty()) {
        auto ppd = queuePpd(http, queue, patience);
        if (!ppd && ppd.error().code != Code::NotFound)
            return ppd.error();
        ppds.push_back(ppd ? std::move(ppd).value() : QByteArray());
        return {};
    }
    for (const QString &member : members.value()) {
        if (auto collected = collectPpds(http, member, depth + 1, patience, ppds); !collected)
            return collected;
    }
    return {};
}

} // namespace

Result<QByteArray> queuePpd(http_t *http, const QString &queue, Patience &patience)
{
    return readResource(http, QStringLiteral("/printers/%1.ppd").arg(queue), queue, patience);
}

Result<std::vector<QByteArray>> allPpds(http_t *http, const QString &queue, Patience &patience)
{
    std::vector<QByteArray> ppds;
    if (auto collected = collectPpds(http, queue, 1, patience, ppds); !collected)
        return collected.error();
    return ppds;
}

} // namespace kelvo
