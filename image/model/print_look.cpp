#include "print_look.h"

#include "image_options_summary.h"
#include "keyword_map.h"
#include "lighten_darken.h"
#include "offered_choices.h"
#include "ppd_choices.h"
#include "ticket_values.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kelvo {

namespace {

// Of a step of the lightness: at the lightest and the darkest there is still something to see.
constexpr double tonerOfStep = 0.14;
constexpr double gammaOfStep = 0.22;
constexpr double tonerOfDraft = 0.55;

// Ticket values.
constexpr std::int32_t kBlackAndWhite = 3, kPressMatch = 4, kUncorrected = 5; // "KVColorCorrection"
constexpr std::int32_t kDraft = 1;                                            // "KVOutputMode"

// Values of "KVOutputMode" that print other than the standard.
struct Fineness
{
    std::int32_t imageQuality;
    int dots; // across the glass
};
constexpr int standardDots = 32;
constexpr Fineness finenesses[] = {
    {kDraft, 16}, {4, 16}, // for speed
    {3, 48},               // enhanced
    {5, 72},               // high quality
    {6, 144},              // high resolution
};

int dotsOf(std::int32_t imageQuality)
{
    const auto row = std::ranges::find(finenesses, imageQuality, &Fineness::imageQuality);
    return row == std::end(finenesses) ? standardDots : row->dots;
}

// 0 where the device does not offer it.
std::int32_t offered(const Device &device, const char *option, std::int32_t value)
{
    return isOffered(device.ppd, QString::fromLatin1(option), value) ? value : 0;
}

double saturation(const ImageOptionsSettings &settings, const Device &device)
{
    if (device.ppd && device.ppd->attribute("ColorDevice") == QStringLiteral("False"))
        return 0;
    if (offered(device, "KVColorMode", settings.colorMode) == kColorModeGrayscale)
        return 0;
    switch (offered(device, "KVColorCorrection", settings.outputColorCorrection)) {
    case kBlackAndWhite:
        return 0;
    case kPressMatch:
        return 0.7; // a press has fewer colors
    case kUncorrected:
        return 1.3; // the toner's own are stronger
    default:
        return 1;
    }
}

// What the job has, or the printer by itself.
std::int32_t printedStep(const ImageOptionsSettings &settings, const Device &device)
{
    const QString option = QStringLiteral("KVImageQuality");
    if (!device.hasOption(option))
        return 0;
    const std::int32_t step = leavesLightnessToPrinter(settings)
        ? lightenDarkenStep(PPDCopyDefaultChoice(device.ppd, option).value_or(QString()))
        : lightnessStep(settings);
    return step == kUnset ? 0 : std::clamp(step, kLightest, kDarkest);
}

} // namespace

PrintLook printLook(const ImageOptionsSettings &settings, const Device &device)
{
    const std::int32_t step = printedStep(settings, device);
    const std::int32_t quality = offered(device, "KVOutputMode", settings.imageQuality);
    PrintLook look{
        .saturation = saturation(settings, device),
        .gamma = 1 + gammaOfStep * std::max(step, 0),
        .coverage = 1 + tonerOfStep * std::min(step, 0),
        .fineness = dotsOf(quality),
        .isNegative = settings.invert.negative,
        .isMirrored = settings.invert.mirror,
    };
    const bool savesToner =
        settings.tonerSaver == kTonerSaverOn && isTonerSaverOffered(settings, device);
    if (savesToner || quality == kDraft)
        look.coverage *= tonerOfDraft;
    return look;
}

std::array<std::uint8_t, 256> toneCurve(const PrintLook &look)
{
    std::array<std::uint8_t, 256> curve;
    for (int tone = 0; tone < 256; ++tone) {
        const double light = (look.isNegative ? 255 - tone : tone) / 255.0;
        const double toner = (1 - std::pow(light, look.gamma)) * look.coverage;
        curve[tone] = static_cast<std::uint8_t>(std::lround(255 * (1 - toner)));
    }
    return curve;
}

} // namespace kelvo
