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

#include <QSet>

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
    qint64 programSize = 0; // bytes
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
        && storedFontSize(kWatermarksFile, fontName) == font->programSize;
}

// What does not go along with a job is tried and said once, not with each write. GUI thread.
QSet<QString> &refusedFonts()
{
    static QSet<QString> fonts;
    return fonts;
}

bool isRefused(const QString &fontName)
{
    return refusedFonts().contains(fontName);
}

void refuse(const QString &fontName, const Error &error)
{
    refusedFonts().insert(fontName);
    printLine(stderr, error.text());
}

// ---- converting

Error notTrueType(const QString &path)
{
    return {Error::Code::Unsupported, path,
            translate("Fonts", "this font has no TrueType outlines")};
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

Error doesNotGoAlong(const QString &fontName, const QString &reason)
{
    return {Error::Code::NotFound, fontName,
            joined({reason,
                    translate("Fonts", "the device prints the watermark in a font of its own")})};
}

// The font in the store, and what tells it again.
Result<void> convertAndStore(const QString &fontName)
{
    const Result<const drawing::Library *> library = drawing::library();
    if (!library)
        return library.error();
    const std::optional<drawing::Font> font = library.value()->findFont(fontName);
    if (!font)
        return doesNotGoAlong(fontName, translate("Fonts", "this font is not installed"));
    const QString stamp = stampText(font->path);
    const Result<QByteArray> sfnt = sfntOf(*font);
    if (!sfnt)
        return doesNotGoAlong(fontName, sfnt.error().detail);
    QByteArray program;
    const Result<void> converted = convertTTFtoPS42(sfnt.value(), fontName, program);
    storeFontData(kWatermarksFile, fontName, program); // all that there is of it
    if (storedFontSize(kWatermarksFile, fontName) != program.size())
        return doesNotGoAlong(fontName,
                              translate("Fonts", "the watermarks’ file cannot take this font"));
    rememberConverted(fontName, {font->path, stamp, program.size()});
    return converted;
}

} // namespace

void convertFont(const QString &watermarkName)
{
    _WatermarkData watermark;
    if (!loadWatermarkData(kWatermarksFile, watermarkName, &watermark) || !*watermark.textString)
        return;
    const QString fontName = textOf(watermark.fontName);
    if (fontName.isEmpty() || isStoredAlready(fontName) || isRefused(fontName))
        return;
    if (const Result<void> stored = convertAndStore(fontName); !stored)
        refuse(fontName, stored.error());
}

} // namespace kelvo
