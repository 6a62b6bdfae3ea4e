#include "watermark_editor_controls.h"

#include "control.h"
#include "drawing.h"
#include "font_menu.h"
#include "hint_text.h"
#include "input_limits.h"
#include "string_table.h"
#include "tool_tip.h"

#include <QLocale>

namespace kelvo {

namespace {

constexpr int unitDecimals(std::int32_t units)
{
    return units == kWatermarkInches ? 1 : 0; // tenths of an inch, or whole millimetres
}

// In the user's notation; one decimal or none.
QString numberText(int value, int decimals)
{
    const QLocale locale;
    return decimals == 0 ? locale.toString(value) : locale.toString(value / 10.0, 'f', decimals);
}

// "1 to 1,000 points"
QString limitsText(const Device &device, const char *key, int least, int most, int decimals = 0)
{
    return formatted(device.text(key), {numberText(least, decimals), numberText(most, decimals)});
}

void limit(SpinField *field, QLabel *label, const Device &device, const char *key, int least,
           int most)
{
    field->setMinimum(least);
    field->setMaximum(most);
    label->setText(limitsText(device, key, least, most));
}

Menu sizeMenu()
{
    Menu menu;
    for (const std::int32_t size : kTypicalFontSizes)
        menu.items.push_back({.text = QLocale().toString(size), .reference = size});
    return menu;
}

Menu unitMenu(const Device &device)
{
    return {{{.text = device.text("Watermark Inches"),
              .key = QStringLiteral("Inches"),
              .reference = kWatermarkInches},
             {.text = device.text("Watermark Millimetres"),
              .key = QStringLiteral("Millimetres"),
              .reference = kWatermarkMillimetres}},
            nullptr};
}

// What is drawn in place of a font that is not installed.
QString fontHint(const Device &device, const PopupButton *popup, const QString &fontName)
{
    if (popup->value() > 0)
        return {};
    const auto library = drawing::library();
    if (!library)
        return device.text("Watermark No Fonts Hint");
    const auto found = library.value()->findFont(fontName);
    return found ? device.text("Watermark Font Replaced Hint").arg(found->family)
                 : device.text("Watermark Font Missing Hint");
}

void showOffset(SpinField *field, QLabel *limits, const Device &device, float offset,
                std::int32_t units)
{
    const std::int32_t most = mostOffset(units);
    const int decimals = unitDecimals(units);
    field->setMaximum(most);
    field->setMinimum(-most);
    field->setDecimals(decimals);
    field->setValue(shownOffset(offset, units));
    limits->setText(limitsText(device, "Watermark Offset Limits", -most, most, decimals));
}

// Those that are off stay in their places, and say why to those who ask them.
void setOn(std::initializer_list<QWidget *> controls, bool isOn, const QString &why)
{
    for (QWidget *control : controls) {
        setEnabledWithLabel(control, isOn);
        setPlainToolTip(control, isOn ? QString() : why);
    }
}

} // namespace

WatermarkEditorControls findWatermarkEditorControls(NeededControls &needed)
{
    const auto label = [&needed](std::int32_t number) {
        return needed.find<QLabel>({kPanelSignature, number});
    };
    return {
        .kind = needed.find<RadioGroup>(kEditorKind),
        .text = needed.find<QLineEdit>(kEditorText),
        .font = needed.find<PopupButton>(kEditorFont),
        .fontSize = needed.find<SpinField>(kEditorFontSize),
        .fontSizes = needed.find<MenuButton>(kEditorFontSizes),
        .colorWell = needed.find<QPushButton>(kEditorColorWell),
        .fontColorWell = needed.find<QPushButton>(kEditorFontColorWell),
        .color = needed.find<QLineEdit>(kEditorColor),
        .fontColor = needed.find<QLineEdit>(kEditorFontColor),
        .angle = needed.find<SpinField>(kEditorAngle),
        .angleDial = needed.find<AngleDial>(kEditorAngleDial),
        .density = needed.find<SpinField>(kEditorDensity),
        .x = needed.find<SpinField>(kEditorX),
        .y = needed.find<SpinField>(kEditorY),
        .units = needed.find<PopupButton>(kEditorUnits),
        .center = needed.find<QPushButton>(kEditorCenter),
        .picture = needed.find<QPushButton>(kEditorPicture),
        .scale = needed.find<SpinField>(kEditorScale),
        .preview = needed.find<PaperView>(kEditorPreview),
        .overPage = needed.find<QCheckBox>(kEditorOverPage),
        .fontHint = label(6104),
        .fontSizeLimits = label(6107),
        .colorHint = label(6110),
        .fontColorHint = label(6113),
        .angleLimits = label(6116),
        .densityLimits = label(6118),
        .xLimits = label(6121),
        .yLimits = label(6133),
        .pictureName = label(6125),
        .pictureHint = label(6126),
        .scaleLimits = label(6128),
        .placeHint = label(6131),
        .kindHint = label(6132),
    };
}

void fillWatermarkEditorControls(const WatermarkEditorControls &controls, const Device &device)
{
    for (QLabel *hint :
         {controls.fontHint, controls.fontSizeLimits, controls.colorHint, controls.fontColorHint,
          controls.angleLimits, controls.densityLimits, controls.xLimits, controls.yLimits,
          controls.pictureName, controls.pictureHint, controls.scaleLimits, controls.placeHint,
          controls.kindHint})
        makeHintText(hint);
    // Room for the longer ones, so that the window stays as it is.
    for (QLabel *hint : {controls.pictureHint, controls.kindHint})
        hint->setMinimumHeight(2 * hint->fontMetrics().lineSpacing());
    setInputLimits(controls.text, {.maximumBytes = int(sizeof(_WatermarkData::textString)) - 1});
    fillFontPopup(controls.font);
    controls.fontSizes->setMenu(sizeMenu());
    controls.units->setMenu(unitMenu(device));
    limit(controls.fontSize, controls.fontSizeLimits, device, "Watermark Size Limits", 1,
          kMostFontSize);
    limit(controls.angle, controls.angleLimits, device, "Watermark Angle Limits", -kMostAngle,
          kMostAngle);
    limit(controls.density, controls.densityLimits, device, "Watermark Density Limits", 0,
          kMostDensity);
    limit(controls.scale, controls.scaleLimits, device, "Watermark Scale Limits", 1, kMostScale);
}

QString pictureSizeText(const Device &device, const QSizeF &pixels, const _WatermarkData &watermark)
{
    const int decimals = unitDecimals(watermark.units);
    const auto length = [&](double side) {
        return numberText(shownLength(side, watermark.scale, watermark.units), decimals);
    };
    return formatted(device.text(watermark.units == kWatermarkInches
                                     ? "Watermark Picture Inches"
                                     : "Watermark Picture Millimetres"),
                     {numberText(qRound(pixels.width()), 0), numberText(qRound(pixels.height()), 0),
                      length(pixels.width()), length(pixels.height())});
}

void showWatermarkFont(const WatermarkEditorControls &controls, const Device &device,
                       const _WatermarkData &watermark)
{
    const QString fontName = textOf(watermark.fontName);
    showFont(controls.font, fontName, device.text("Watermark Font Missing"));
    controls.fontHint->setText(fontHint(device, controls.font, fontName));
}

void showWatermark(const WatermarkEditorControls &controls, const Device &device,
                   const _WatermarkData &watermark, bool isCoverImage)
{
    const WatermarkFields fields = fieldsFor(watermark, isCoverImage);
    const QString why = device.text(isCoverImage      ? "Watermark Cover Hint"
                                        : fields.text ? "Watermark Text Hint"
                                                      : "Watermark Picture Hint");
    controls.kindHint->setText(why);
    controls.kind->setValue(fields.text ? kKindText : kKindPicture);
    setOn({controls.kind}, fields.kind, why);

    const QString text = textOf(watermark.textString);
    if (controls.text->text() != text) // the cursor stays
        controls.text->setText(text);
    controls.fontSize->setValue(watermark.fontSize);
    setOn({controls.text, controls.font, controls.fontSize, controls.fontSizes, controls.colorWell,
           controls.color, controls.fontColorWell, controls.fontColor},
          fields.text, why);

    controls.angle->setValue(watermark.angle);
    controls.angleDial->setValue(wrappedAngle(watermark.angle));
    showOffset(controls.x, controls.xLimits, device, watermark.xOffset, watermark.units);
    showOffset(controls.y, controls.yLimits, device, watermark.yOffset, watermark.units);
    controls.units->setValueByReference(watermark.units);
    setOn({controls.angle, controls.angleDial, controls.x, controls.y, controls.center},
          fields.place, why);
    controls.preview->setMovable(fields.place);

    controls.density->setValue(watermark.density);
    setOn({controls.density}, fields.density, why);

    controls.scale->setValue(watermark.scale);
    setOn({controls.picture, controls.scale}, fields.picture, why);

    const auto enable = [](std::initializer_list<QLabel *> hints, bool isOn) {
        for (QLabel *hint : hints)
            hint->setEnabled(isOn);
    };
    enable({controls.fontHint, controls.fontSizeLimits, controls.colorHint, controls.fontColorHint},
           fields.text);
    enable({controls.angleLimits, controls.xLimits, controls.yLimits, controls.placeHint},
           fields.place);
    enable({controls.densityLimits}, fields.density);
    enable({controls.pictureName, controls.pictureHint, controls.scaleLimits}, fields.picture);
}

} // namespace kelvo
