#include "booklet_watermark_view.h"

#include "hint_text.h"
#include "popups.h"
#include "setting_maps.h"
#include "ticket_places.h"
#include "ticket_values.h"
#include "watermark_menu.h"
#include "watermark_store.h"

#include <QEvent>

namespace kelvo {

namespace {

constexpr ControlID panelID(std::int32_t number)
{
    return {kPanelSignature, number};
}

TicketPlace entryPlace(const char *name)
{
    return {kPMPrintSettingsTicket, ticketKey(name)};
}

void tellTicketPlaces(const BookletWatermarkControls &controls)
{
    const TicketPlace layout = entryPlace("BookletLayout");
    setTicketPlaces(controls.booklet, {layout});
    setTicketPlaces(controls.borders, {layout, entryPlace("BookletDrawOutlines")});
    const TicketPlace watermark = entryPlace("watermark.Watermark");
    for (const OSType command : {kCommandNoWatermark, kCommandWatermark})
        setTicketPlaces(controls.watermark, {watermark}, command);
    for (const SettingMap *row = WatermarkOptionsMap; row->localizedKey; ++row) {
        if (row->commandID != kNoCommand)
            setTicketPlaces(
                controls.watermark,
                {entryPlace(row->ticketValue >= kWatermarkOnAllPages ? "watermark.FirstPageOnly"
                                                                     : "watermark.Option")},
                row->commandID);
    }
}

const char *hintKey(const BookletWatermarkSettings &settings)
{
    const bool isOnFirst = settings.pages != kWatermarkOnAllPages;
    switch (settings.option) {
    case kWatermarkBackground:
        return isOnFirst ? "Watermark Behind First Hint" : "Watermark Behind Hint";
    case kWatermarkForeground:
        return isOnFirst ? "Watermark Front First Hint" : "Watermark Front Hint";
    default:
        return isOnFirst ? "Watermark Blend First Hint" : "Watermark Blend Hint";
    }
}

QString watermarkHint(const BookletWatermarkSettings &settings, const Device &device)
{
    return settings.watermark.isEmpty() ? QString() : device.text(hintKey(settings));
}

void showWatermark(const BookletWatermarkContext &panel)
{
    const BookletWatermarkSettings &settings = panel.settings;
    panel.controls.watermark->setShownChoice(
        settings.watermark.isEmpty() ? panel.device.text("NoWatermark") : settings.watermark);
    panel.controls.watermarkHint->setText(watermarkHint(settings, panel.device));
}

void fillWatermarkMenu(BookletWatermarkContext &panel)
{
    Menu menu;
    PopulateWatermarkMenuFromMapAndHistory(panel.device, menu, WatermarkMap);
    MarkWatermarkMenu(menu, panel.settings);
    panel.controls.watermark->setMenu(std::move(menu));
}

// What is not looked at needs no drawing, and no library that draws.
class DrawWhenSeen : public QObject
{
public:
    explicit DrawWhenSeen(BookletWatermarkContext &panel)
        : QObject(panel.controls.preview)
        , m_panel(panel)
    {
        panel.controls.preview->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            renderWatermark(m_panel);
        return QObject::eventFilter(watched, event);
    }

private:
    BookletWatermarkContext &m_panel; // outlives its controls
};

} // namespace

BookletWatermarkControls findBookletWatermarkControls(NeededControls &needed)
{
    return {.bookletHint = needed.find<QLabel>(panelID(6001)),
            .booklet = needed.find<PopupButton>(panelID(kBookletLayoutPopup)),
            .borders = needed.find<PopupButton>(panelID(kPageBordersPopup)),
            .options = needed.find(panelID(kBookletOptionsButton)),
            .watermark = needed.find<MenuButton>(panelID(kWatermarkPopup)),
            .watermarkHint = needed.find<QLabel>(panelID(6008)),
            .preview = needed.find<PaperView>(panelID(6009))};
}

void fillBookletWatermarkControls(BookletWatermarkContext &panel)
{
    const BookletWatermarkControls &controls = panel.controls;
    PopulatePopupButtonFromMap(panel.device, controls.booklet, EnabledDisabledMap, kJobContextJob,
                               kNoCommand);
    PopulatePopupButtonFromMap(panel.device, controls.borders, PageBordersMap, kJobContextJob,
                               kNoCommand);
    const bool canLayOut = canLayOutBooklets(panel.device);
    controls.bookletHint->setText(
        panel.device.text(canLayOut ? "Booklet Layout Hint" : "Booklet Layout Missing"));
    makeHintText(controls.bookletHint);
    makeHintText(controls.watermarkHint);
    fillWatermarkMenu(panel);
    controls.watermark->setMenuUpdate(
        [&panel](Menu &menu) { MarkWatermarkMenu(menu, panel.settings); });
    tellTicketPlaces(controls);
    panel.preview = new WatermarkPreview(controls.preview);
    new DrawWhenSeen(panel); // the view's
}

void loadWatermarks(BookletWatermarkContext &panel)
{
    const QStringList names = loadOrCreateWatermarks(panel.bundle);
    if (names != listOfWatermarks)
        takeWatermarks(panel, names);
}

void takeWatermarks(BookletWatermarkContext &panel, const QStringList &names)
{
    listOfWatermarks = names;
    if (panel.content)
        fillWatermarkMenu(panel);
}

void showBookletWatermark(BookletWatermarkContext &panel)
{
    if (!panel.content)
        return;
    const BookletSettings &booklet = panel.settings.booklet;
    // What finishing has turned on can be turned off here on any device.
    const bool isOffered = canLayOutBooklets(panel.device) || booklet.isOn();
    setEnabledWithLabel(panel.controls.booklet, isOffered);
    panel.controls.options->setEnabled(isOffered);
    showChoice(panel.bundle, panel.controls.booklet, booklet.layout);
    showChoice(panel.bundle, panel.controls.borders, booklet.pageBorders);
    setEnabledWithLabel(panel.controls.borders, booklet.isOn());
    showWatermark(panel);
    renderWatermark(panel);
}

void renderWatermark(BookletWatermarkContext &panel)
{
    if (!panel.content || !panel.controls.preview->isVisible())
        return;
    _WatermarkData watermark;
    if (!panel.settings.watermark.isEmpty())
        loadWatermarkData(kWatermarksFile, panel.settings.watermark, &watermark);
    watermark.isText = *watermark.textString != '\0';
    watermark.paperWidth = panel.paper.width();
    watermark.paperHeight = panel.paper.height();
    _WatermarkData before = panel.preview->shown();
    before.xPos = watermark.xPos; // written with each drawing
    before.yPos = watermark.yPos;
    panel.preview->renderWatermarkIfNecessary(watermark,
                                              asDictionary(before) != asDictionary(watermark));
}

} // namespace kelvo
