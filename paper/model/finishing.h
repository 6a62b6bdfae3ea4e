#pragma once

#include "booklet_settings.h"
#include "device.h"
#include "menu.h"

#include <QString>

#include <cstdint>

// Stapling, hole punching and folding: the values, the menu and what its
// commands do.
namespace kelvo {

struct PaperOutputSettings;

// com.kelvo.print.FinishingOptions, beside a booklet's
inline constexpr std::int32_t kFinishingSingleStaple = 4;
inline constexpr std::int32_t kFinishingDualStaple = 9;
inline constexpr std::int32_t kFinishingPunch = 30;
inline constexpr std::int32_t kFinishingMultipleStaples = 53;

// "KVFold", beside a booklet's
inline constexpr std::int32_t kFoldC = 19;
inline constexpr std::int32_t kFoldZ = 20;
inline constexpr std::int32_t kFoldZHalfSheet = 36;

// "KVPunch"
inline constexpr std::int32_t kPunchNone = 1;
inline constexpr std::int32_t kPunchGeneric = 2; // the pattern is set at the device
inline constexpr std::int32_t kPunchTwoHoles = 3;
inline constexpr std::int32_t kPunchThreeHoles = 4;
inline constexpr std::int32_t kPunchFourHoles = 5;

inline constexpr std::int32_t kPunchKindNone = 1, kPunchKindPunched = 32;

// "StapleLocation": single 5 to 8, dual 10 to 13, other 54 to 57
inline constexpr std::int32_t kStapleNone = 1;
inline constexpr std::int32_t kStapleSingle = 5;
inline constexpr std::int32_t kStapleDual = 10;
inline constexpr std::int32_t kStapleMultiple = 54;

// com.kelvo.print.FinishingOffset
inline constexpr std::int32_t kOffsetUnset = 1; // what a panel writes by itself
inline constexpr std::int32_t kOffsetNone = 2;
inline constexpr std::int32_t kOffsetSets = 3;
inline constexpr std::int32_t kOffsetSubsets = 4;
inline constexpr std::int32_t kOffsetBoth = 5;

// com.kelvo.print.FinishingBindValue: the edge that is taped
inline constexpr std::int32_t kBindNone = 1;
inline constexpr std::int32_t kBindLeft = 2;
inline constexpr std::int32_t kBindRight = 3;
inline constexpr std::int32_t kBindTop = 4;

struct Finishing
{
    std::int32_t options = kFinishingNone;
    std::int32_t fold = kFoldNone;
    std::int32_t punch = kPunchNone;
    std::int32_t punchKind = kPunchKindNone; // follows the menu's commands
    std::int32_t singleStaple = kStapleNone;
    std::int32_t dualStaple = kStapleNone;
    std::int32_t otherStaple = kStapleNone;
    // The job has a choice that is none of these; it stays until a staple is chosen.
    bool hasUnknownStaple = false;
    std::int32_t offset = 1;
    std::int32_t offsetSubsetEnabled = 0;
    std::int32_t pagesPerSubset = 1;
    std::int32_t slipSheet = 0;
    std::int32_t bind = kBindNone;
    QString custom; // what the user writes for the operator

    friend bool operator==(const Finishing &, const Finishing &) = default;
};

// What the device has, from its installed features.
struct FinishingDevices
{
    bool stapler = false, holePunch = false, folder = false;

    friend bool operator==(const FinishingDevices &, const FinishingDevices &) = default;
};
FinishingDevices finishingDevices(const Device &device);

// Commands of the finishing menu; those with a value carry it as reference.
inline constexpr OSType kCommandNoStaple = fourCharCode("Stp0");
inline constexpr OSType kCommandSingleStaple = fourCharCode("Stp1");
inline constexpr OSType kCommandDualStaple = fourCharCode("Stp2");
inline constexpr OSType kCommandMultipleStaples = fourCharCode("Stp4");
inline constexpr OSType kCommandGenericPunch = fourCharCode("HPun");
inline constexpr OSType kCommandNoPunch = fourCharCode("Hpn0");
inline constexpr OSType kCommandTwoHoles = fourCharCode("Hpn2");
inline constexpr OSType kCommandThreeHoles = fourCharCode("Hpn3");
inline constexpr OSType kCommandFourHoles = fourCharCode("Hpn4");
inline constexpr OSType kCommandNoFold = fourCharCode("Fld0");
inline constexpr OSType kCommandBiFold = fourCharCode("Bfld");
inline constexpr OSType kCommandCFold = fourCharCode("Cfld");
inline constexpr OSType kCommandZFold = fourCharCode("Zfld");
inline constexpr OSType kCommandZFoldHalfSheet = fourCharCode("Zfol");
inline constexpr OSType kCommandBookletCreation = fourCharCode("Bkcr");
inline constexpr OSType kCommandCovers = fourCharCode("SPac");
inline constexpr OSType kCommandSeparators = fourCharCode("Ksep");

// The finishing menu: an item is left out when its device is not installed, the
// dividers and "Booklet Creation..." never are.
void PopulateFinishingMenu(Menu &menu, const Device &device);

// Puts the check marks.
void MarkFinishingMenu(Menu &menu, const PaperOutputSettings &settings);

// What a command of the menu, but for 'Bkcr', does to the settings. False for any
// other command. Staples and punches end booklet mode first.
bool applyFinishingCommand(PaperOutputSettings &settings, OSType command, std::int32_t value);

// Stores a value of "StapleLocation" in the field of its range; the other two
// become none. What the stapling pop-up does.
void setStaple(Finishing &finishing, std::int32_t value);
// The one staple that is set, else kStapleNone.
std::int32_t chosenStaple(const Finishing &finishing);
// What the stapling pop-up shows: that, or kNoPpdChoice for a choice without a value.
std::int32_t shownStaple(const Finishing &finishing);

// What the booklet dialog's OK does.
void takeBooklet(PaperOutputSettings &settings, std::int32_t fold, const BookletSettings &booklet);
// Ends booklet layout: duplex 2, and finishing options 24 become 0. The panel
// shows it.
void UnselectBooklet(PaperOutputSettings &settings);

// One line for each part: "- " text and a line feed. Empty where the device has
// no finishing device and there is no booklet.
QString CreateFinishingString(const PaperOutputSettings &settings, const Device &device);

} // namespace kelvo
