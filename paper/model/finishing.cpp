#include "finishing.h"

#include "paper_output_settings.h"
#include "ppd_choices.h"

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

constexpr std::array kStaplerFeatures = {"SingleStapleKey", "DualStapleKey", "MultipleStapleKey"};
constexpr std::array kPunchFeatures = {"GenericPunchKey", "DualPunchKey", "TriplePunchKey",
                                       "QuadruplePunchKey"};
constexpr std::array kFolderFeatures = {"CFoldKey", "ZFoldKey", "ZFoldHalfSheetKey"};

// A line of the menu. Its text is the feature's name, or that of `textKey`.
struct MenuLine
{
    const char *textKey;          // null: the feature's name; "-": a divider
    const char *feature;          // null: always there, or as `unit` says
    bool FinishingDevices::*unit; // the unit that must be there; null: none
    OSType command;
    std::int32_t value;
};

// clang-format off
constexpr MenuLine kMenuLines[] = {
    {"No Staple Value",     nullptr,             &FinishingDevices::stapler,   kCommandNoStaple,        kStapleNone},
    {nullptr,               "SingleStapleKey",   nullptr,                      kCommandSingleStaple,    kStapleSingle},
    {nullptr,               "DualStapleKey",     nullptr,                      kCommandDualStaple,      kStapleDual},
    {nullptr,               "MultipleStapleKey", nullptr,                      kCommandMultipleStaples, kStapleMultiple},
    {"-",                   nullptr,             nullptr,                      kNoCommand,              0},
    {nullptr,               "GenericPunchKey",   nullptr,                      kCommandGenericPunch,    kPunchGeneric},
    {nullptr,               "DualPunchKey",      nullptr,                      kCommandTwoHoles,        kPunchTwoHoles},
    {nullptr,               "TriplePunchKey",    nullptr,                      kCommandThreeHoles,      kPunchThreeHoles},
    {nullptr,               "QuadruplePunchKey", nullptr,                      kCommandFourHoles,       kPunchFourHoles},
    {"NoHolePunch",         nullptr,             &FinishingDevices::holePunch, kCommandNoPunch,         kPunchNone},
    {"-",                   nullptr,             nullptr,                      kNoCommand,              0},
    {"No Fold",             nullptr,             &FinishingDevices::folder,    kCommandNoFold,          kFoldNone},
    {"BiFoldNoStaple",      "BookletFoldKey",    nullptr,                      kCommandBiFold,          kFoldBi},
    {"FoldCFold",           "CFoldKey",          nullptr,                      kCommandCFold,           kFoldC},
    {"FoldZFold",           "ZFoldKey",          nullptr,                      kCommandZFold,           kFoldZ},
    {"Z Fold Half Sheet",   "ZFoldHalfSheetKey", nullptr,                      kCommandZFoldHalfSheet,  kFoldZHalfSheet},
    {"-",                   nullptr,             nullptr,                      kNoCommand,              0},
    {"Booklet Creation...", nullptr,             nullptr,                      kCommandBookletCreation, 0},
};
// clang-format on

bool isPresent(const MenuLine &line, const Device &device, const FinishingDevices &devices)
{
    if (line.feature)
        return device.has(line.feature);
    return !line.unit || devices.*line.unit;
}

QString textOf(const MenuLine &line, const Device &device)
{
    return line.textKey ? device.text(line.textKey)
                        : device.featureText(line.feature).value_or(QString());
}

