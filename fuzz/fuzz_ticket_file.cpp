#include "property_list.h"
#include "ticket_file.h"

#include <cstdlib>

using namespace kelvo;

// Any property list ends in a ticket file or an Error, and a ticket file
// survives its own property list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto list = CFPropertyListCreateFromXMLData(bytes, QStringLiteral("list"));
    if (!list)
        return 0;
    const auto file = ticketFileFromPropertyList(list.value(), QStringLiteral("ticket"));
    if (!file)
        return 0;
    const auto again =
        ticketFileFromPropertyList(propertyListFrom(file.value()), QStringLiteral("again"));
    if (!again || !(again.value() == file.value()))
        std::abort();
    return 0;
}
