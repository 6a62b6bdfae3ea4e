#include "cover_sync.h"

#include "ppd_choices.h"
#include "ticket.h"
#include "ticket_values.h"

namespace kelvo {

namespace {

const QString frontOption = QStringLiteral("KVFrontCoverSheet");
const QString backOption = QStringLiteral("KVBackCoverSheet");
const QString noCover = QStringLiteral("None"); // has no ticket value

// A cover without a source does not reach the device: an earlier source goes, or
// it would be fed from there all the same.
void writeSource(PMTicketRef ticket, const QString &option, const Cover *cover)
{
    const auto choice = cover ? PPDChoiceForTicketValue(option, cover->stock().source()) : noCover;
    PPDDictionary *choices = PMTicketGetPPDDict(ticket);
    if (choice)
        PPDSetCurrentChoice(ticket, option, choice);
    else if (choices)
        choices->remove(option);
}

std::unique_ptr<Cover> readSource(PMTicketRef ticket, const QString &option)
{
    constexpr std::int32_t none = -1;
    std::int32_t source = none;
    PPDGetTicketValueForChoiceOrDefault(PPDGetCurrent(), ticket, option, &source);
    if (source == none)
        return nullptr;
    auto cover = std::make_unique<Cover>();
    cover->stock().setSource(source);
    return cover;
}

} // namespace

OSStatus SyncCovers(PMTicketRef ticket, std::int32_t direction, std::unique_ptr<Cover> *front,
                    std::unique_ptr<Cover> *back)
{
    if (!front || !back)
        return paramErr;
    if (direction != kSyncWrite && direction != kSyncRead)
        return noErr;

    const std::optional<bool> booklet = PMTicketGetCFBoolean(ticket, ticketKey("BookletLayout"));
    const bool isBooklet = booklet.value_or(false);
    if (direction == kSyncWrite) {
        const Cover *frontCover = front->get();
        const Cover *backCover = back->get();
        writeSource(ticket, frontOption, frontCover);
        const bool followsFront = frontCover && (!backCover || *backCover == *frontCover);
        writeSource(ticket, backOption, isBooklet && followsFront ? nullptr : backCover);
    } else {
        *front = readSource(ticket, frontOption);
        if (isBooklet)
            *back = *front ? std::make_unique<Cover>(**front) : nullptr;
        else
            *back = readSource(ticket, backOption);
    }
    return booklet ? noErr : kPMKeyNotFound;
}

} // namespace kelvo
