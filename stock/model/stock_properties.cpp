#include "stock_properties.h"

#include "keyword_map.h"
#include "ppd_choices.h"

#include <QLocale>

#include <algorithm>
#include <array>

namespace kelvo {

// clang-format off
const SettingMap PunchedMap[] = {
    {"PrinterDefault",     kUnset},
    {"StockNotPunched",    1},
    {"StockPrePunched",    kStockPrePunched},
    kEndOfMap,
};

const SettingMap SidesCoatedMap[] = {
    {"PrinterDefault",     kUnset},
    {"StockNotCoated",     kNotCoated},
    {"StockOneSideCoated", 2},
    {"StockBothCoated",    3},
    kEndOfMap,
};

const SettingMap CoatingTypeMap[] = {
    {"StockCoatingUsual",  kUsualCoating},
    {"StockCoatingGloss",  2},
    {"StockCoatingSatin",  3},
    {"StockCoatingMatte",  4},
    kEndOfMap,
};

const SettingMap SurfaceFinishMap[] = {
    {"PrinterDefault",     kUnset},
    {"StockFinishSmooth",  1},
    {"StockFinishVellum",  2},
    {"StockFinishLaid",    3},
    {"StockFinishLinen",   4},
    {"StockFinishFelt",    5},
    kEndOfMap,
};

const SettingMap GrainMap[] = {
    {"PrinterDefault",     kUnset},
    {"StockGrainLong",     1},
    {"StockGrainShort",    2},
    kEndOfMap,
};
// clang-format on

namespace {

constexpr std::int32_t heaviestWeight = 1000; // g/m2; beyond it is no paper

// LightGlossy to HeavyGlossy2, ExtraHeavyGlossy and ExtraHeavyGlossy2, LightGlossyF.
constexpr std::array glossyTypes = {29, 30, 31, 32, 37, 38, 44};

std::optional<std::int32_t> weightFrom(const QString &text)
{
    bool ok = false;
    const int weight = text.toInt(&ok);
    if (!ok || weight < 1 || weight > heaviestWeight)
        return std::nullopt;
    return weight;
}

} // namespace

std::optional<WeightRange> weightRangeFrom(const QString &text)
{
    const QStringList numbers = text.simplified().split(u' ');
    if (numbers.size() != 2)
        return std::nullopt;
    const std::optional<std::int32_t> least = weightFrom(numbers[0]);
    const std::optional<std::int32_t> greatest = weightFrom(numbers[1]);
    if (!least || !greatest || *least > *greatest)
        return std::nullopt;
    return WeightRange{*least, *greatest};
}

StockProperties stockPropertiesOf(const PpdFile *ppd)
{
    StockProperties properties;
    if (!ppd)
        return properties;
    if (const std::optional<QString> weights = ppd->attribute("KelvoStockWeight"))
        properties.weight = weightRangeFrom(*weights).value_or(WeightRange{});
    const QString option = QStringLiteral("MediaType");
    if (const PpdOption *types = ppd->findOption(option)) {
        for (const PpdChoice &choice : types->choices) {
            const std::int32_t type = PPDTicketValueForChoice(option, choice.keyword);
            properties.coating |= std::ranges::find(glossyTypes, type) != glossyTypes.end();
            properties.prePunched |= type == kStockTypePunched;
        }
    }
    return properties;
}

bool isCoated(const Stock &stock)
{
    return stock.sidesCoated() != kUnset && stock.sidesCoated() != kNotCoated;
}

bool hasTabs(std::int32_t type)
{
    return type == kStockTypePrecutTab || type == kStockTypeTab || type == kStockTypeHeavyTab
        || type == kStockTypeOrdered;
}

bool hasTypeName(std::int32_t type)
{
    return type == kStockTypeOrdered || type == kStockTypeCustom;
}

Stock offered(Stock stock, const StockProperties &properties)
{
    if (stock.weight() != kUnset)
        stock.setWeight(
            std::clamp(stock.weight(), properties.weight.least, properties.weight.greatest));
    if (!properties.coating)
        stock.setSidesCoated(kUnset);
    if (!isCoated(stock))
        stock.setCoatingType(kUsualCoating);
    if (!properties.prePunched && stock.punched() == kStockPrePunched)
        stock.setPunched(kUnset);
    return stock;
}

Stock withTabs(Stock stock)
{
    const bool needsTabs = stock.type() == kStockTypePrecutTab || stock.type() == kStockTypeOrdered;
    if (needsTabs && stock.modulus() == kUnset)
        stock.setModulus(kUsualTabs);
    return stock;
}

Stock tidied(Stock stock)
{
    stock.setCustomType(hasTypeName(stock.type()) ? stock.customType().trimmed()
                                                  : QStringLiteral(""));
    stock.setCustomColor(stock.color() == kStockColorCustom ? stock.customColor().trimmed()
                                                            : QStringLiteral(""));
    if (!hasTabs(stock.type()))
        stock.setModulus(kUnset);
    return withTabs(stock);
}

StockProblem findProblem(const Stock &stock)
{
    if (hasTypeName(stock.type()) && stock.customType().trimmed().isEmpty())
        return StockProblem::TypeNameMissing;
    if (stock.color() == kStockColorCustom && stock.customColor().trimmed().isEmpty())
        return StockProblem::ColorNameMissing;
    return StockProblem::None;
}

QStringList stockPropertyLines(const Device &device, const Stock &stock)
{
    QStringList lines;
    const auto add = [&lines](const QString &text) {
        if (!text.isEmpty())
            lines << QStringLiteral("- ") + text;
    };
    // Empty for what is not set and for a value that the map does not have.
    const auto textOf = [&device](const SettingMap *map, std::int32_t value) {
        return value == kUnset ? QString() : textOfValue(device, map, value);
    };
    if (stock.description() != stock.customName())
        add(stock.description());
    if (stock.weight() != kUnset)
        add(device.text("StockWeightText").arg(QLocale().toString(stock.weight())));
    const QString sides = textOf(SidesCoatedMap, stock.sidesCoated());
    const QString kind = textOf(CoatingTypeMap, stock.coatingType());
    if (isCoated(stock) && stock.coatingType() != kUsualCoating && !kind.isEmpty())
        add(device.text("StockCoatingText").arg(sides, kind));
    else
        add(sides);
    add(textOf(SurfaceFinishMap, stock.finish()));
    add(textOf(GrainMap, stock.grain()));
    add(textOf(PunchedMap, stock.punched()));
    add(stock.comment().simplified());
    return lines;
}

} // namespace kelvo
