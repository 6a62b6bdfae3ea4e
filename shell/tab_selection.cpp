#include "tab_selection.h"

#include <algorithm>

namespace kelvo {

std::int32_t nextTab(std::span<const std::int32_t> present, std::int32_t from)
{
    if (present.empty())
        return 0;
    const auto next = std::upper_bound(present.begin(), present.end(), from);
    return next == present.end() ? present.front() : *next;
}

std::int32_t previousTab(std::span<const std::int32_t> present, std::int32_t from)
{
    if (present.empty())
        return 0;
    const auto atOrAfter = std::lower_bound(present.begin(), present.end(), from);
    return atOrAfter == present.begin() ? present.back() : *(atOrAfter - 1);
}

std::int32_t tabToShow(std::span<const std::int32_t> present, std::int32_t wanted)
{
    if (present.empty())
        return 0;
    return std::binary_search(present.begin(), present.end(), wanted) ? wanted : present.front();
}

} // namespace kelvo
