#pragma once

#include <QCollator>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace kelvo {

// In the user's order of letters; those of one name as they were.
template <typename Named>
void sortByName(std::vector<Named> &list, QString Named::*name)
{
    const QCollator collator;
    std::vector<std::pair<QCollatorSortKey, std::size_t>> order;
    order.reserve(list.size());
    for (std::size_t i = 0; i < list.size(); ++i)
        order.emplace_back(collator.sortKey(list[i].*name), i);
    std::stable_sort(order.begin(), order.end(),
                     [](const auto &one, const auto &other) { return one.first < other.first; });
    std::vector<Named> sorted;
    sorted.reserve(list.size());
    for (const auto &[key, i] : order)
        sorted.push_back(std::move(list[i]));
    list = std::move(sorted);
}

} // namespace kelvo
