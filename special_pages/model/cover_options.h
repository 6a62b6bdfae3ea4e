#pragma once

#include "cover.h"
#include "device.h"
#include "menu.h"

#include <QString>

#include <cstdint>
#include <optional>

// The rules of the covers dialog.
namespace kelvo {

// Which covers there are: values of CoverOptionMap, and "the same" between them.
inline constexpr std::int32_t kNoCovers = 1;
inline constexpr std::int32_t kFrontCoverOnly = 2;
inline constexpr std::int32_t kBackCoverOnly = 3;
inline constexpr std::int32_t kSameCovers = 4;
inline constexpr std::int32_t kFrontAndBackCovers = 5;

inline constexpr std::int32_t kCoverSourceAutomatic = 0; // "Auto" of KVFrontCoverSheet

constexpr bool hasFrontCover(std::int32_t option)
{
    return option != kNoCovers && option != kBackCoverOnly;
}
constexpr bool hasBackCover(std::int32_t option)
{
    return option != kNoCovers && option != kFrontCoverOnly;
}

// A cover as the dialog makes one: the job's own paper, from whatever tray has it.
Cover newCover();

// What the dialog works on. A cover that the option leaves out is as new.
struct WorkingCovers
{
    std::int32_t option = kNoCovers;
    Cover front = newCover();
    Cover back = newCover();
};

// Copies of the covers that there are. Two equal ones are the same.
WorkingCovers workingCovers(const std::optional<Cover> &front, const std::optional<Cover> &back);

// The user chose `option`. A cover that stays keeps what was set; one that goes
// and comes again is as new.
void setCoverOption(WorkingCovers &covers, std::int32_t option);

// A printed cover has the document's size, so its stock's is unset.
void setSidesImaged(Cover &cover, std::int32_t sidesImaged);

// To be called after any change of a cover or its stock: a printed cover stays
// without a size of its own, and a back cover that is the same follows the front.
void settleCovers(WorkingCovers &covers);

// Whether a cover can have a size of its own: not one that is printed.
bool offersSize(const Cover &cover);

// Enables the stock menu's size and post-print inserter for a cover that is not
// printed; a submenu without choices stays disabled.
void enableStockItems(Menu &menu, const Cover &cover);

// The sources of a cover as a menu shows them: `sources`, and before them an item
// with `notSet` and kUnset where the cover's own is none of them.
Menu sourceMenu(const Menu &sources, const Cover &cover, const QString &notSet);
bool hasSource(const Menu &sources, const Cover &cover);

// CoverOptionMap's items, and the covers that are the same before those that differ.
Menu coverOptionsMenu(const Device &device, OSType command);

// What the dialog shows of one cover. `sources` is what the device offers for it.
enum class CoverPlace { Front, Back };
struct CoverView
{
    bool isThere = false;
    bool isEditable = false;             // there, and not the same as the other
    bool isLeftOut = false;              // there, and without a source: it is not printed
    std::int32_t source = kUnset;        // which item of sourceMenu() is shown
    const char *sourceHintKey = nullptr; // what comes of the source; null without a cover
    QString paper;                       // the summary
    Stock picture;                       // what the icon shows
};
CoverView coverView(const Device &device, const WorkingCovers &covers, CoverPlace place,
                    const Menu &sources);

// A cover that the printer leaves out is nothing that anybody chose: the key of what OK
// asks about it first; null where neither is.
const char *leftOutHeaderKey(bool frontIsLeftOut, bool backIsLeftOut);

// What OK leaves with the caller: a cover that is there before and after stays the
// same page and takes the new values.
void handOver(const WorkingCovers &covers, std::optional<Cover> &front, std::optional<Cover> &back);

// The picture of an option, as the bundle names it.
QString coverOptionPicture(std::int32_t option);

} // namespace kelvo