bool isChecked(const MenuItem &item, const PaperOutputSettings &settings)
{
    const Finishing &finishing = settings.finishing;
    const bool isBookletMode = finishing.options == kFinishingBooklet || settings.isBooklet();
    if (isBookletMode)
        return item.command == kCommandBookletCreation;
    switch (item.command) {
    case kCommandNoFold:
    case kCommandBiFold:
    case kCommandCFold:
    case kCommandZFold:
    case kCommandZFoldHalfSheet:
        return finishing.fold == item.reference;
    case kCommandGenericPunch:
    case kCommandNoPunch:
    case kCommandTwoHoles:
    case kCommandThreeHoles:
    case kCommandFourHoles:
        return finishing.punch == item.reference;
    case kCommandNoStaple:
        return finishing.singleStaple == kStapleNone && finishing.dualStaple == kStapleNone
            && finishing.otherStaple == kStapleNone && !finishing.hasUnknownStaple;
    case kCommandSingleStaple:
        return finishing.singleStaple == item.reference;
    case kCommandDualStaple:
        return finishing.dualStaple == item.reference;
    case kCommandMultipleStaples:
        return finishing.otherStaple == item.reference;
    default:
        return false;
    }
}

// A staple or a hole goes through all sheets, which a booklet's fold does not allow.
void leaveBooklet(PaperOutputSettings &settings)
{
    if (settings.isBooklet()) {
        settings.booklet.layout = kBookletOff;
        settings.duplex = kPlexDuplex;
    }
    if (settings.finishing.options == kFinishingBooklet) {
        settings.finishing.options = kFinishingNone;
        settings.finishing.fold = kFoldNone;
    }
}

const char *bookletFoldKey(std::int32_t fold)
{
    switch (fold) {
    case kFoldBi:
        return "Booklet Fold";
    case kFoldBiAndStaple:
        return "Booklet FoldStaple";
    default:
        return "No Fold";
    }
}

const char *stapleKey(const Finishing &finishing)
{
    if (finishing.singleStaple != kStapleNone)
        return "1 Staple";
    if (finishing.dualStaple != kStapleNone)
        return "2 Staples";
    return finishing.otherStaple == kStapleNone ? "No Staple Value" : "Multiple Staples";
}

const char *punchKey(std::int32_t punch)
{
    switch (punch) {
    case kPunchGeneric:
        return "HolePunch";
    case kPunchTwoHoles:
        return "2 Hole Punch";
    case kPunchThreeHoles:
        return "3 Hole Punch";
    case kPunchFourHoles:
        return "4 Hole Punch";
    default:
        return "NoHolePunch";
    }
}

const char *foldKey(std::int32_t fold)
{
    switch (fold) {
    case kFoldC:
        return "FoldCFold";
    case kFoldZ:
        return "FoldZFold";
    case kFoldZHalfSheet:
        return "Z Fold Half Sheet";
    case kFoldBi:
        return "BiFoldNoStaple";
    default:
        return "No Fold";
    }
}

} // namespace

FinishingDevices finishingDevices(const Device &device)
{
    const auto has = [&device](const char *feature) { return device.has(feature); };
    return {std::ranges::any_of(kStaplerFeatures, has), std::ranges::any_of(kPunchFeatures, has),
            std::ranges::any_of(kFolderFeatures, has)};
}

void PopulateFinishingMenu(Menu &menu, const Device &device)
{
    const FinishingDevices devices = finishingDevices(device);
    for (const MenuLine &line : kMenuLines) {
        if (!isPresent(line, device, devices))
            continue;
        MenuItem item;
        item.text = textOf(line, device);
        item.command = line.command;
        item.reference = line.value;
        item.divider = line.command == kNoCommand;
        item.enabled = !item.divider;
        menu.items.push_back(std::move(item));
    }
}

void MarkFinishingMenu(Menu &menu, const PaperOutputSettings &settings)
{
    for (MenuItem &item : menu.items)
        item.checked = isChecked(item, settings);
}

