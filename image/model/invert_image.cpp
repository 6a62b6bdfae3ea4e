#include "invert_image.h"

#include "ticket_values.h"

namespace kelvo {

namespace {

const QString negativeKey = QStringLiteral("NegativeImage");
const QString mirrorKey = QStringLiteral("MirrorImage");
const QString client = QStringLiteral("K");

} // namespace

void InvertImageSetOptionsFromTicket(II_Options *options, const Dictionary &dictionary)
{
    if (!options)
        return;
    options->negative = integer64(dictionary, negativeKey).value_or(0) != 0;
    options->mirror = integer64(dictionary, mirrorKey).value_or(0) != 0;
    options->valid = true;
}

Dictionary InvertImageCreateTicketFromOptions(const II_Options *options)
{
    Dictionary dictionary;
    if (options) {
        WriteTicketValue(dictionary, negativeKey, options->negative ? 1 : 0);
        WriteTicketValue(dictionary, mirrorKey, options->mirror ? 1 : 0);
    }
    return dictionary;
}

QString invertImageKey()
{
    return ticketKey("InvertImageOptions");
}

void readInvertImage(II_Options &options, const Ticket &printSettings)
{
    InvertImageSetOptionsFromTicket(
        &options, dictionary(valueIn(printSettings, invertImageKey())).value_or(Dictionary()));
}

OSStatus writeInvertImage(const II_Options &options, Ticket &printSettings)
{
    return setValue(printSettings, client, invertImageKey(),
                    InvertImageCreateTicketFromOptions(&options));
}

} // namespace kelvo
