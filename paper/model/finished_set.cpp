#include "finished_set.h"

#include "finishing_choices.h"
#include "finishing_ticket.h"
#include "keyword_map.h"
#include "offered_choices.h"
#include "paper_output_settings.h"
#include "separators.h"
#include "two_sided.h"

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

constexpr QSizeF usualSheet(595, 842); // points, A4
constexpr int kMultipleStaples = 4;    // as the pictures have them

using Edge = FinishedSet::Edge;
using Fold = FinishedSet::Fold;
using Offset = FinishedSet::Offset;

// What a value of a setting does to the set, and how that is said. Other values do nothing.
template <typename Effect>
struct Row
{
    std::int32_t value;
    Effect effect;
    const char *key;
};
constexpr Row<Fold> folds[] = {
    {kFoldBi, Fold::Middle, "BiFoldNoStaple"},
    {kFoldBiAndStaple, Fold::Middle, "Booklet FoldStaple"},
    {kFoldC, Fold::C, "FoldCFold"},
    {kFoldZ, Fold::Z, "FoldZFold"},
    {kFoldZHalfSheet, Fold::HalfZ, "Z Fold Half Sheet"},
};
constexpr Row<Edge> tapes[] = {
    {kBindLeft, Edge::Left, "Tape at Left Edge"},
    {kBindRight, Edge::Right, "Tape at Right Edge"},
    {kBindTop, Edge::Top, "Tape at Top Edge"},
};
constexpr Row<Offset> offsets[] = {
    {kOffsetSets, Offset::Sets, "Sets Lie Offset"},
    {kOffsetSubsets, Offset::Subsets, "Subsets Lie Offset"},
    {kOffsetBoth, Offset::Both, "Sets and Subsets Lie Offset"},
};

template <typename Effect, std::size_t N>
Effect effectOf(const Row<Effect> (&rows)[N], std::int32_t value)
{
    const auto row = std::ranges::find(rows, value, &Row<Effect>::value);
    return row == std::end(rows) ? Effect::None : row->effect;
}

template <typename Effect, std::size_t N>
const char *keyOf(const Row<Effect> (&rows)[N], Effect effect)
{
    const auto row = std::ranges::find(rows, effect, &Row<Effect>::effect);
    return row == std::end(rows) ? nullptr : row->key;
}

FinishedSet::Kind kindOf(std::int32_t stockType)
{
    switch (stockType) {
    case kStockTypeTransparency:
        return FinishedSet::Kind::Transparency;
    case kStockTypePrecutTab:
    case kStockTypeTab:
    case kStockTypeHeavyTab:
        return FinishedSet::Kind::Tab;
    case kStockTypeEnvelope:
        return FinishedSet::Kind::Envelope;
    case kStockTypeLabels:
    case kStockTypeHeavyLabels:
    case kStockTypeExtraHeavyLabels:
        return FinishedSet::Kind::Labels;
    default:
        return FinishedSet::Kind::Paper;
    }
}

// The device turns a sheet over its longer or shorter edge, however the page lies on it.
FinishedSet::Turn turnOf(std::int32_t plex, const QSizeF &sheet)
{
    const bool isTall = sheet.height() >= sheet.width();
    switch (plex) {
    case kPlexDuplex:
        return isTall ? FinishedSet::Turn::OverLeft : FinishedSet::Turn::OverTop;
    case kPlexDuplexShort:
        return isTall ? FinishedSet::Turn::OverTop : FinishedSet::Turn::OverLeft;
    default:
        return FinishedSet::Turn::None;
    }
}

FinishedSet::Turn turnOf(const PaperOutputSettings &settings, const QSizeF &page,
                         const Device &device)
{
    const QString option = QStringLiteral("Duplex");
    if (!device.hasOption(option))
        return FinishedSet::Turn::None; // it prints on one side
    const std::int32_t plex = shownTwoSided(settings);
    return isOffered(device.ppd, option, plex) ? turnOf(plex, page) : FinishedSet::Turn::Unknown;
}

int stapleCount(const PaperOutputSettings &settings, const Device &device)
{
    if (settings.finishing.hasUnknownStaple)
        return 0;
    const auto choice = stapleChoice(chosenStaple(settings.finishing), settings.orientation);
    if (!choice || !isOffered(device.ppd, QStringLiteral("StapleLocation"), *choice))
        return 0;
    if (choice->startsWith(QLatin1String("Single")))
        return 1;
    if (choice->startsWith(QLatin1String("Dual")))
        return 2;
    return *choice == QLatin1String("MultipleStaples") ? kMultipleStaples : 0;
}

