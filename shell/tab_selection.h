#pragma once

#include <cstdint>
#include <span>

// Which tab is shown. A tab's index is its panel's place in the list of built-in
// panels, from 1, so an index means the same panel also where another panel is
// missing. `present` holds the indices of the tabs that are there, ascending.
namespace kelvo {

// The tab after `from`, the first one past the last; 0 when there is no tab.
// `from` itself need not be present.
std::int32_t nextTab(std::span<const std::int32_t> present, std::int32_t from);

// The tab before `from`, the last one below the first; 0 when there is no tab.
std::int32_t previousTab(std::span<const std::int32_t> present, std::int32_t from);

// `wanted` when it is present, else the first tab; 0 when there is no tab.
std::int32_t tabToShow(std::span<const std::int32_t> present, std::int32_t wanted);

} // namespace kelvo
