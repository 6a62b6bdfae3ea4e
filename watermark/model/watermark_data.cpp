#include "watermark_data.h"

#include <cmath>
#include <iterator>

namespace kelvo {

namespace {

constexpr float opaque = 1;
const QString defaultFont = QStringLiteral("ArialMT");

// ---- the fields by their keys; one list for both ways

struct TextField
{
    const char *key;
    char *begin;
    std::size_t size;
};

struct Fields
{
    explicit Fields(_WatermarkData &of)
        : texts{{"textString", of.textString, sizeof of.textString},
                {"filename", of.filename, sizeof of.filename},
                {"filePath", of.filePath, sizeof of.filePath},
                {"fontName", of.fontName, sizeof of.fontName}}
        , floats{{"xOffset", &of.xOffset},
                 {"yOffset", &of.yOffset},
                 {"wellColorRed", &of.wellColorRed},
                 {"wellColorGreen", &of.wellColorGreen},
                 {"wellColorBlue", &of.wellColorBlue},
                 {"wellColorAlpha", &of.wellColorAlpha},
                 {"fontColorRed", &of.fontColorRed},
                 {"fontColorGreen", &of.fontColorGreen},
                 {"fontColorBlue", &of.fontColorBlue},
                 {"fontColorAlpha", &of.fontColorAlpha}}
        , doubles{{"xPos", &of.xPos}, {"yPos", &of.yPos}}
        , integers{{"angle", &of.angle},
                   {"density", &of.density},
                   {"scale", &of.scale},
                   {"units", &of.units},
                   {"fontSize", &of.fontSize}}
    {
    }

    TextField texts[4];
    std::pair<const char *, float *> floats[10];
    std::pair<const char *, double *> doubles[2];
    std::pair<const char *, std::int32_t *> integers[5];
};

// A real loses its fraction.
std::optional<std::int32_t> wholeNumber(const Dictionary &dictionary, const QString &key)
{
    const std::optional<double> number = real(dictionary, key);
    return number ? integer32(QVariant(std::trunc(*number))) : std::nullopt;
}

} // namespace

QByteArray utf8Within(const QString &text, std::size_t size)
{
    QByteArray bytes = text.toUtf8();
    if (static_cast<std::size_t>(bytes.size()) <= size)
        return bytes;
    const auto continues = [](char byte) { return (byte & 0xC0) == 0x80; };
    auto kept = static_cast<qsizetype>(size);
    while (kept > 0 && continues(bytes[kept]))
        --kept;
    bytes.truncate(kept);
    return bytes;
}

QString watermarkName(const _WatermarkData &watermark)
{
    return watermark.isText ? textOf(watermark.textString) : textOf(watermark.filename);
}

_WatermarkData newWatermark(WatermarkUnits units)
{
    _WatermarkData watermark;
    setText(watermark.fontName, defaultFont);
    watermark.fontSize = 72;
    watermark.fontColorBlue = watermark.wellColorBlue = 1;
    watermark.fontColorAlpha = watermark.wellColorAlpha = opaque;
    watermark.angle = 45;
    watermark.scale = 100;
    watermark.density = 25;
    watermark.units = units;
    return watermark;
}

Dictionary asDictionary(const _WatermarkData &watermark)
{
    _WatermarkData copy = watermark;
    const Fields fields(copy);
    Dictionary dictionary;
    for (const TextField &text : fields.texts) {
        dictionary.insert(
            QLatin1String(text.key),
            QString::fromUtf8(text.begin, qsizetype(qstrnlen(text.begin, text.size))));
    }
    for (const auto &[key, value] : fields.floats)
        dictionary.insert(QLatin1String(key), *value);
    for (const auto &[key, value] : fields.doubles)
        dictionary.insert(QLatin1String(key), *value);
    for (const auto &[key, value] : fields.integers)
        dictionary.insert(QLatin1String(key), qint64(*value));
    return dictionary;
}

void takeDictionary(_WatermarkData &watermark, const Dictionary &dictionary)
{
    const Fields fields(watermark);
    for (const TextField &text : fields.texts) {
        const QString key = QLatin1String(text.key);
        if (!dictionary.contains(key))
            continue;
        const QByteArray bytes = string(dictionary, key).value_or(QString()).toUtf8();
        std::fill_n(text.begin, text.size, '\0');
        if (static_cast<std::size_t>(bytes.size()) < text.size)
            std::copy(bytes.begin(), bytes.end(), text.begin);
    }
    for (const auto &[key, value] : fields.floats)
        *value = static_cast<float>(real(dictionary, QLatin1String(key)).value_or(*value));
    for (const auto &[key, value] : fields.doubles)
        *value = real(dictionary, QLatin1String(key)).value_or(*value);
    for (const auto &[key, value] : fields.integers)
        *value = wholeNumber(dictionary, QLatin1String(key)).value_or(*value);
}

} // namespace kelvo
