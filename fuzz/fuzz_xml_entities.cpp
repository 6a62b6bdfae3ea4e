#include "xml_entities.h"

#include <cstdlib>

using namespace kelvo;

// Any text is unescaped without a crash, and one that was escaped comes back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    XMLCreateStringByUnescapingEntities(text, {{QStringLiteral("nbsp"), QStringLiteral(" ")}});
    if (XMLCreateStringByUnescapingEntities(text.toHtmlEscaped()) != text)
        std::abort();
    return 0;
}
