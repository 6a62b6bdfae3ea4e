#include "svg_references.h"

#include "document_kind.h"

#include <QUrl>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <utility>

namespace kelvo {

namespace {

constexpr int mostNested = 8;

std::optional<ClosedSvg> closed(const QByteArray &svg, int depth);

QStringView localName(QStringView name)
{
    return name.sliced(name.lastIndexOf(u':') + 1);
}

bool isNamed(QStringView name, QLatin1String wanted)
{
    return localName(name).compare(wanted, Qt::CaseInsensitive) == 0;
}

// The bytes of a "data:" address, whatever type it names; null for any other.
QByteArray dataOf(const QString &address)
{
    const QString text = address.trimmed();
    const qsizetype comma = text.indexOf(u',');
    if (comma < 0 || !text.startsWith(QLatin1String("data:"), Qt::CaseInsensitive))
        return {};
    const QByteArray bytes = QByteArray::fromPercentEncoding(text.sliced(comma + 1).toUtf8());
    const bool isBase64 =
        text.first(comma).trimmed().endsWith(QLatin1String(";base64"), Qt::CaseInsensitive);
    return isBase64 ? QByteArray::fromBase64(bytes) : bytes;
}

// A picture that the drawing holds, as an address that says nothing else; empty for
// what is none, and null where it cannot be read.
QString heldPicture(const QString &address, int depth, int &leftOut)
{
    QByteArray bytes = dataOf(address);
    const DocumentKind kind = documentKind(bytes);
    if (pictureFormat(kind).isEmpty())
        return {};
    if (kind == DocumentKind::Svg) {
        const std::optional<ClosedSvg> inner = closed(bytes, depth + 1);
        if (!inner)
            return {};
        bytes = inner->bytes;
        leftOut += inner->leftOut;
    }
    return QLatin1String("data:;base64,") + QLatin1String(bytes.toBase64());
}

// What an element may refer to, in place of what it does; null for nothing.
QString allowedAddress(QStringView element, const QString &address, int depth, int &leftOut)
{
    if (address.trimmed().startsWith(u'#') && !isNamed(element, QLatin1String("image")))
        return address;
    QString picture = heldPicture(address, depth, leftOut);
    // A link says where one could go, and is no part of what is shown.
    if (picture.isNull() && !isNamed(element, QLatin1String("a")))
        ++leftOut;
    return picture;
}

// A style or an attribute with "none" in place of each "url(…)" that leads out of the
// drawing.
QString withoutAddresses(QString style, int &leftOut)
{
    const QLatin1String begin("url(");
    for (qsizetype at = 0;; ++at) {
        at = style.indexOf(begin, at, Qt::CaseInsensitive);
        if (at < 0)
            return style;
        QStringView address = QStringView(style).sliced(at + begin.size()).trimmed();
        if (address.startsWith(u'"') || address.startsWith(u'\''))
            address = address.sliced(1).trimmed();
        if (address.startsWith(u'#'))
            continue;
        // Fonts that a drawing holds are not used here, so nothing is missed of them.
        leftOut += !address.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
        const qsizetype end = style.indexOf(u')', at);
        style.replace(at, (end < 0 ? style.size() : end + 1) - at, QStringLiteral("none"));
    }
}

void copyElement(const QXmlStreamReader &reader, QXmlStreamWriter &writer, int depth, int &leftOut)
{
    const QStringView element = reader.qualifiedName();
    writer.writeStartElement(element.toString());
    for (const QXmlStreamAttribute &attribute : reader.attributes()) {
        const QString name = attribute.qualifiedName().toString();
        QString value = attribute.value().toString();
        if (isNamed(name, QLatin1String("href"))) {
            value = allowedAddress(element, value, depth, leftOut);
            if (value.isNull())
                continue;
        }
        writer.writeAttribute(name, withoutAddresses(std::move(value), leftOut));
    }
}

std::optional<ClosedSvg> closed(const QByteArray &svg, int depth)
{
    if (depth > mostNested)
        return std::nullopt;
    ClosedSvg result;
    QXmlStreamReader reader(svg);
    // Names stay as they are written, with their prefixes.
    reader.setNamespaceProcessing(false);
    QXmlStreamWriter writer(&result.bytes);
    // A text comes in pieces, and what stands between them is not copied: only the whole
    // says what it refers to. A style sheet is text alone.
    QString text;
    int inStyle = 0; // elements around the text, from the style sheet's own
    const auto writeText = [&] {
        if (!text.isEmpty())
            writer.writeCharacters(std::exchange(text, {}));
    };
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (inStyle > 0) {
                ++inStyle;
                break;
            }
            writeText();
            inStyle = isNamed(reader.qualifiedName(), QLatin1String("style"));
            copyElement(reader, writer, depth, result.leftOut);
            break;
        case QXmlStreamReader::EndElement:
            if (inStyle > 1) {
                --inStyle;
                break;
            }
            if (std::exchange(inStyle, 0) > 0)
                text = withoutAddresses(std::move(text), result.leftOut);
            writeText();
            writer.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            text += reader.text();
            break;
        case QXmlStreamReader::ProcessingInstruction:
            result.leftOut +=
                reader.processingInstructionTarget() == QLatin1String("xml-stylesheet");
            break;
        default:
            break; // comments, and document types, whose entities are texts by now
        }
    }
    if (reader.hasError())
        return std::nullopt;
    return result;
}

} // namespace

std::optional<ClosedSvg> withoutReferences(const QByteArray &svg)
{
    return closed(svg, 0);
}

} // namespace kelvo
