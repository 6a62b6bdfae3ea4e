#include "font_conversion.h"

#include "drawing.h"
#include "file_store.h"
#include "preferences.h"
#include "size_limits.h"
#include "terminal.h"
#include "texts.h"
#include "true_type.h"
#include "type42.h"
#include "values.h"
#include "watermark_store.h"

#include <cstdio>

namespace kelvo {

namespace {

// ---- what was converted

const QString pathKey = QStringLiteral("Path");
const QString stampKey = QStringLiteral("Stamp");
const QString sizeKey = QStringLiteral("ProgramSize");

// A font as it was when it was converted.
struct ConvertedFont
{
    QString path;
    QString stamp;
    qint64 programSize = 0; // bytes; 0: it cannot be one
    friend bool operator==(const ConvertedFont &, const ConvertedFont &) = default;
};

QString stampText(const QString &path)
{
    const FileStamp stamp = stampOf(path);
    return QStringLiteral("%1 %2 %3 %4")
        .arg(stamp.device)
        .arg(stamp.inode)
        .arg(stamp.size)
        .arg(stamp.modified);
}

std::optional<ConvertedFont> convertedFont(const QString &fontName)
{
    const auto fonts = CopyUserPreferences(kConvertedFontsFile);
    const auto font = fonts ? dictionary(*fonts, fontName) : std::nullopt;
    if (!font)
        return std::nullopt;
    return ConvertedFont{string(*font, pathKey).value_or(QString()),
                         string(*font, stampKey).value_or(QString()),
                         integer64(*font, sizeKey).value_or(-1)};
}

void rememberConverted(const QString &fontName, const ConvertedFont &font)
{
    ChangeUserPreferences(kConvertedFontsFile, [&](Dictionary &fonts) {
        fonts.insert(
            fontName,
            Dictionary{{pathKey, font.path}, {stampKey, font.stamp}, {sizeKey, font.programSize}});
        return true;
    });
}

bool isStoredAlready(const QString &fontName)
{
    const auto font = convertedFont(fontName);
    return font && stampText(font->path) == font->stamp
        && storedFontSize(kWatermarksFile, fontName).value_or(0) == font->programSize;
}

// ---- converting

Error notTrueType(const QString &path)
{
    return {Error::Code::Unsupported, path,
            translate("Fonts",
                      "this font has no TrueType outlines and does not go along with the job; "
                      "the device prints the watermark in a font of its own")};
}

Result<QByteArray> sfntOf(const drawing::Font &font)
{
    Result<QByteArray> file = readFile(font.path, limits::fontBytes);
    constexpr int faceBits = 0xFFFF; // above them is the instance of a variable font
    if (file && file.value().startsWith("ttcf"))
        file = sfntOfMember(file.value(), font.index & faceBits);
    if (file && !hasTrueTypeOutlines(file.value()))
        return notTrueType(font.path);
    return file;
}

// What the font is as a program; empty, and said, where it cannot be one.
QByteArray programOf(const drawing::Font &font, const QString &fontName)
{
    const Result<QByteArray> sfnt = sfntOf(font);
    QByteArray program;
    const Result<void> converted =
        sfnt ? convertTTFtoPS42(sfnt.value(), fontName, program) : sfnt.error();
    if (!converted)
        printLine(stderr, converted.error().text());
    return program;
}

std::optional<drawing::Font> fontNamed(const QString &name)
{
    const Result<const drawing::Library *> library = drawing::library();
    if (!library) {
        printLine(stderr, library.error().text());
        return std::nullopt;
    }
    return library.value()->findFont(name);
}

} // namespace

void convertFont(const QString &watermarkName)
{
    _WatermarkData watermark;
    if (!loadWatermarkData(kWatermarksFile, watermarkName, &watermark) || !*watermark.textString)
        return;
    const QString fontName = textOf(watermark.fontName);
    if (fontName.isEmpty() || isStoredAlready(fontName))
        return;
    const std::optional<drawing::Font> font = fontNamed(fontName);
    if (!font)
        return;
    ConvertedFont converted{font->path, stampText(font->path)};
    const QByteArray program = programOf(*font, fontName);
    if (!program.isEmpty())
        storeFontData(kWatermarksFile, fontName, program);
    converted.programSize = program.size();
    rememberConverted(fontName, converted);
}

} // namespace kelvo
