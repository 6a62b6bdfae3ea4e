#include "watermark_editor_controls.h"

#include "control.h"
#include "drawing.h"
#include "font_menu.h"
#include "hint_text.h"
#include "input_limits.h"
#include "string_table.h"

#include <QLocale>

#include <algorithm>

namespace kelvo {

namespace {

constexpr int unitDecimals(std::int32_t units)
{
    return units == kWatermarkInches ? 1 : 0; // tenths of an inch, or whole millimetres
}

// "1 to 1,000 points"; the numbers in the user's notation, with `decimals` of their digits.
QString limitsText(const Device &device, const char *key, int least, int most, int decimals = 0)
{
    const QLocale locale;
    const auto number = [&](int value) {
        return decimals == 0 ? locale.toString(value)
                             : locale.toString(value / 10.0, 'f', decimals);
    };
    return formatted(device.text(key), {number(least), number(most)});
}

void limit(SpinField *field, QLabel *label, const Device &device, const char *key, int least,
           int most)
{
    field->setMinimum(least);
    field->setMaximum(most);
    if (label)
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

// One that is off stays in its place, and says why to those who ask it.
void setOn(QWidget *control, bool isOn, const QString &why)
{
    setEnabledWithLabel(control, isOn);
    control->setToolTip(isOn ? QString() : why);
    control->setAccessibleDescription(isOn ? QString() : why);
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
        .fontHint = label(6104),
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
        .pictureName = label(6125),
        .pictureHint = label(6126),
        .scale = needed.find<SpinField>(kEditorScale),
        .preview = needed.find<PaperView>({kPanelSignature, 6129}),
        .overPage = needed.find<QCheckBox>(kEditorOverPage),
        .kindHint = label(6132),
        .xLimits = label(6121),
        .yLimits = label(6133),
    };
}

void fillWatermarkEditorControls(const WatermarkEditorControls &controls, const Device &device,
                                 const QWidget *window)
{
    const auto hint = [window](std::int32_t number) {
        auto *label = findControl<QLabel>(window, {kPanelSignature, number});
        makeHintText(label);
        return label;
    };
    for (const std::int32_t number : {6104, 6110, 6113, 6121, 6125, 6126, 6131, 6132, 6133})
        hint(number);
    setInputLimits(controls.text, {.maximumBytes = int(sizeof(_WatermarkData::textString)) - 1});
    fillFontPopup(controls.font);
    controls.fontSizes->setMenu(sizeMenu());
    controls.units->setMenu(unitMenu(device));
    limit(controls.fontSize, hint(6107), device, "Watermark Size Limits", 1, kMostFontSize);
    limit(controls.angle, hint(6116), device, "Watermark Angle Limits", -kMostAngle, kMostAngle);
    limit(controls.density, hint(6118), device, "Watermark Density Limits", 0, kMostDensity);
    limit(controls.scale, hint(6128), device, "Watermark Scale Limits", 1, kMostScale);
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
    setOn(controls.kind, fields.kind, why);
    const QString text = textOf(watermark.textString);
    if (controls.text->text() != text) // the cursor stays
        controls.text->setText(text);
    const QString fontName = textOf(watermark.fontName);
    showFont(controls.font, fontName, device.text("Watermark Font Missing"));
    controls.fontHint->setText(fields.text ? fontHint(device, controls.font, fontName) : QString());
    controls.fontSize->setValue(watermark.fontSize);
    for (QWidget *control : std::initializer_list<QWidget *>{controls.text, controls.font,
                                                             controls.fontSize, controls.fontSizes})
        setOn(control, fields.text, why);

    controls.angle->setValue(watermark.angle);
    controls.angleDial->setValue(wrappedAngle(watermark.angle));
    const int decimals = unitDecimals(watermark.units);
    const std::int32_t most = mostOffset(watermark.units);
    for (const auto &[field, label, offset] :
         {std::tuple(controls.x, controls.xLimits, watermark.xOffset),
          {controls.y, controls.yLimits, watermark.yOffset}}) {
        field->setMaximum(most);
        field->setMinimum(-most);
        field->setDecimals(decimals);
        field->setValue(shownOffset(offset, watermark.units));
        label->setText(limitsText(device, "Watermark Offset Limits", -most, most, decimals));
    }
    controls.units->setValueByReference(watermark.units);
    for (QWidget *control :
         std::initializer_list<QWidget *>{controls.angle, controls.angleDial, controls.x,
                                          controls.y, controls.units, controls.center})
        setOn(control, fields.place, why);
    controls.preview->setMovable(fields.place);

    controls.density->setValue(watermark.density);
    setOn(controls.density, fields.density, why);

    controls.scale->setValue(watermark.scale);
    for (QWidget *control : std::initializer_list<QWidget *>{controls.picture, controls.scale})
        setOn(control, fields.picture, why);
}

} // namespace kelvo
