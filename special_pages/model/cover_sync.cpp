#include "cover_sync.h"

#include "ppd_choices.h"
#include "print_session.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString frontOption = QStringLiteral("KVFrontCoverSheet");
const QString backOption = QStringLiteral("KVBackCoverSheet");

std::optional<bool> bookletLayout(const Ticket &ticket)
{
    return boolean(valueIn(ticket, ticketKey("BookletLayout")));
}

// A cover without a source does not reach the device: an earlier source goes, or
// it would be fed from there all the same.
void writeSource(Ticket &ticket, const QString &option, const std::optional<Cover> &cover)
{
    const auto choice =
        cover ? PPDChoiceForTicketValue(option, cover->stock().source()) : kNoCoverChoice;
    if (choice)
        PPDSetCurrentChoice(ticket, option, choice);
    else
        PPDRemoveCurrentChoice(ticket, option);
}

void readSource(std::optional<Cover> &cover, const Ticket &ticket, const QString &option,
                const Device &device)
{
    std::int32_t source = kNoPpdChoice;
    PPDGetTicketValueForChoiceOrDefault(device.ppd, ticket, option, &source);
    if (source != kNoPpdChoice)
        cover.emplace().stock().setSource(source);
}

} // namespace

bool reachesDevice(const Cover &cover)
{
    return PPDChoiceForTicketValue(frontOption, cover.stock().source()).has_value();
}

void readCovers(std::optional<Cover> &front, std::optional<Cover> &back,
                const Ticket &printSettings, const Device &device)
{
    front.reset();
    back.reset();
    readSource(front, printSettings, frontOption, device);
    if (bookletLayout(printSettings).value_or(false))
        back = front;
    else
        readSource(back, printSettings, backOption, device);
}

void writeCovers(const std::optional<Cover> &front, const std::optional<Cover> &back,
                 Ticket &printSettings)
{
    const bool followsFront =
        bookletLayout(printSettings).value_or(false) && front && (!back || *back == *front);
    writeSource(printSettings, frontOption, front);
    writeSource(printSettings, backOption, followsFront ? std::nullopt : back);
}

OSStatus SyncCovers(PMTicketRef handle, std::int32_t direction, std::optional<Cover> *front,
                    std::optional<Cover> *back)
{
    if (!front || !back)
        return paramErr;
    if (direction != kSyncWrite && direction != kSyncRead)
        return noErr;
    Ticket *ticket = findTicket(handle);
    if (!ticket)
        return kPMInvalidTicket;
    if (direction == kSyncWrite)
        writeCovers(*front, *back, *ticket);
    else
        readCovers(*front, *back, *ticket, currentDevice());
    return bookletLayout(*ticket) ? noErr : kPMKeyNotFound;
}

} // namespace kelvo
