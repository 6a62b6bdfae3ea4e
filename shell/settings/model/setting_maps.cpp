#include "setting_maps.h"

namespace kelvo {

namespace {

constexpr std::int32_t code(const char (&text)[5])
{
    return static_cast<std::int32_t>(fourCharCode(text));
}

// "Use the job's name" in JobNameMap. Tickets in use carry it in every row of six
// other maps as well: their rows cannot be told apart by value, and the first
// one is what a value finds.
constexpr std::int32_t kUseJobName = code("Kujn");

} // namespace

// clang-format off
constexpr SettingMap OnOffMap[] = {
    {"On",  kUseJobName},
    {"Off", kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(OnOffMap));

constexpr SettingMap OPIPrescanMap[] = {
    {"PrinterDefault", kUseJobName},
    {"None",           kUseJobName},
    {"Scan",           kUseJobName},
    {"Gather",         kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(OPIPrescanMap));

constexpr SettingMap OPISubsitutionMap[] = {
    {"PrinterDefault", kUseJobName},
    {"True",           kUseJobName},
    {"False",          kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(OPISubsitutionMap));

constexpr SettingMap PrinterEmulationMap[] = {
    {"PrinterDefault", kUseJobName},
    {"None",           kUseJobName},
    {"Halbrook 3300",  kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(PrinterEmulationMap));

// The first row's 0 ends every search: whatever is looked up is "Face Down".
constexpr SettingMap OutputOptionsMap[] = {
    {"Face Down", 0},
    {"Face Up",   1},
    kEndOfMap,
};
static_assert(isWellFormed(OutputOptionsMap) && valuesAreDistinct(OutputOptionsMap));

constexpr SettingMap RotateImageMap[] = {
    {"PrinterDefault", kUseJobName},
    {"Off",            kUseJobName},
    {"On",             kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(RotateImageMap));

constexpr SettingMap BookletLayoutOrderMap[] = {
    {"RightToLeft", kUseJobName},
    {"LeftToRight", kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(BookletLayoutOrderMap));

constexpr SettingMap CoverOptionMap[] = {
    {"No Covers",             1},
    {"Front Cover Only",      2},
    {"Back Cover Only",       3},
    {"Front and Back Covers", 5},
    kEndOfMap,
};
static_assert(isWellFormed(CoverOptionMap) && valuesAreDistinct(CoverOptionMap));

constexpr SettingMap InsertOptionMap[] = {
    {"After Page",                1},
    {"SpecialPageSummaryBefore1", 2},
    kEndOfMap,
};
static_assert(isWellFormed(InsertOptionMap) && valuesAreDistinct(InsertOptionMap));

constexpr SettingMap BookletWatermarkBackgroundFormsMap[] = {
    {"None",     1, fourCharCode("BfCn")},
    {"-",        2},
    {"Setup...", 3, fourCharCode("BfCs")},
    kEndOfMap,
};
static_assert(isWellFormed(BookletWatermarkBackgroundFormsMap)
              && valuesAreDistinct(BookletWatermarkBackgroundFormsMap));

constexpr SettingMap PageBordersMap[] = {
    {"No Page Borders",   1},
    {"Draw Page Borders", 2},
    kEndOfMap,
};
static_assert(isWellFormed(PageBordersMap) && valuesAreDistinct(PageBordersMap));

constexpr SettingMap EnabledDisabledMap[] = {
    {"Enabled",  1},
    {"Disabled", 2},
    kEndOfMap,
};
static_assert(isWellFormed(EnabledDisabledMap) && valuesAreDistinct(EnabledDisabledMap));

constexpr SettingMap WatermarkOptionsMap[] = {
    {"WatermarkBackground",       1, fourCharCode("KWmB")},
    {"WatermarkBlend",            2, fourCharCode("KWmL")},
    {"WatermarkForeground",       3, fourCharCode("KWmF")},
    {"-",                        -5},
    {"WatermarkPrintOnAllPages",  4, fourCharCode("KWmA")},
    {"WatermarmPrintOnPage1Only", 5, fourCharCode("KWm1")},
    kEndOfMap,
};
static_assert(isWellFormed(WatermarkOptionsMap) && valuesAreDistinct(WatermarkOptionsMap));

// From -5 down: the menu's own rows, which stand for an action and not for a watermark.
constexpr SettingMap WatermarkMap[] = {
    {"NoWatermark", 1, fourCharCode("KWmX")},
    {"-",          -5},
    {"Options",    -6, fourCharCode("KWmO")},
    {"New...",     -7, fourCharCode("KWmN")},
    {"Edit...",    -8, fourCharCode("KWmE")},
    {"Delete",     -9, fourCharCode("KWmD")},
    kEndOfMap,
};
static_assert(isWellFormed(WatermarkMap) && valuesAreDistinct(WatermarkMap));

constexpr SettingMap FaxResolutionMap[] = {
    {"Standard",  1},
    {"Fine",      2},
    {"Superfine", 4},
    {"Ultrafine", 3},
    kEndOfMap,
};
static_assert(isWellFormed(FaxResolutionMap) && valuesAreDistinct(FaxResolutionMap));

constexpr SettingMap FaxSendSpeedMap[] = {
    {"G3-Auto",  4},
    {"Fixed G3", 2},
    {"G4-Auto",  5},
    kEndOfMap,
};
static_assert(isWellFormed(FaxSendSpeedMap) && valuesAreDistinct(FaxSendSpeedMap));

constexpr SettingMap ConfirmationSheetMap[] = {
    {"Print a Confirmation Sheet",        1},
    {"Do Not Print a Confirmation Sheet", 2},
    kEndOfMap,
};
static_assert(isWellFormed(ConfirmationSheetMap) && valuesAreDistinct(ConfirmationSheetMap));

constexpr SettingMap CoverSheetMap[] = {
    {"Do Not Print a Cover Sheet", 1},
    {"Print a Cover Sheet...",     2},
    kEndOfMap,
};
static_assert(isWellFormed(CoverSheetMap) && valuesAreDistinct(CoverSheetMap));

constexpr SettingMap CoverSheetRecipientMap[] = {
    {"Show All Recipients",          1},
    {"Hide Recipient's Information", 2},
    {"Show Custom Text",             3},
    kEndOfMap,
};
static_assert(isWellFormed(CoverSheetRecipientMap) && valuesAreDistinct(CoverSheetRecipientMap));

constexpr SettingMap CoverSheetSenderMap[] = {
    {"Show Sender's Information", 1},
    {"Hide Sender's Information", 2},
    kEndOfMap,
};
static_assert(isWellFormed(CoverSheetSenderMap) && valuesAreDistinct(CoverSheetSenderMap));

constexpr SettingMap CoverSheetImageMap[] = {
    {"NoWatermark",            1, fourCharCode("KWmX")},
    {"-",                     -5},
    {"Cover Sheet Paper Size", -6, fourCharCode("KWmO")},
    {"New...",                -7, fourCharCode("LFin")},
    {"Edit...",               -8, fourCharCode("LFie")},
    {"Delete",                -9, fourCharCode("LFid")},
    kEndOfMap,
};
static_assert(isWellFormed(CoverSheetImageMap) && valuesAreDistinct(CoverSheetImageMap));

constexpr SettingMap TabStockSetupMap[] = {
    {"None",                       1},
    {"0.5\" (8.5x11\" Template)",  2},
    {"12.7 mm (A4 Template)",      3},
    {"Custom",                     4},
    kEndOfMap,
};
static_assert(isWellFormed(TabStockSetupMap) && valuesAreDistinct(TabStockSetupMap));

// A radio group's selection is its position: the two radio maps have no values.
constexpr SettingMap TabStockRadioMap[] = {
    {"Inches",      0},
    {"Millimeters", 0},
    kEndOfMap,
};
static_assert(isWellFormed(TabStockRadioMap));

constexpr SettingMap SavedJobSaveOptionRadioMap[] = {
    {"Save",      0},
    {"SavePrint", 0},
    kEndOfMap,
};
static_assert(isWellFormed(SavedJobSaveOptionRadioMap));

constexpr SettingMap FolderNameMap[] = {
    {"PublicFolder", code("Kfln")},
    kEndOfMap,
};
static_assert(isWellFormed(FolderNameMap));

constexpr SettingMap JobNameMap[] = {
    {"UseJobName", kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(JobNameMap));

constexpr SettingMap SavedJobNameMap[] = {
    {"UseJobName", kUseJobName},
    kEndOfMap,
};
static_assert(isWellFormed(SavedJobNameMap));

constexpr SettingMap LoginNameMap[] = {
    {"UseLoginName", code("JnUL")},
    kEndOfMap,
};
static_assert(isWellFormed(LoginNameMap));

constexpr SettingMap FaxCoverSizeMap[] = {
    {"StockSizeLetter", 1, fourCharCode("FwmL")},
    {"StockSizeA4",     4, fourCharCode("FwmA")},
    kEndOfMap,
};
static_assert(isWellFormed(FaxCoverSizeMap) && valuesAreDistinct(FaxCoverSizeMap));

constexpr SettingMap SeparatorOptionMap[] = {
    {"Separator Option None",    1},
    {"Separator Option Blank",   2},
    {"Separator Option Printed", 3},
    kEndOfMap,
};
static_assert(isWellFormed(SeparatorOptionMap) && valuesAreDistinct(SeparatorOptionMap));

constexpr SettingMap JobTypeMap[] = {
    {"Normal",                  1},
    {"SecurePrint",             6},
    {"SampleSet",               8},
    {"DelayedPrint",            7},
    {"Save to Mailbox Command", 3},
    {"Fax",                     5, kNoCommand, "FaxKey", true},
    kEndOfMap,
};
static_assert(isWellFormed(JobTypeMap) && valuesAreDistinct(JobTypeMap));

constexpr SettingMap ResolutionMap[] = {
    {"600 x 600 Resolution", 2},
    kEndOfMap,
};
static_assert(isWellFormed(ResolutionMap));

constexpr SettingMap PlexMap[] = {
    {"Simplex",     1},
    {"Duplex",      2},
    {"DuplexShort", 3},
    kEndOfMap,
};
static_assert(isWellFormed(PlexMap) && valuesAreDistinct(PlexMap));

constexpr SettingMap CoverSidesImagedMap[] = {
    {"CoverPrinted",           4},
    {"CoverBlankorPreprinted", 1},
    kEndOfMap,
};
static_assert(isWellFormed(CoverSidesImagedMap) && valuesAreDistinct(CoverSidesImagedMap));
// clang-format on

} // namespace kelvo
