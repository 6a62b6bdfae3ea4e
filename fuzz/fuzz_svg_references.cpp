#include "svg_references.h"

#include <QXmlStreamReader>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any bytes end in nothing or in a drawing that is XML and names no file, and which is
// left as it is when it is asked for again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto drawing = kelvo::withoutReferences(bytes);
    if (!drawing)
        return 0;

    QXmlStreamReader reader(drawing->bytes);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        for (const QXmlStreamAttribute &attribute : reader.attributes()) {
            const QString value = attribute.value().trimmed().toString();
            const QStringView name = attribute.qualifiedName();
            if (name.sliced(name.lastIndexOf(u':') + 1) == QLatin1String("href")
                && !value.startsWith(u'#') && !value.startsWith(QLatin1String("data:;base64,"))) {
                std::abort();
            }
        }
    }
    if (reader.hasError())
        std::abort();
    const auto again = kelvo::withoutReferences(drawing->bytes);
    if (!again || again->bytes != drawing->bytes || again->leftOut != 0)
        std::abort();
    return 0;
}
