#include "finishing_ticket.h"

#include "ppd_choices.h"

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

constexpr std::int32_t kPortrait = 1;
constexpr std::int32_t kLandscape = 2;
constexpr std::int32_t kReversePortrait = 3;
constexpr std::int32_t kReverseLandscape = 4;

struct Holes
{
    std::int32_t punch;
    int count;
    const char *portrait;
    const char *landscape;
};
constexpr Holes kHoles[] = {
    {kPunchTwoHoles, 2, "2HolePunch", "2HolePunchLandscape"},
    {kPunchThreeHoles, 3, "3HolePunch", "3HolePunchLandscape"},
    {kPunchFourHoles, 4, "4HolePunch", "4HolePunchLandscape"},
};

const QString singlePortrait = QStringLiteral("SinglePortrait");
const QString singleLandscape = QStringLiteral("SingleLandscape");
const QString dualPortrait = QStringLiteral("DualPortrait");
const QString dualLandscape = QStringLiteral("DualLandscape");

} // namespace

std::optional<QString> punchChoice(std::int32_t punch, std::int32_t orientation)
{
    for (const Holes &holes : kHoles) {
        if (holes.punch != punch)
            continue;
        switch (orientation) {
        case kPortrait:
        case kReversePortrait:
            return QString::fromLatin1(holes.portrait);
        case kLandscape:
        case kReverseLandscape:
            return QString::fromLatin1(holes.landscape);
        default:
            return std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<std::int32_t> punchOfChoice(const QString &choice)
{
    for (const Holes &holes : kHoles) {
        if (choice == QLatin1String(holes.landscape))
            return holes.punch;
    }
    return std::nullopt;
}

int holesOfPunch(std::int32_t punch)
{
    const Holes *holes = std::ranges::find(kHoles, punch, &Holes::punch);
    return holes == std::end(kHoles) ? 0 : holes->count;
}

std::optional<QString> stapleChoice(std::int32_t staple, std::int32_t orientation)
{
    const std::optional<QString> choice =
        PPDChoiceForTicketValue(QStringLiteral("StapleLocation"), staple);
    if (choice == singlePortrait && orientation == kLandscape)
        return singleLandscape;
    if (orientation == kReverseLandscape)
        return singleLandscape;
    if (choice == dualLandscape && orientation == kPortrait)
        return dualPortrait;
    if (orientation == kReversePortrait)
        return dualPortrait;
    return choice;
}

std::optional<std::int32_t> stapleOfChoice(const QString &choice)
{
    if (choice == singleLandscape)
        return kStapleSingle;
    if (choice == dualPortrait)
        return kStapleDual;
    return std::nullopt;
}

QStringList punchChoicesWithoutValue()
{
    QStringList choices;
    for (const Holes &holes : kHoles)
        choices << QString::fromLatin1(holes.landscape);
    return choices;
}

QStringList stapleChoicesWithoutValue()
{
    return {singleLandscape, dualPortrait};
}

TicketPlaces finishingPlaces(OSType command)
{
    switch (command) {
    case kCommandNoStaple:
    case kCommandSingleStaple:
    case kCommandDualStaple:
    case kCommandMultipleStaples:
        return {{kPPDChoices, QStringLiteral("StapleLocation")}};
    case kCommandGenericPunch:
    case kCommandNoPunch:
    case kCommandTwoHoles:
    case kCommandThreeHoles:
    case kCommandFourHoles:
        return {{kPPDChoices, QStringLiteral("KVPunch")}};
    case kCommandNoFold:
    case kCommandBiFold:
    case kCommandCFold:
    case kCommandZFold:
    case kCommandZFoldHalfSheet:
        return {{kPPDChoices, QStringLiteral("KVFold")}};
    default:
        return {};
    }
}

} // namespace kelvo
