#include "image_shift.h"

#include "ticket_values.h"

#include <cmath>
#include <limits>

namespace kelvo {

namespace {

const QString optionKey = QStringLiteral("Option");
const QString inchesKey = QStringLiteral("Inches");
const QString fullPrecisionKey = QStringLiteral("FullPrecision");

constexpr double millimetresPerInch = 25.4;

struct Coordinate
{
    const char *entry;
    std::int32_t _IS_Options::*value;
};
constexpr Coordinate coordinates[] = {
    {"X1", &_IS_Options::x1},
    {"Y1", &_IS_Options::y1},
    {"X2", &_IS_Options::x2},
    {"Y2", &_IS_Options::y2},
};

// 32 bits hold it, or it counts as missing.
std::int32_t shiftFrom(double stored)
{
    const double whole = std::trunc(stored);
    return whole < std::numeric_limits<std::int32_t>::min()
            || whole > std::numeric_limits<std::int32_t>::max()
        ? 0
        : static_cast<std::int32_t>(whole);
}

} // namespace

void ImageShiftInitialize(CFBundleRef bundle, ImageShiftContext *context, _IS_Options *options)
{
    if (options) {
        options->valid = 1;
        options->second = 1;
        options->reserved = kUnset;
        options->option = kUnset;
        options->inches = true;
    }
    if (context)
        *context = {bundle, options, {}};
}

void ImageShiftSetOptionsFromTicket(_IS_Options *options, const Dictionary &dictionary)
{
    if (!options)
        return;
    options->option = integer32(dictionary, optionKey).value_or(kUnset);
    options->inches = integer64(dictionary, inchesKey).value_or(1) != 0;
    const bool isPrecise = boolean(dictionary, fullPrecisionKey).value_or(false);
    // Millimetres divide evenly; inches lose their fraction, as readers of these
    // tickets expect.
    const double factor = !isPrecise ? 1 : options->inches ? millimetresPerInch : 10;
    for (const Coordinate &coordinate : coordinates) {
        const std::int64_t stored =
            integer64(dictionary, QString::fromLatin1(coordinate.entry)).value_or(0);
        options->*coordinate.value = shiftFrom(static_cast<double>(stored) / factor);
    }
    options->valid = 1;
}

std::optional<Dictionary> ImageShiftCreateTicketFromOptions(const _IS_Options *options, JobContext)
{
    if (!options || !options->valid || options->option == kUnset)
        return std::nullopt;
    Dictionary dictionary;
    WriteTicketValue(dictionary, optionKey, options->option);
    WriteTicketValue(dictionary, inchesKey, options->inches ? 1 : 0);
    dictionary.insert(fullPrecisionKey, true);
    for (const Coordinate &coordinate : coordinates) {
        const std::int32_t shift = options->*coordinate.value;
        WriteTicketValue(dictionary, QString::fromLatin1(coordinate.entry),
                         options->inches ? std::lround(shift * millimetresPerInch)
                                         : std::int64_t(shift) * 10);
    }
    return dictionary;
}

} // namespace kelvo
