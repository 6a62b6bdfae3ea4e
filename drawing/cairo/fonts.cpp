#include "fonts.h"

#include <QByteArray>

#include <algorithm>
#include <tuple>

namespace kelvo {

namespace {

// The fonts of offices elsewhere, and those whose letters are as wide. fontconfig knows them
// by family alone, not by PostScript name.
struct Alias
{
    const char *name;
    const char *metricCompatible;
};

// clang-format off
constexpr Alias aliases[] = {
    {"ArialMT",                          "LiberationSans"},
    {"Arial-BoldMT",                     "LiberationSans-Bold"},
    {"Arial-ItalicMT",                   "LiberationSans-Italic"},
    {"Arial-BoldItalicMT",               "LiberationSans-BoldItalic"},
    {"TimesNewRomanPSMT",                "LiberationSerif"},
    {"TimesNewRomanPS-BoldMT",           "LiberationSerif-Bold"},
    {"TimesNewRomanPS-ItalicMT",         "LiberationSerif-Italic"},
    {"TimesNewRomanPS-BoldItalicMT",     "LiberationSerif-BoldItalic"},
    {"CourierNewPSMT",                   "LiberationMono"},
    {"CourierNewPS-BoldMT",              "LiberationMono-Bold"},
    {"CourierNewPS-ItalicMT",            "LiberationMono-Italic"},
    {"CourierNewPS-BoldItalicMT",        "LiberationMono-BoldItalic"},
};
// clang-format on

QByteArray textOf(const FcPattern *font, const char *object)
{
    FcChar8 *text = nullptr;
    if (FcPatternGetString(font, object, 0, &text) != FcResultMatch)
        return {};
    return reinterpret_cast<const char *>(text);
}

// What comes first is taken; a format that Pango does not draw is no match.
constexpr QByteArrayView formats[] = {"TrueType", "CFF"};

FontPattern findExactly(const QByteArray &name)
{
    const FontPattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_POSTSCRIPT_NAME,
                       reinterpret_cast<const FcChar8 *>(name.constData()));
    const auto freeObjects = [](FcObjectSet *objects) { FcObjectSetDestroy(objects); };
    const std::unique_ptr<FcObjectSet, decltype(freeObjects)> objects(
        FcObjectSetBuild(FC_POSTSCRIPT_NAME, FC_FILE, FC_INDEX, FC_FONTFORMAT, FC_FAMILY, FC_STYLE,
                         FC_WEIGHT, FC_SLANT, FC_WIDTH, nullptr));
    const auto freeFonts = [](FcFontSet *fonts) { FcFontSetDestroy(fonts); };
    const std::unique_ptr<FcFontSet, decltype(freeFonts)> fonts(
        FcFontList(nullptr, wanted.get(), objects.get()));

    FcPattern *best = nullptr;
    std::tuple<qsizetype, QByteArray> bestRank;
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        FcPattern *font = fonts->fonts[index];
        const auto format = std::ranges::find(formats, textOf(font, FC_FONTFORMAT));
        // fontconfig takes capital and small letters for the same.
        if (format == std::end(formats) || textOf(font, FC_POSTSCRIPT_NAME) != name)
            continue;
        // The same one each time, also where a font is installed twice.
        const std::tuple rank(format - std::begin(formats), textOf(font, FC_FILE));
        if (!best || rank < bestRank) {
            best = font;
            bestRank = rank;
        }
    }
    if (best)
        FcPatternReference(best);
    return FontPattern(best);
}

} // namespace

FontPattern findFontPattern(const QString &postScriptName)
{
    const QByteArray name = postScriptName.toUtf8();
    if (FontPattern font = findExactly(name))
        return font;
    const auto *alias =
        std::ranges::find_if(aliases, [&](const Alias &row) { return name == row.name; });
    return alias == std::end(aliases) ? nullptr : findExactly(alias->metricCompatible);
}

} // namespace kelvo