int holeCount(const PaperOutputSettings &settings, const Device &device)
{
    const auto choice = punchChoice(settings.finishing.punch, settings.orientation);
    if (!choice || !isOffered(device.ppd, QStringLiteral("KVPunch"), *choice))
        return 0;
    return holesOfPunch(settings.finishing.punch);
}

Edge tapeOf(const Finishing &finishing, const Device &device)
{
    constexpr FinishingDialogKind kind = FinishingDialogKind::Bind;
    return findSetChoice(kind, finishingChoices(kind, device), finishing)
        ? effectOf(tapes, finishing.bind)
        : Edge::None;
}

const char *sidesKey(FinishedSet::Turn turn, bool isTall)
{
    switch (turn) {
    case FinishedSet::Turn::None:
        return keyOfValue(PlexMap, kPlexSimplex);
    case FinishedSet::Turn::OverLeft:
        return keyOfValue(PlexMap, isTall ? kPlexDuplex : kPlexDuplexShort);
    case FinishedSet::Turn::OverTop:
        return keyOfValue(PlexMap, isTall ? kPlexDuplexShort : kPlexDuplex);
    case FinishedSet::Turn::Unknown:
        break;
    }
    return nullptr;
}

const char *stapleKey(int staples)
{
    switch (staples) {
    case 0:
        return nullptr;
    case 1:
        return "1 Staple in Corner";
    case 2:
        return "2 Staples at Edge";
    default:
        return "Multiple Staples at Edge";
    }
}

const char *holeKey(const FinishedSet &set)
{
    switch (set.holes) {
    case 2:
        return "2 Holes at Edge";
    case 3:
        return "3 Holes at Edge";
    case 4:
        return "4 Holes at Edge";
    default:
        return set.hasHolesOfDevice ? "Holes Set at Device" : nullptr;
    }
}

const char *foldKey(const FinishedSet &set)
{
    const auto row = std::ranges::find_if(folds, [&set](const Row<Fold> &fold) {
        return fold.effect == set.fold && (fold.value == kFoldBiAndStaple) == set.isStapledInFold;
    });
    return row == std::end(folds) ? nullptr : row->key;
}

} // namespace

FinishedSet finishedSet(const PaperOutputSettings &settings, const Device &device)
{
    const Finishing &finishing = settings.finishing;
    const bool isLandscape = settings.orientation % 2 == 0;
    const QSizeF page = !settings.paper.isEmpty() ? settings.paper
        : isLandscape                             ? usualSheet.transposed()
                                                  : usualSheet;
    const auto isOfferedHere = [&device](const char *option, std::int32_t value) {
        return isOffered(device.ppd, QString::fromLatin1(option), value);
    };

    FinishedSet set;
    // Two pages side by side, or above one another where they are wide.
    set.sheet = settings.isBooklet() ? page.transposed() : page;
    set.kind = kindOf(settings.jobStock.type());
    set.paperColor = settings.jobStock.color();
    set.hasSeparators = set.kind == FinishedSet::Kind::Transparency
        && settings.separators > kSeparatorsNone
        && isOfferedHere("KVSlipSheetPrint", settings.separators);
    if (set.hasSeparators)
        set.separatorColor = settings.separatorStock.color();
    set.isColored = settings.colorMode == kColorModeColor;
    set.isUpsideDown = settings.orientation > 2;
    set.turn = turnOf(settings, page, device);
    set.isBooklet = settings.isBooklet();
    if (isOfferedHere("KVFold", finishing.fold)) {
        set.fold = effectOf(folds, finishing.fold);
        set.isStapledInFold = finishing.fold == kFoldBiAndStaple;
    }
    set.staples = stapleCount(settings, device);
    set.holes = holeCount(settings, device);
    set.hasHolesOfDevice =
        finishing.punch == kPunchGeneric && isOfferedHere("KVPunch", finishing.punch);
    set.tape = tapeOf(finishing, device);
    set.offset = effectOf(offsets, finishing.offset); // every device offers it
    return set;
}

QStringList finishedSetWords(const FinishedSet &set, const Device &device)
{
    const bool isTall = set.isBooklet != (set.sheet.height() >= set.sheet.width());
    QStringList words;
    for (const char *key : {sidesKey(set.turn, isTall), set.isBooklet ? "Booklet Layout" : nullptr,
                            foldKey(set), stapleKey(set.staples), holeKey(set),
                            keyOf(tapes, set.tape), keyOf(offsets, set.offset)}) {
        if (key)
            words << device.text(key);
    }
    return words;
}

} // namespace kelvo