bool applyFinishingCommand(PaperOutputSettings &settings, OSType command, std::int32_t value)
{
    Finishing &finishing = settings.finishing;
    switch (command) {
    case kCommandNoStaple:
        leaveBooklet(settings);
        setStaple(finishing, kStapleNone);
        return true;
    case kCommandSingleStaple:
    case kCommandDualStaple:
        leaveBooklet(settings);
        finishing.options =
            command == kCommandSingleStaple ? kFinishingSingleStaple : kFinishingDualStaple;
        setStaple(finishing, value);
        finishing.fold = kFoldNone;
        return true;
    case kCommandMultipleStaples:
        leaveBooklet(settings);
        finishing.options = kFinishingMultipleStaples;
        setStaple(finishing, kStapleMultiple);
        finishing.fold = kFoldNone;
        finishing.punchKind = kPunchKindNone;
        finishing.punch = kPunchNone;
        return true;
    case kCommandGenericPunch:
    case kCommandTwoHoles:
    case kCommandThreeHoles:
    case kCommandFourHoles:
        leaveBooklet(settings);
        finishing.options = kFinishingPunch;
        finishing.punchKind = kPunchKindPunched;
        finishing.fold = kFoldNone;
        finishing.otherStaple = kStapleNone;
        finishing.punch = value;
        return true;
    case kCommandNoPunch:
        leaveBooklet(settings);
        finishing.punchKind = kPunchKindNone;
        finishing.punch = value;
        return true;
    case kCommandNoFold:
    case kCommandBiFold:
    case kCommandCFold:
    case kCommandZFold:
    case kCommandZFoldHalfSheet:
        finishing.fold = value;
        return true;
    default:
        return false;
    }
}

void setStaple(Finishing &finishing, std::int32_t value)
{
    finishing.singleStaple = kStapleNone;
    finishing.dualStaple = kStapleNone;
    finishing.otherStaple = kStapleNone;
    finishing.hasUnknownStaple = false;
    if (value >= 5 && value <= 8)
        finishing.singleStaple = value;
    else if (value >= 10 && value <= 13)
        finishing.dualStaple = value;
    else if (value >= 54 && value <= 57)
        finishing.otherStaple = value;
}

std::int32_t chosenStaple(const Finishing &finishing)
{
    if (finishing.singleStaple != kStapleNone)
        return finishing.singleStaple;
    return finishing.dualStaple != kStapleNone ? finishing.dualStaple : finishing.otherStaple;
}

std::int32_t shownStaple(const Finishing &finishing)
{
    return finishing.hasUnknownStaple ? kNoPpdChoice : chosenStaple(finishing);
}

void takeBooklet(PaperOutputSettings &settings, std::int32_t fold, const BookletSettings &booklet)
{
    const bool wasBooklet = settings.isBooklet();
    settings.booklet = booklet;
    if (settings.isBooklet())
        settings.duplex = kPlexDuplexShort;
    else if (wasBooklet)
        UnselectBooklet(settings);
    settings.finishing.fold = fold;
    settings.finishing.options = optionsWithFold(settings.finishing.options, fold);
}

void UnselectBooklet(PaperOutputSettings &settings)
{
    settings.booklet.layout = kBookletOff;
    settings.duplex = kPlexDuplex;
    if (settings.finishing.options == kFinishingBooklet)
        settings.finishing.options = kFinishingNone;
}

QString CreateFinishingString(const PaperOutputSettings &settings, const Device &device)
{
    QString summary = QStringLiteral("");
    const auto addLine = [&](const char *key) {
        summary += QStringLiteral("- ") + device.text(key) + QStringLiteral("\n");
    };
    const Finishing &finishing = settings.finishing;
    if (finishing.options == kFinishingBooklet || settings.isBooklet()) {
        addLine(bookletFoldKey(finishing.fold));
        if (settings.isBooklet())
            addLine("Booklet Layout");
        return summary;
    }
    const FinishingDevices devices = finishingDevices(device);
    if (devices.stapler)
        addLine(stapleKey(finishing));
    if (devices.holePunch)
        addLine(punchKey(finishing.punch));
    if (devices.folder)
        addLine(foldKey(finishing.fold));
    return summary;
}

} // namespace kelvo
