#include "fonts.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <map>
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

struct FontSetCloser
{
    void operator()(FcFontSet *fonts) const { FcFontSetDestroy(fonts); }
};

// All installed fonts that are as `wanted`.
std::unique_ptr<FcFontSet, FontSetCloser> listFonts(FcPattern *wanted)
{
    const auto freeObjects = [](FcObjectSet *objects) { FcObjectSetDestroy(objects); };
    const std::unique_ptr<FcObjectSet, decltype(freeObjects)> objects(
        FcObjectSetBuild(FC_POSTSCRIPT_NAME, FC_FILE, FC_INDEX, FC_FONTFORMAT, FC_FAMILY, FC_STYLE,
                         FC_WEIGHT, FC_SLANT, FC_WIDTH, nullptr));
    return std::unique_ptr<FcFontSet, FontSetCloser>(FcFontList(nullptr, wanted, objects.get()));
}

// Lower is taken before higher: the same one each time, also where a font is installed twice.
// None for a format that Pango does not draw.
using Rank = std::tuple<qsizetype, QByteArray, int>;
std::optional<Rank> rankOf(FcPattern *font)
{
    const auto format = std::ranges::find(formats, textOf(font, FC_FONTFORMAT));
    if (format == std::end(formats))
        return std::nullopt;
    int face = 0;
    FcPatternGetInteger(font, FC_INDEX, 0, &face);
    return Rank(format - std::begin(formats), textOf(font, FC_FILE), face);
}

FontPattern findExactly(const QByteArray &name)
{
    const FontPattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_POSTSCRIPT_NAME,
                       reinterpret_cast<const FcChar8 *>(name.constData()));
    const auto fonts = listFonts(wanted.get());

    FcPattern *best = nullptr;
    std::optional<Rank> bestRank;
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        FcPattern *font = fonts->fonts[index];
        const std::optional<Rank> rank = rankOf(font);
        // fontconfig takes capital and small letters for the same.
        if (!rank || textOf(font, FC_POSTSCRIPT_NAME) != name)
            continue;
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

std::optional<drawing::Font> fontOf(FcPattern *font)
{
    const QByteArray name = textOf(font, FC_POSTSCRIPT_NAME);
    const QByteArray path = textOf(font, FC_FILE);
    int face = 0;
    if (name.isEmpty() || path.isEmpty()
        || FcPatternGetInteger(font, FC_INDEX, 0, &face) != FcResultMatch) {
        return std::nullopt;
    }
    return drawing::Font{QString::fromUtf8(name), QFile::decodeName(path), face,
                         QString::fromUtf8(textOf(font, FC_FAMILY)),
                         QString::fromUtf8(textOf(font, FC_STYLE))};
}

std::vector<drawing::Font> installedFonts()
{
    const FontPattern any(FcPatternCreate());
    const auto fonts = listFonts(any.get());
    std::map<QByteArray, std::pair<Rank, FcPattern *>> best;
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        FcPattern *font = fonts->fonts[index];
        const std::optional<Rank> rank = rankOf(font);
        const QByteArray name = textOf(font, FC_POSTSCRIPT_NAME);
        if (!rank || name.isEmpty())
            continue;
        const auto [known, isNew] = best.try_emplace(name, *rank, font);
        if (!isNew && *rank < known->second.first)
            known->second = {*rank, font};
    }
    std::vector<drawing::Font> faces;
    for (const auto &[name, face] : best) {
        if (const auto font = fontOf(face.second))
            faces.push_back(*font);
    }
    std::ranges::sort(faces, [](const drawing::Font &a, const drawing::Font &b) {
        return std::tie(a.family, a.style, a.postScriptName)
            < std::tie(b.family, b.style, b.postScriptName);
    });
    return faces;
}

} // namespace kelvo
