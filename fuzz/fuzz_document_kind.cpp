#include "document_kind.h"

#include <QString>

#include <cstdint>
#include <cstdlib>

// Any bytes are of one kind, and those that are none are given a name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const kelvo::DocumentKind kind = kelvo::documentKind(bytes);
    if ((kind == kelvo::DocumentKind::Empty) != bytes.isEmpty())
        std::abort();
    if (kind == kelvo::DocumentKind::Unsupported && kelvo::unsupportedKindText(bytes).isEmpty())
        std::abort();
    return 0;
}
