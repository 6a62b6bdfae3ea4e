#include "advanced_pictures.h"

#include <algorithm>
#include <iterator>

namespace kelvo {

namespace {

struct Row
{
    const char *setting;
    const char *choice;
    const char *picture;
};
// clang-format off
constexpr Row rows[] = {
    {"BookletLayoutOrderMap", "LeftToRight", "Advanced_BookletOrder_LeftToRight.gif"},
    {"BookletLayoutOrderMap", "RightToLeft", "Advanced_BookletOrder_RightToLeft.gif"},
    {"JCLBanner",             "False",       "Advanced_Banner_Off.gif"},
    {"JCLBanner",             "True",        "Advanced_Banner_On.gif"},
    {"Jog",                   "None",        "OffsetSubset_NoOffset.gif"},
    {"Jog",                   "EndOfSet",    "OffsetSubset_OffsetSets.gif"},
    {"KVFeedEdge",            "LongEdge",    "Advanced_FeedEdge_Long.gif"},
    {"KVFeedEdge",            "ShortEdge",   "Advanced_FeedEdge_Short.gif"},
};
// clang-format on

} // namespace

QString advancedPicture(const QString &setting, const QString &choice)
{
    const auto row = std::ranges::find_if(rows, [&](const Row &each) {
        return setting == QLatin1String(each.setting) && choice == QLatin1String(each.choice);
    });
    return row == std::end(rows) ? QString() : QString::fromLatin1(row->picture);
}

} // namespace kelvo
