#include "page_layout.h"

#include <algorithm>

namespace kelvo {

namespace {

template <typename Value>
struct NameRow
{
    const char *name;
    Value value;
};

constexpr NameRow<PageSet> pageSetRows[] = {
    {"all", PageSet::All}, {"odd", PageSet::Odd}, {"even", PageSet::Even}};

constexpr NameRow<PageScaling> scalingRows[] = {
    {"auto", PageScaling::Shrink}, {"auto-fit", PageScaling::Shrink}, {"fit", PageScaling::Fit},
    {"fill", PageScaling::Fill},   {"percent", PageScaling::Percent}, {"none", PageScaling::None}};

constexpr NameRow<PageFlow> flowRows[] = {{"lrtb", PageFlow::LrTb}, {"lrbt", PageFlow::LrBt},
                                          {"rltb", PageFlow::RlTb}, {"rlbt", PageFlow::RlBt},
                                          {"tblr", PageFlow::TbLr}, {"tbrl", PageFlow::TbRl},
                                          {"btlr", PageFlow::BtLr}, {"btrl", PageFlow::BtRl}};

template <typename Value, std::size_t N>
QString nameIn(const NameRow<Value> (&rows)[N], Value value)
{
    return QLatin1String(std::ranges::find(rows, value, &NameRow<Value>::value)->name);
}

template <typename Value, std::size_t N>
std::optional<Value> valueIn(const NameRow<Value> (&rows)[N], const QString &name)
{
    const auto row = std::ranges::find_if(rows, [&name](const NameRow<Value> &candidate) {
        return name.compare(QLatin1String(candidate.name), Qt::CaseInsensitive) == 0;
    });
    return row == std::end(rows) ? std::nullopt : std::optional(row->value);
}

} // namespace

QString nameOf(PageSet set)
{
    return nameIn(pageSetRows, set);
}

QString nameOf(PageScaling scaling)
{
    return nameIn(scalingRows, scaling);
}

QString nameOf(PageFlow flow)
{
    return nameIn(flowRows, flow);
}

std::optional<PageSet> pageSetFrom(const QString &name)
{
    return valueIn(pageSetRows, name);
}

std::optional<PageScaling> pageScalingFrom(const QString &name)
{
    return valueIn(scalingRows, name);
}

std::optional<PageFlow> pageFlowFrom(const QString &name)
{
    return valueIn(flowRows, name);
}

} // namespace kelvo
