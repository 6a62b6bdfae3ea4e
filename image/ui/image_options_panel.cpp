#include "image_options_panel.h"

#include "image_options_summary.h"
#include "image_options_view.h"

namespace kelvo {

void ImageOptionsContext::begin(const Ticket &)
{
    InvertImageInitialize(&invertControls, &settings.invert);
}

OSStatus ImageOptionsContext::read(Ticket &printSettings, const Ticket &)
{
    readImageOptions(settings, printSettings, device);
    writeQualityAndColor(settings, printSettings, device);
    showInvertImage(invertControls, settings.invert);
    RestoreUIValuesFromData(*this);
    return noErr;
}

OSStatus ImageOptionsContext::write(Ticket &printSettings, const Ticket &)
{
    SaveUIValuesToData(*this);
    takeInvertImage(invertControls, settings.invert);
    writeImageOptions(settings, printSettings, device, opened);
    return noErr;
}

std::optional<std::vector<SummaryLine>> ImageOptionsContext::words() const
{
    return imageOptionsSummary(settings, device);
}

OSStatus ImageOptionsContext::build()
{
    shownLook.reset();
    const OSStatus status = buildContent(
        "ImageOptionsPanel", "ImageOptions",
        [this](NeededControls &needed) { controls = findImageOptionsControls(needed); },
        [this] {
            fillImageOptionsControls(*this);
            InvertImageOpen(bundle, content, content, &invertControls, &settings.invert);
        },
        [this](const Event &event) { return ImageOptionsEventHandler(*this, event); });
    RestoreUIValuesFromData(*this);
    return status;
}

OSStatus GetImageOptionsPanelInterface(PanelInterface **interface)
{
    return givePanel<ImageOptionsContext>(interface);
}

} // namespace kelvo
