#include "image_options_view.h"

#include "bundle_picture.h"
#include "hint_text.h"
#include "image_options_pictures.h"
#include "image_options_summary.h"
#include "lighten_darken.h"
#include "popups.h"
#include "printed_example.h"
#include "texts.h"
#include "ticket_places.h"
#include "ticket_values.h"

#include <array>

namespace kelvo {

namespace {

// A pop-up that shows a PPD option's choices.
struct PpdRow
{
    const char *option;
    std::int32_t hintNumber; // KPDE, the text below the pop-up
    const char *hintKey;
    std::int32_t ImageOptionsSettings::*value;
    QPointer<PopupButton> ImageOptionsControls::*popup;
};
constexpr PpdRow ppdRows[] = {
    {"KVOutputMode", 1204, "Image Quality Hint", &ImageOptionsSettings::imageQuality,
     &ImageOptionsControls::imageQuality},
    {"KVCMYKColorSpace", 1904, "CMYK Source Color Hint", &ImageOptionsSettings::cmykSourceColor,
     &ImageOptionsControls::cmykSourceColor},
    {"KVColorCorrection", 2004, "Output Color Correction Hint",
     &ImageOptionsSettings::outputColorCorrection, &ImageOptionsControls::outputColorCorrection},
};
constexpr std::int32_t tonerSaverHint = 1304;

// What goes with the value of lighten/darken: label, slider, picture, spin field
// and the numbers below the slider.
constexpr std::array lightenDarkenParts = {1101, 1102, 1103, 1104, 1106, 1107, 1108};
constexpr std::array hints = {1105, 1106, 1107, 1108, 1204, tonerSaverHint, 1904, 2004, 2105, 2202};

ControlID panelID(std::int32_t number)
{
    return {kPanelSignature, number};
}

bool hasOption(const ImageOptionsContext &panel, const char *option)
{
    return panel.device.hasOption(QString::fromLatin1(option));
}

void setUpLightenDarken(const ImageOptionsContext &panel)
{
    const ImageOptionsControls &controls = panel.controls;
    controls.lightenDarkenSlider->setRange(kLightest, kDarkest);
    controls.lightenDarken->setMinimum(kLightest);
    controls.lightenDarken->setMaximum(kDarkest);
    const std::pair<std::int32_t, QString> numbers[] = {
        {1106, QString::asprintf("%+d", kLightest)},
        {1107, QStringLiteral("0")},
        {1108, QString::asprintf("%+d", kDarkest)},
    };
    for (const auto &[number, text] : numbers)
        findControl<QLabel>(panel.content, panelID(number))->setText(text);
    // Below its end of the slider, which follows the window: a number by itself would not.
    for (const auto &[number, side] :
         {std::pair(1106, Qt::AlignLeading), {1108, Qt::AlignTrailing}}) {
        auto *label = findControl<QLabel>(panel.content, panelID(number));
        label->setAlignment(QStyle::visualAlignment(label->layoutDirection(), side)
                            | Qt::AlignAbsolute | Qt::AlignTop);
    }
}

void tellTicketPlaces(const ImageOptionsControls &controls)
{
    for (QWidget *control : std::initializer_list<QWidget *>{
             controls.lightenDarkenSlider, controls.lightenDarken, controls.printerDefault})
        setTicketPlaces(control, lightnessPlaces());
    setTicketPlaces(controls.tonerSaver, tonerSaverPlaces());
    setTicketPlaces(controls.mirror, mirrorPlaces());
}

void showLightenDarken(const ImageOptionsContext &panel)
{
    const ImageOptionsControls &controls = panel.controls;
    const bool isSet = panel.settings.lightenDarken != kUnset;
    if (isSet) {
        controls.lightenDarken->setValue(panel.settings.lightenDarken);
        controls.lightenDarkenSlider->setValue(panel.settings.lightenDarken);
    }
    const bool isEnabled = choosesLightness(panel.settings, panel.device);
    for (const std::int32_t number : lightenDarkenParts)
        findControl(panel.content, panelID(number))->setEnabled(isEnabled);
    controls.printerDefault->setChecked(!isSet);
    controls.printerDefault->setEnabled(hasOption(panel, "KVImageQuality"));
    controls.lightenDarkenWords->setText(lightenDarkenWords(panel.settings, panel.device));
}

void showPpdRow(const ImageOptionsContext &panel, const PpdRow &row)
{
    showChoice(panel.bundle, panel.controls.*row.popup, panel.settings.*row.value,
               findControl<QLabel>(panel.content, panelID(row.hintNumber)),
               localizedText(panel.bundle, QString::fromLatin1(row.hintKey)));
}

void showTonerSaver(const ImageOptionsContext &panel)
{
    panel.controls.tonerSaver->setChecked(panel.settings.tonerSaver == kTonerSaverOn);
    findControl<QLabel>(panel.content, panelID(tonerSaverHint))
        ->setText(tonerSaverWords(panel.settings, panel.device));
}

void showPictures(const ImageOptionsContext &panel)
{
    const ImageOptionsControls &controls = panel.controls;
    const ImageOptionsPictures pictures = imageOptionsPictures(panel.settings, panel.device);
    const std::pair<PictureView *, QString> shown[] = {
        {controls.lightenDarkenPicture, pictures.lightenDarken},
        {controls.imageQualityPicture, pictures.imageQuality},
        {controls.tonerSaverPicture, pictures.tonerSaver},
        {controls.cmykSourceColorPicture, pictures.cmykSourceColor},
        {controls.outputColorCorrectionPicture, pictures.outputColorCorrection},
        {controls.invertPicture, pictures.invert},
    };
    for (const auto &[view, picture] : shown)
        showBundlePicture(view, panel.bundle, picture);
}

// The settings in words are for those who cannot see the page. They may change where it looks
// the same.
void showExample(ImageOptionsContext &panel)
{
    QStringList words;
    for (const SummaryLine &line : imageOptionsSummary(panel.settings, panel.device))
        words << line.title + u' ' + line.text;
    const QString description = joined(words);
    const PrintLook look = printLook(panel.settings, panel.device);
    DrawingView *example = panel.controls.example;
    if (look == panel.shownLook && description == example->accessibleDescription())
        return;
    example->setDrawing(
        [bundle = panel.bundle, look](QPainter &painter, const QSizeF &size) {
            drawPrintedExample(painter, size, bundle, look);
        },
        description);
    panel.shownLook = look;
}

} // namespace

ImageOptionsControls findImageOptionsControls(NeededControls &needed)
{
    for (const std::int32_t number : lightenDarkenParts)
        needed.find(panelID(number));
    for (const std::int32_t number : hints)
        needed.find<QLabel>(panelID(number));
    return {
        .lightenDarkenSlider = needed.find<QSlider>(panelID(kLightenDarkenSlider)),
        .lightenDarkenPicture = needed.find<PictureView>(panelID(1103)),
        .lightenDarken = needed.find<SpinField>(panelID(kLightenDarkenField)),
        .lightenDarkenWords = needed.find<QLabel>(panelID(1105)),
        .printerDefault = needed.find<QCheckBox>(panelID(kPrinterDefaultBox)),
        .imageQuality = needed.find<PopupButton>(panelID(kImageQualityPopup)),
        .imageQualityPicture = needed.find<PictureView>(panelID(1203)),
        .tonerSaver = needed.find<QCheckBox>(panelID(kTonerSaverBox)),
        .tonerSaverPicture = needed.find<PictureView>(panelID(1303)),
        .cmykSourceColor = needed.find<PopupButton>(panelID(kCmykSourceColorPopup)),
        .cmykSourceColorPicture = needed.find<PictureView>(panelID(1903)),
        .outputColorCorrection = needed.find<PopupButton>(panelID(kOutputColorCorrectionPopup)),
        .outputColorCorrectionPicture = needed.find<PictureView>(panelID(2003)),
        .mirror = needed.find<QCheckBox>(panelID(kMirrorBox)),
        .invertPicture = needed.find<PictureView>(panelID(2104)),
        .invertHint = needed.find<QLabel>(panelID(2105)),
        .example = needed.find<DrawingView>(panelID(2201)),
    };
}

void fillImageOptionsControls(ImageOptionsContext &panel)
{
    setUpLightenDarken(panel);
    tellTicketPlaces(panel.controls);
    for (const PpdRow &row : ppdRows)
        fillFromPpd(panel.controls.*row.popup, panel.device, QString::fromLatin1(row.option));
    setEnabledWithLabel(panel.controls.tonerSaver, hasOption(panel, "KVEconomode"));
    for (const std::int32_t number : hints)
        makeHintText(findControl<QLabel>(panel.content, panelID(number)));
}

void SaveUIValuesToData(ImageOptionsContext &panel)
{
    if (!panel.content)
        return;
    const ImageOptionsControls &controls = panel.controls;
    panel.settings.lightenDarken =
        controls.printerDefault->isChecked() ? kUnset : controls.lightenDarken->value();
    for (const PpdRow &row : ppdRows)
        takeChoice(controls.*row.popup, panel.settings.*row.value);
    setTonerSaver(panel.settings, controls.tonerSaver->isChecked());
    panel.settings.invert.mirror = controls.mirror->isChecked();
}

void RestoreUIValuesFromData(ImageOptionsContext &panel)
{
    if (!panel.content)
        return;
    const ImageOptionsControls &controls = panel.controls;
    showLightenDarken(panel);
    for (const PpdRow &row : ppdRows)
        showPpdRow(panel, row);
    showTonerSaver(panel);
    controls.mirror->setChecked(panel.settings.invert.mirror);
    controls.invertHint->setText(invertImageWords(panel.settings, panel.device));
    showPictures(panel);
    showExample(panel);
}

OSStatus ImageOptionsEventHandler(ImageOptionsContext &panel, const Event &event)
{
    if (event.kind != EventKind::ControlHit || event.control.signature != kPanelSignature)
        return eventNotHandledErr;
    if (event.control.number == kShowAgain) {
        RestoreUIValuesFromData(panel);
        return eventNotHandledErr;
    }
    const ImageOptionsControls &controls = panel.controls;
    // The field says the lightness, whichever of the two the user moved.
    if (event.control.number == kLightenDarkenSlider)
        controls.lightenDarken->setValue(controls.lightenDarkenSlider->value());
    else
        controls.lightenDarken->takeTypedText(); // else showing would undo it
    SaveUIValuesToData(panel);
    RestoreUIValuesFromData(panel);
    return noErr;
}

} // namespace kelvo
