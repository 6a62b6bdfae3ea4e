#include "booklet_watermark_panel.h"

#include "booklet_watermark_events.h"
#include "font_conversion.h"
#include "page_format.h"
#include "ticket_values.h"
#include "watermark_menu.h"
#include "watermark_store.h"

namespace kelvo {

OSStatus BookletWatermarkContext::read(Ticket &printSettings, const Ticket &pageFormat)
{
    // Another dialog may have changed the store. Nothing is read where no name is needed: the
    // first frame waits for this.
    if (content || !valueIn(printSettings, ticketKey("watermark.Watermark")).isNull())
        loadWatermarks(*this);
    readBookletWatermark(settings, printSettings, device, listOfWatermarks);
    const std::optional<QSizeF> found = paperOf(pageFormat);
    paper = found.value_or(QSizeF());
    showBookletWatermark(*this);
    return found ? noErr : kPMKeyNotFound;
}

OSStatus BookletWatermarkContext::write(Ticket &printSettings, const Ticket &pageFormat)
{
    // The dialog's own controls change the paper without a word to the panels.
    if (const QSizeF now = paperOf(pageFormat).value_or(paper); now != paper) {
        paper = now;
        renderWatermark(*this);
    }
    writeBookletWatermark(settings, printSettings, device);
    if (!settings.watermark.isEmpty())
        convertFont(settings.watermark);
    return noErr;
}

std::optional<std::vector<SummaryLine>> BookletWatermarkContext::words() const
{
    std::vector<SummaryLine> lines;
    if (settings.booklet.isOn())
        addSummaryLine(lines, device, "Booklet Layout:", device.text("Enabled"));
    if (!settings.watermark.isEmpty())
        addSummaryLine(lines, device, "Watermark Title", settings.watermark);
    return lines;
}

OSStatus BookletWatermarkContext::build()
{
    loadWatermarks(*this);
    const OSStatus status = buildContent(
        "BookletWatermarkPanel", "BookletWatermark",
        [this](NeededControls &needed) { controls = findBookletWatermarkControls(needed); },
        [this] { fillBookletWatermarkControls(*this); },
        [this](const Event &event) { return BookletWatermarkEventHandler(*this, event); });
    if (status == noErr)
        showBookletWatermark(*this);
    return status;
}

OSStatus GetBookletWatermarkPanelInterface(PanelInterface **interface)
{
    return givePanel<BookletWatermarkContext>(interface);
}

} // namespace kelvo
