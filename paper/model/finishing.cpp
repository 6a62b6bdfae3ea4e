#include "finishing.h"

#include "installed_features.h"
#include "paper_output_context.h"
#include "ticket_values.h"

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

bool isPresent(const MenuLine &line, const FinishingDevices &devices)
{
    if (line.feature)
        return getInstalledFeature(line.feature);
    return !line.unit || devices.*line.unit;
}

QString textOf(const MenuLine &line, CFBundleRef bundle)
{
    if (line.textKey)
        return localizedText(bundle, QString::fromLatin1(line.textKey));
    return CopyLocalizedStringForInstalledFeatureFromPlugin(QString::fromLatin1(line.feature),
                                                            bundle)
        .value_or(QString());
}

bool isChecked(const MenuItem &item, const _PaperOutputContext &context)
{
    const Finishing &finishing = context.finishing;
    const bool isBookletMode = finishing.options == kFinishingBooklet || context.isBooklet();
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
void leaveBooklet(_PaperOutputContext &context)
{
    if (context.isBooklet()) {
        context.booklet = kBookletOff;
        context.duplex = kPlexDuplex;
    }
    if (context.finishing.options == kFinishingBooklet) {
        context.finishing.options = kFinishingNone;
        context.finishing.fold = kFoldNone;
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

FinishingDevices installedFinishingDevices()
{
    return {std::ranges::any_of(kStaplerFeatures, getInstalledFeature),
            std::ranges::any_of(kPunchFeatures, getInstalledFeature),
            std::ranges::any_of(kFolderFeatures, getInstalledFeature)};
}

void PopulateFinishingMenu(Menu &menu, CFBundleRef bundle)
{
    const FinishingDevices devices = installedFinishingDevices();
    for (const MenuLine &line : kMenuLines) {
        if (!isPresent(line, devices))
            continue;
        MenuItem item;
        item.text = textOf(line, bundle);
        item.command = line.command;
        item.reference = line.value;
        item.divider = line.command == kNoCommand;
        item.enabled = !item.divider;
        menu.items.push_back(std::move(item));
    }
}

void MarkFinishingMenu(Menu &menu, const _PaperOutputContext &context)
{
    for (MenuItem &item : menu.items)
        item.checked = isChecked(item, context);
}

bool applyFinishingCommand(_PaperOutputContext &context, OSType command, std::int32_t value)
{
    Finishing &finishing = context.finishing;
    switch (command) {
    case kCommandNoStaple:
        leaveBooklet(context);
        setStaple(finishing, kStapleNone);
        return true;
    case kCommandSingleStaple:
        leaveBooklet(context);
        finishing.options = kFinishingSingleStaple;
        setStaple(finishing, value);
        finishing.fold = kFoldNone;
        return true;
    case kCommandDualStaple:
        leaveBooklet(context);
        finishing.options = kFinishingDualStaple;
        setStaple(finishing, value);
        finishing.fold = kFoldNone;
        return true;
    case kCommandMultipleStaples:
        leaveBooklet(context);
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
        leaveBooklet(context);
        finishing.options = kFinishingPunch;
        finishing.punchKind = kPunchKindPunched;
        finishing.fold = kFoldNone;
        finishing.otherStaple = kStapleNone;
        finishing.punch = value;
        return true;
    case kCommandNoPunch:
        leaveBooklet(context);
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

void UnselectBooklet(_PaperOutputContext &context)
{
    context.booklet = kBookletOff;
    context.duplex = kPlexDuplex;
    if (context.finishing.options == kFinishingBooklet)
        context.finishing.options = kFinishingNone;
}

QString CreateFinishingString(const _PaperOutputContext &context)
{
    QString summary = QStringLiteral("");
    const auto addLine = [&](const char *key) {
        summary += QStringLiteral("- ") + localizedText(context.bundle, QString::fromLatin1(key))
            + QStringLiteral("\n");
    };
    const Finishing &finishing = context.finishing;
    if (finishing.options == kFinishingBooklet || context.isBooklet()) {
        addLine(bookletFoldKey(finishing.fold));
        if (context.isBooklet())
            addLine("Booklet Layout");
        return summary;
    }
    if (context.devices.stapler)
        addLine(stapleKey(finishing));
    if (context.devices.holePunch)
        addLine(punchKey(finishing.punch));
    if (context.devices.folder)
        addLine(foldKey(finishing.fold));
    return summary;
}

} // namespace kelvo
