#include "finishing_choices.h"

#include "offered_choices.h"
#include "paper_output_pictures.h"
#include "paper_output_settings.h"
#include "ticket_values.h"

#include <QStringList>

#include <algorithm>

namespace kelvo {

namespace {

// What a dialog sets; several dialogs set one thing.
enum class Setting { Staple, Punch, Fold, Bind };

constexpr unsigned in(FinishingDialogKind kind)
{
    return 1U << static_cast<unsigned>(kind);
}
constexpr unsigned kInStaples =
    in(FinishingDialogKind::SingleStaple) | in(FinishingDialogKind::DualStaple);
constexpr unsigned kInFolds = in(FinishingDialogKind::Fold) | in(FinishingDialogKind::AdvancedFold)
    | in(FinishingDialogKind::ZFold);

struct ChoiceRow
{
    Setting setting;
    const char *feature; // must be installed; null: always offered
    unsigned dialogs;    // in(kind), several together
    FinishingChoice choice;
};

// "none" of each setting stands first and needs nothing.
// clang-format off
constexpr ChoiceRow kRows[] = {
    {Setting::Staple, nullptr,             kInStaples,                            {"No Staple Value",    "No Staple Hint",          kCommandNoStaple,        kStapleNone}},
    {Setting::Staple, "SingleStapleKey",   in(FinishingDialogKind::SingleStaple), {"1 Staple",           "1 Staple Hint",           kCommandSingleStaple,    kStapleSingle}},
    {Setting::Staple, "DualStapleKey",     in(FinishingDialogKind::DualStaple),   {"2 Staples",          "2 Staples Hint",          kCommandDualStaple,      kStapleDual}},
    {Setting::Staple, "MultipleStapleKey", 0,                                     {"Multiple Staples",   "",                        kCommandMultipleStaples, kStapleMultiple}},
    {Setting::Punch,  nullptr,             in(FinishingDialogKind::HolePunch),    {"NoHolePunch",        "NoHolePunch Hint",        kCommandNoPunch,         kPunchNone}},
    {Setting::Punch,  "GenericPunchKey",   in(FinishingDialogKind::HolePunch),    {"HolePunch",          "HolePunch Hint",          kCommandGenericPunch,    kPunchGeneric}},
    {Setting::Punch,  "DualPunchKey",      in(FinishingDialogKind::HolePunch),    {"2 Hole Punch",       "2 Hole Punch Hint",       kCommandTwoHoles,        kPunchTwoHoles}},
    {Setting::Punch,  "TriplePunchKey",    in(FinishingDialogKind::HolePunch),    {"3 Hole Punch",       "3 Hole Punch Hint",       kCommandThreeHoles,      kPunchThreeHoles}},
    {Setting::Punch,  "QuadruplePunchKey", in(FinishingDialogKind::HolePunch),    {"4 Hole Punch",       "4 Hole Punch Hint",       kCommandFourHoles,       kPunchFourHoles}},
    {Setting::Fold,   nullptr,             kInFolds,                              {"No Fold",            "No Fold Hint",            kCommandNoFold,          kFoldNone}},
    {Setting::Fold,   "BookletFoldKey",    in(FinishingDialogKind::AdvancedFold), {"BiFoldNoStaple",     "BiFoldNoStaple Hint",     kCommandBiFold,          kFoldBi}},
    {Setting::Fold,   "BookletFoldKey",    in(FinishingDialogKind::AdvancedFold), {"Booklet FoldStaple", "Booklet FoldStaple Hint", kCommandBiFold,          kFoldBiAndStaple}},
    {Setting::Fold,   "CFoldKey",          in(FinishingDialogKind::Fold) | in(FinishingDialogKind::AdvancedFold),
                                                                                  {"FoldCFold",          "FoldCFold Hint",          kCommandCFold,           kFoldC}},
    {Setting::Fold,   "ZFoldKey",          kInFolds,                              {"FoldZFold",          "FoldZFold Hint",          kCommandZFold,           kFoldZ}},
    {Setting::Fold,   "ZFoldHalfSheetKey", in(FinishingDialogKind::AdvancedFold) | in(FinishingDialogKind::ZFold),
                                                                                  {"Z Fold Half Sheet",  "Z Fold Half Sheet Hint",  kCommandZFoldHalfSheet,  kFoldZHalfSheet}},
    {Setting::Bind,   nullptr,             in(FinishingDialogKind::Bind),         {"No Binding",         "No Binding Hint",         kNoCommand,              kBindNone}},
    {Setting::Bind,   "TapeBindKey",       in(FinishingDialogKind::Bind),         {"Bind Left Edge",     "Bind Left Edge Hint",     kNoCommand,              kBindLeft}},
    {Setting::Bind,   "TapeBindKey",       in(FinishingDialogKind::Bind),         {"Bind Right Edge",    "Bind Right Edge Hint",    kNoCommand,              kBindRight}},
    {Setting::Bind,   "TapeBindKey",       in(FinishingDialogKind::Bind),         {"Bind Top Edge",      "Bind Top Edge Hint",      kNoCommand,              kBindTop}},
};
// clang-format on

Setting settingOf(FinishingDialogKind kind)
{
    switch (kind) {
    case FinishingDialogKind::SingleStaple:
    case FinishingDialogKind::DualStaple:
        return Setting::Staple;
    case FinishingDialogKind::HolePunch:
        return Setting::Punch;
    case FinishingDialogKind::Fold:
    case FinishingDialogKind::AdvancedFold:
    case FinishingDialogKind::ZFold:
        return Setting::Fold;
    case FinishingDialogKind::Bind:
        break;
    }
    return Setting::Bind;
}

std::int32_t currentValue(Setting setting, const Finishing &finishing)
{
    switch (setting) {
    case Setting::Staple:
        return chosenStaple(finishing);
    case Setting::Punch:
        return finishing.punch;
    case Setting::Fold:
        return finishing.fold;
    case Setting::Bind:
        break;
    }
    return finishing.bind;
}

// Null for binding, which is not among a PPD's options.
const char *optionOf(Setting setting)
{
    switch (setting) {
    case Setting::Staple:
        return "StapleLocation";
    case Setting::Punch:
        return "KVPunch";
    case Setting::Fold:
        return "KVFold";
    case Setting::Bind:
        break;
    }
    return nullptr;
}

bool isInPpd(Setting setting, std::int32_t value, const PpdFile *ppd)
{
    const char *option = optionOf(setting);
    return !option || isOffered(ppd, QString::fromLatin1(option), value);
}

bool isOffered(const ChoiceRow &row, const Device &device)
{
    return !row.feature
        || (device.has(row.feature) && isInPpd(row.setting, row.choice.value, device.ppd));
}

QString bindPicture(std::int32_t bind)
{
    switch (bind) {
    case kBindLeft:
        return QStringLiteral("Finishing_Bind_Left.gif");
    case kBindRight:
        return QStringLiteral("Finishing_Bind_Right.gif");
    case kBindTop:
        return QStringLiteral("Finishing_Bind_Top.gif");
    default:
        return QStringLiteral("OfficeFinishing_None.gif");
    }
}

} // namespace

std::vector<FinishingChoice> finishingChoices(FinishingDialogKind kind, const Device &device)
{
    std::vector<FinishingChoice> choices;
    for (const ChoiceRow &row : kRows) {
        if ((row.dialogs & in(kind)) && isOffered(row, device))
            choices.push_back(row.choice);
    }
    return choices;
}

std::optional<std::size_t> findSetChoice(FinishingDialogKind kind,
                                         const std::vector<FinishingChoice> &choices,
                                         const Finishing &finishing)
{
    const auto found = std::ranges::find(choices, currentValue(settingOf(kind), finishing),
                                         &FinishingChoice::value);
    if (found == choices.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - choices.begin());
}

std::size_t initialChoice(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                          const Finishing &finishing)
{
    const std::size_t set = findSetChoice(kind, choices, finishing).value_or(0);
    const bool isStapleToChoose = settingOf(kind) == Setting::Staple && choices.size() > 1;
    return set == 0 && isStapleToChoose ? 1 : set;
}

const char *replacedFinishing(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                              const Finishing &finishing)
{
    if (findSetChoice(kind, choices, finishing))
        return nullptr;
    const Setting setting = settingOf(kind);
    const std::int32_t value = currentValue(setting, finishing);
    for (const ChoiceRow &row : kRows) {
        if (row.setting == setting && row.choice.value == value)
            return row.choice.key;
    }
    return nullptr;
}

bool endsBooklet(FinishingDialogKind kind, const PaperOutputSettings &settings)
{
    const Setting setting = settingOf(kind);
    return (setting == Setting::Staple || setting == Setting::Punch)
        && (settings.isBooklet() || settings.finishing.options == kFinishingBooklet);
}

QString finishingNote(FinishingDialogKind kind, const std::vector<FinishingChoice> &choices,
                      const PaperOutputSettings &settings, const Device &device)
{
    QStringList sentences;
    if (const char *replaced = replacedFinishing(kind, choices, settings.finishing))
        sentences += device.text("Finishing Replaced").arg(device.text(replaced));
    if (endsBooklet(kind, settings))
        sentences += device.text("Finishing Ends Booklet");
    return sentences.join(u' ');
}

TicketPlace finishingPlace(FinishingDialogKind kind)
{
    const char *option = optionOf(settingOf(kind));
    return option ? TicketPlace{kPPDChoices, QString::fromLatin1(option)}
                  : TicketPlace{kPMPrintSettingsTicket, ticketKey("FinishingBindValue")};
}

void applyFinishingChoice(PaperOutputSettings &settings, const FinishingChoice &choice)
{
    Finishing &finishing = settings.finishing;
    if (choice.command == kNoCommand) {
        finishing.bind = choice.value;
        return;
    }
    applyFinishingCommand(settings, choice.command, choice.value);
    // Folded and stapled is a booklet's finishing. Folded alone may be one, or not.
    if (finishing.fold == kFoldBiAndStaple)
        finishing.options = kFinishingBooklet;
    else if (finishing.fold != kFoldBi && finishing.options == kFinishingBooklet)
        finishing.options = kFinishingNone;
}

QString finishingChoicePicture(FinishingDialogKind kind, const PaperOutputSettings &settings,
                               const FinishingChoice &choice)
{
    const Setting setting = settingOf(kind);
    if (setting == Setting::Bind)
        return bindPicture(choice.value);
    PaperOutputSettings after;
    after.booklet = settings.booklet;
    after.finishing = settings.finishing;
    applyFinishingChoice(after, choice);
    // The picture of all finishing shows three holes for two, and here the holes
    // are what is chosen.
    const bool isHolesAlone = setting == Setting::Punch && after.finishing.fold == kFoldNone
        && staplePicture(after.finishing).isEmpty();
    const QString holes = isHolesAlone ? punchPicture(after.finishing.punch) : QString();
    return holes.isEmpty() ? finishingPicture(after) : holes;
}

} // namespace kelvo
