#include "booklet_watermark_description.h"

#include "booklet_creation.h"
#include "booklet_watermark_controls.h"
#include "booklet_watermark_settings.h"
#include "ppd_choices.h"
#include "string_table.h"
#include "texts.h"
#include "ticket_values.h"
#include "watermark_store.h"

#include <QHash>
#include <QLocale>

#include <algorithm>

namespace kelvo {

namespace {

QString bookletWords(const BookletSettings &booklet, const Device &device)
{
    QStringList words{
        formatted(device.text("Booklet in Words"),
                  {QLocale().toString(booklet.gutter), QLocale().toString(booklet.creep / 10.0)})};
    if (booklet.pageBorders != kPageBordersNone)
        words << device.text("Page Borders in Words");
    const auto size =
        PPDCopyTextForTicketValue(device.ppd, QStringLiteral("PageSize"), booklet.newSize);
    if (size)
        words << formatted(device.text("New Size in Words"), {*size});
    return separated(words);
}

void describeBooklet(BookletSettings booklet, PanelDescription &panel, JobDescription &description)
{
    const Device &device = panel.job().device;
    // A ticket may say more than the dialog does.
    booklet.gutter = std::clamp(booklet.gutter, 0, kMostGutter);
    booklet.creep = std::clamp(booklet.creep, 0, kMostCreep);
    panel.add("BookletLayout", "Booklet Layout",
              booklet.isOn() ? bookletWords(booklet, device) : QString(), kBookletLayoutPopup);
    for (const char *name : {"BookletDrawOutlines", "BookletForceNewSize", "Gutter", "Creep"})
        panel.leaveUnspoken(name);
    if (booklet.isOn())
        description.imposition = {.gutter = double(booklet.gutter),
                                  .creep = booklet.creep / 10.0,
                                  .drawsBorders = booklet.pageBorders != kPageBordersNone,
                                  .sheet = sizeOfPaper(device, booklet.newSize)};
}

Overlay::Place placeOf(std::int32_t option)
{
    switch (option) {
    case kWatermarkBackground:
        return Overlay::Place::Behind;
    case kWatermarkForeground:
        return Overlay::Place::Above;
    default:
        return Overlay::Place::Blended;
    }
}

QString placeWords(Overlay::Place place, bool firstPageOnly, const Device &device)
{
    // A sentence's order of words is the table's.
    switch (place) {
    case Overlay::Place::Behind:
        return device.text(firstPageOnly ? "Watermark Behind First in Words"
                                         : "Watermark Behind in Words");
    case Overlay::Place::Above:
        return device.text(firstPageOnly ? "Watermark Front First in Words"
                                         : "Watermark Front in Words");
    case Overlay::Place::Blended:
        break;
    }
    return device.text(firstPageOnly ? "Watermark Blend First in Words"
                                     : "Watermark Blend in Words");
}

// With the stamp of the store that the watermark was found in.
void describeWatermark(const BookletWatermarkSettings &settings, const FileStamp &stamp,
                       PanelDescription &panel, JobDescription &description)
{
    const Device &device = panel.job().device;
    QString words;
    if (!settings.watermark.isEmpty()) {
        const Overlay overlay{.name = settings.watermark,
                              .place = placeOf(settings.option),
                              .firstPageOnly = settings.pages != kWatermarkOnAllPages,
                              .version = qHashMulti(0, stamp.inode, stamp.modified)};
        words = formatted(placeWords(overlay.place, overlay.firstPageOnly, device), {overlay.name});
        description.overlays.push_back(overlay);
    } else if (!settings.absentWatermark.isEmpty()) {
        words = formatted(device.text("Watermark Absent in Words"), {settings.absentWatermark});
    }
    DescribedSetting *line =
        panel.add("watermark.Watermark", "Watermark in Words", words, kWatermarkPopup);
    if (line)
        line->isLost = settings.watermark.isEmpty();
    panel.leaveUnspoken("watermark.Option");
    panel.leaveUnspoken("watermark.FirstPageOnly");
}

} // namespace

void describeBookletWatermark(const DescribedJob &job, JobDescription &description)
{
    // Most jobs have none, and reading the store takes its time.
    QStringList names;
    FileStamp stamp;
    if (!valueIn(job.printSettings, ticketKey("watermark.Watermark")).isNull()) {
        // Before it is read: a change in between is seen next time.
        description.files.push_back(watermarkStore(kWatermarksFile));
        stamp = description.files.back().stamp;
        loadWatermarkList(kWatermarksFile, &names); // none is made here
    }
    BookletWatermarkSettings settings;
    readBookletWatermark(settings, job.printSettings, job.device, names);
    PanelDescription panel(job, "BookletWatermark", description);
    describeBooklet(settings.booklet, panel, description);
    describeWatermark(settings, stamp, panel, description);
}

} // namespace kelvo
