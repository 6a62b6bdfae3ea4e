#include "property_list.h"

#include <cstdlib>

using namespace kelvo;

// Any bytes end in a list or an Error. A list can be written, and what was
// written is read as the same list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto list = CFPropertyListCreateFromXMLData(bytes, QStringLiteral("list"));
    if (!list)
        return 0;
    const auto written = CFPropertyListCreateXMLData(list.value());
    if (!written)
        std::abort();
    const auto again = CFPropertyListCreateFromXMLData(written.value(), QStringLiteral("again"));
    if (!again || again.value() != list.value())
        std::abort();
    return 0;
}
