#include "keyword_map.h"

#include "setting_map.h"

#include <iterator>

namespace kelvo {

namespace {

constexpr PpdChoiceValue kEndOfChoices{nullptr, 0};

// The values are what tickets in users' hands already say, so they never change.
// clang-format off
constexpr PpdChoiceValue trueFalse[] = {
    {"True", 1}, {"False", 0},
    kEndOfChoices,
};
constexpr PpdChoiceValue jog[] = {
    {"EndOfSet", 1}, {"None", 0},
    kEndOfChoices,
};
constexpr PpdChoiceValue trueGray[] = {
    {"False", 1}, {"True", 2},
    kEndOfChoices,
};
// "Lighten1" carries the number that means "not in the map": menus leave it out.
constexpr PpdChoiceValue imageQuality[] = {
    {"Lighten5", -5}, {"Lighten4", -4}, {"Lighten3", -3}, {"Lighten2", -2}, {"Lighten1", -1},
    {"Normal", 0}, {"Darken1", 1}, {"Darken2", 2}, {"Darken3", 3}, {"Darken4", 4}, {"Darken5", 5},
    kEndOfChoices,
};
constexpr PpdChoiceValue mediaColor[] = {
    {"Buff", 7}, {"Blue", 2}, {"Clear", 6}, {"Gray", 12}, {"Green", 4}, {"Ivory", 11},
    {"Orange", 13}, {"Other", 14}, {"Pink", 5}, {"Red", 9}, {"White", 1}, {"Yellow", 3},
    {"Goldenrod", 8}, {"Unspecified", 22}, {"Custom1", 15}, {"Custom2", 16}, {"Custom3", 17},
    {"Custom4", 18}, {"Custom5", 19}, {"Custom6", 20}, {"Custom7", 21},
    kEndOfChoices,
};
// "CardStock" stands twice: the choice is looked up as 12, a value of 43 finds the
// second row.
constexpr PpdChoiceValue mediaTypes[] = {
    {"SystemDefault", 23}, {"Transparency", 2}, {"Labels", 9}, {"Punched", 11}, {"Recycled", 10},
    {"PrePrinted", 3}, {"Bond", 13}, {"Letterhead", 14}, {"TabStock", 24}, {"Envelopes", 8},
    {"Other", 22}, {"Custom1", 15}, {"Custom2", 16}, {"Custom3", 17}, {"Custom4", 18},
    {"Custom5", 19}, {"Custom6", 20}, {"Custom7", 21}, {"Standard", 1}, {"CardStock", 12},
    {"CardStock2", 26}, {"CardStock", 43}, {"HeavyweightLabels", 25}, {"ExtraHeavyweight", 27},
    {"ExtraHeavyweight2", 28}, {"LightGlossy", 29}, {"LightGlossy2", 30}, {"LightGlossyF", 44},
    {"HeavyGlossy", 31}, {"HeavyGlossy2", 32}, {"HeavyTabStock", 33}, {"Unspecified", 34},
    {"ExtraHeavyPlus", 35}, {"ExtraHeavyPlus2", 36}, {"ExtraHeavyGlossy", 37},
    {"ExtraHeavyGlossy2", 38}, {"ExtraHeavyLabels", 39}, {"Rough", 40}, {"Standard2", 41},
    {"Light", 42},
    kEndOfChoices,
};
constexpr PpdChoiceValue duplex[] = {
    {"None", 1}, {"DuplexNoTumble", 2}, {"DuplexTumble", 3},
    kEndOfChoices,
};
constexpr PpdChoiceValue outputMode[] = {
    {"TonerSaver", 1}, {"Standard", 2}, {"Enhanced", 3}, {"HighSpeed", 4}, {"HighQuality", 5},
    {"HighResolution", 6},
    kEndOfChoices,
};
constexpr PpdChoiceValue rgbColorSpace[] = {
    {"KelvoRGB", 1}, {"sRGB", 2}, {"AppleRGB", 3}, {"AdobeRGB", 4},
    kEndOfChoices,
};
constexpr PpdChoiceValue cmykColorSpace[] = {
    {"SNAP", 1}, {"SWOP", 2}, {"EuroScale", 3}, {"Commercial", 4}, {"JapanColor", 5},
    kEndOfChoices,
};
constexpr PpdChoiceValue colorCorrection[] = {
    {"Auto", 1}, {"sRGB", 2}, {"BlackWhite", 3}, {"PressMatch", 4}, {"None", 5}, {"Standard", 6},
    kEndOfChoices,
};
constexpr PpdChoiceValue pageSize[] = {
    {"Letter", 1}, {"Legal", 2}, {"Tabloid", 3}, {"A4", 4}, {"A3", 5}, {"FanFoldGermanLegal", 16},
    {"Statement", 17}, {"A5", 18}, {"A6", 40}, {"Executive", 21}, {"B5", 6}, {"A4Cover", 7},
    {"9x11", 8}, {"B4", 14}, {"5x7", 41}, {"B6", 42}, {"8x10", 10}, {"4x6Pcard", 43},
    {"EnvMonarch", 44}, {"Env9", 77}, {"Env10", 45}, {"EnvDL", 46}, {"EnvC5", 20}, {"JISB5", 55},
    {"JISB4", 56}, {"JISB6", 57}, {"SpanishFolio", 22}, {"EnvC4", 58}, {"4x6", 59},
    {"100x148Postcard", 60}, {"148x200Postcard", 61}, {"TabloidExtra", 11}, {"12x19", 71},
    {"13x19", 66}, {"SRA3", 15}, {"220x330", 24}, {"815", 23}, {"16K", 29}, {"EnvB5", 73},
    {"EnvC6", 74}, {"KV11x15", 63}, {"EnvChou3", 69}, {"5p5x7", 76}, {"KV6x9", 62},
    {"Custom", 75},
    kEndOfChoices,
};
// Bins under several names: 2 always turns back into "Top" and 5 into "Upper".
constexpr PpdChoiceValue outputBin[] = {
    {"Auto", 1}, {"Side", 3}, {"Top", 2}, {"TopTray", 2}, {"Stacker", 4}, {"Upper", 5},
    {"Lower", 6}, {"Booklet", 7}, {"Middle", 11}, {"Middle2", 15}, {"PrinterDefault", kUnset},
    {"Center", 5}, {"Bottom", 5}, {"EnvFolder", 13}, {"SBM", 14},
    kEndOfChoices,
};
constexpr PpdChoiceValue fold[] = {
    {"None", 1}, {"C", 19}, {"Z", 20}, {"ZFoldHalfSheet", 36}, {"BiFold", 43},
    {"BiFoldStaple", 53},
    kEndOfChoices,
};
constexpr PpdChoiceValue punch[] = {
    {"None", 1}, {"HolePunch", 2}, {"2HolePunch", 3}, {"3HolePunch", 4}, {"4HolePunch", 5},
    kEndOfChoices,
};
constexpr PpdChoiceValue stapleLocation[] = {
    {"None", 1}, {"SinglePortrait", 5}, {"DualLandscape", 10}, {"MultipleStaples", 54},
    kEndOfChoices,
};
constexpr PpdChoiceValue economode[] = {
    {"None", 2}, {"Draft", 1},
    kEndOfChoices,
};
constexpr PpdChoiceValue resolution[] = {
    {"200x100dpi", 6}, {"200x200dpi", 5}, {"300x300dpi", 1}, {"600x600dpi", 2},
    {"1200x600dpi", 3}, {"1200x1200dpi", 4}, {"1800x1800dpi", 7},
    kEndOfChoices,
};
constexpr PpdChoiceValue colorMode[] = {
    {"Grayscale", kColorModeGrayscale}, {"Color", kColorModeColor},
    kEndOfChoices,
};
constexpr PpdChoiceValue trays[] = {
    {"Auto", 0}, {"Tray1", 1}, {"Tray2", 2}, {"Tray3", 3}, {"Tray4", 4}, {"Tray5", 5},
    {"Tray6", 6}, {"Bypass", 100},
    kEndOfChoices,
};
constexpr PpdChoiceValue feedEdge[] = {
    {"LongEdge", 1}, {"ShortEdge", 2},
    kEndOfChoices,
};
constexpr PpdChoiceValue slipSheetPrint[] = {
    {"None", 1}, {"Blank", 2}, {"Printed", 3},
    kEndOfChoices,
};
// clang-format on

} // namespace

// clang-format off
constexpr PpdKeywordMap MainKeywordMap[] = {
    {"JCLBanner", trueFalse},
    {"Jog", jog},
    {"JCLTrueGrayGraphics", trueGray},
    {"JCLTrueGrayImages", trueGray},
    {"KVImageQuality", imageQuality},
    {"MediaColor", mediaColor},
    {"MediaType", mediaTypes},
    {"Duplex", duplex},
    {"KVOutputMode", outputMode},
    {"KVRGBColorSpace", rgbColorSpace},
    {"KVCMYKColorSpace", cmykColorSpace},
    {"KVColorCorrection", colorCorrection},
    {"PageSize", pageSize},
    {"OutputBin", outputBin},
    {"KVFold", fold},
    {"KVPunch", punch},
    {"StapleLocation", stapleLocation},
    {"KVEconomode", economode},
    {"KVOutputOption", trueFalse},
    {"Resolution", resolution},
    {"KVColorMode", colorMode},
    {"InputSlot", trays},
    {"KVFeedEdge", feedEdge},
    {"KVFrontCoverSheet", trays},
    {"KVBackCoverSheet", trays},
    {"KVSlipSheetPrint", slipSheetPrint},
    {"KVSlipSheetSource", trays},
    {"KVSlipSheetType", mediaTypes},
    {nullptr, nullptr},
};
// clang-format on

static_assert(std::end(MainKeywordMap)[-1].keyword == nullptr);

const PpdChoiceValue *findKeyword(const QString &keyword)
{
    for (const PpdKeywordMap *row = MainKeywordMap; row->keyword; ++row) {
        if (keyword == QLatin1String(row->keyword))
            return row->choices;
    }
    return nullptr;
}

} // namespace kelvo
