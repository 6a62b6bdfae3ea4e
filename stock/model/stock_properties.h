#pragma once

#include "device.h"
#include "setting_map.h"
#include "stock.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

// What a stock says beyond size, colour and type, and which of it a device offers.
namespace kelvo {

// Values of Stock, in menu order; the first row of each stands for "not set",
// but a coating always has a kind.
extern const SettingMap PunchedMap[];
extern const SettingMap SidesCoatedMap[];
extern const SettingMap CoatingTypeMap[];
extern const SettingMap SurfaceFinishMap[];
extern const SettingMap GrainMap[];

inline constexpr std::int32_t kNotCoated = 1;    // SidesCoatedMap
inline constexpr std::int32_t kUsualCoating = 1; // CoatingTypeMap, the default kind

inline constexpr int kFewestTabs = 1, kMostTabs = 254, kUsualTabs = 3; // in a set

// The longest texts that the dialogs take, in characters.
inline constexpr int kLongestStockText = 80; // description, names of type and colour
inline constexpr int kLongestStockComment = 400;

// Grams per square metre.
struct WeightRange
{
    std::int32_t least = 60, greatest = 300; // for a device that does not say

    friend bool operator==(const WeightRange &, const WeightRange &) = default;
};
// "60 300": two whole numbers of 1 to 1000, the least first; none for any other text.
std::optional<WeightRange> weightRangeFrom(const QString &text);

// What a device can be told of its paper.
struct StockProperties
{
    WeightRange weight;      // the PPD's "KelvoStockWeight"
    bool coating = false;    // its "MediaType" has glossy types
    bool prePunched = false; // its "MediaType" has "Punched"

    friend bool operator==(const StockProperties &, const StockProperties &) = default;
};
StockProperties stockPropertiesOf(const PpdFile *ppd); // null: nothing but the usual weights

// A coating has a kind only where there is one.
bool isCoated(const Stock &stock);
// Types whose modulus says how many tabs a set has.
bool hasTabs(std::int32_t type);
// Types that have a name of the user's.
bool hasTypeName(std::int32_t type);

// `stock` with nothing in it that its device or its own type and colour leave no
// room for: a weight beyond the range becomes the nearest limit, what is not
// offered is not set.
Stock offered(Stock stock, const StockProperties &properties);
// A type that cannot do without a number of tabs has one.
Stock withTabs(Stock stock);
// The same, and names and tabs that their type or colour does not have are gone.
Stock tidied(Stock stock);

// The first thing that is missing, or None.
enum class StockProblem { None, TypeNameMissing, ColorNameMissing };
[[nodiscard]] StockProblem findProblem(const Stock &stock);

// One line for each of them that is set, as the summary has them ("- 120 g/m²"). A
// description that is the stock's name has none: the summary begins with the name.
QStringList stockPropertyLines(const Device &device, const Stock &stock);

} // namespace kelvo
