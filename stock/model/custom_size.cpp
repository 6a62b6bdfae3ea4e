#include "custom_size.h"

#include "ppd_choices.h"
#include "system_information.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace kelvo {

namespace {

constexpr double pointsPerInch = 72;
constexpr double inchFieldPerInch = 100;       // hundredths of an inch
constexpr double millimetreFieldPerInch = 254; // tenths of a millimetre
constexpr double millimetreFieldPerInchField = 2.54;
constexpr double lengthPerInchField = 25.4;     // 1/100 mm
constexpr double lengthPerMillimetreField = 10; // 1/100 mm
constexpr double lengthPerPoint = 2540.0 / pointsPerInch;

std::optional<SizeUnit> &unitInUse()
{
    static std::optional<SizeUnit> unit;
    return unit;
}

// To the nearest integer. Limits come from PPDs: what 32 bits do not hold becomes
// the largest that they do.
std::int32_t rounded(double value)
{
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::lround(std::clamp(value, least, most)));
}

} // namespace

SizeUnit currentSizeUnit()
{
    std::optional<SizeUnit> &unit = unitInUse();
    if (!unit) {
        const bool isAmerican = measurementSystem() == QLocale::ImperialUSSystem;
        unit = isAmerican ? SizeUnit::Inches : SizeUnit::Millimetres;
    }
    return *unit;
}

void setCurrentSizeUnit(SizeUnit unit)
{
    unitInUse() = unit;
}

SizeFieldLimits sizeFieldLimits(const CustomPageLimits &points, SizeUnit unit)
{
    const double perPoint =
        (unit == SizeUnit::Inches ? inchFieldPerInch : millimetreFieldPerInch) / pointsPerInch;
    return {rounded(points.minWidth * perPoint), rounded(points.maxWidth * perPoint),
            rounded(points.minHeight * perPoint), rounded(points.maxHeight * perPoint)};
}

CustomSize usualSize(const PpdFile *ppd)
{
    constexpr double letterWidth = 612, letterLength = 792; // points
    const std::optional<QString> name = PPDCopyDefaultChoice(ppd, QStringLiteral("PageSize"));
    const PpdPageSize *size = ppd && name ? ppd->findPageSize(*name) : nullptr;
    const auto lengthOf = [](double points) {
        return rounded(std::clamp(points, 0.0, 1e6) * lengthPerPoint);
    };
    return {lengthOf(size ? size->width : letterWidth),
            lengthOf(size ? size->height : letterLength)};
}

std::int32_t convertedField(std::int32_t value, SizeUnit to)
{
    return rounded(to == SizeUnit::Inches ? value / millimetreFieldPerInchField
                                          : value * millimetreFieldPerInchField);
}

std::int32_t fieldOfLength(std::int32_t hundredthsOfMillimetre, SizeUnit unit)
{
    return rounded(hundredthsOfMillimetre
                   / (unit == SizeUnit::Inches ? lengthPerInchField : lengthPerMillimetreField));
}

std::int32_t lengthOfField(std::int32_t value, SizeUnit unit)
{
    return rounded(value
                   * (unit == SizeUnit::Inches ? lengthPerInchField : lengthPerMillimetreField));
}

} // namespace kelvo
