#pragma once

#include "angle_dial.h"
#include "control_id.h"
#include "device.h"
#include "menu_button.h"
#include "needed_controls.h"
#include "paper_view.h"
#include "popup_button.h"
#include "radio_group.h"
#include "spin_field.h"
#include "watermark_editing.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

// The controls of the watermark editor, what fills them, and what they show.
namespace kelvo {

inline constexpr ControlID kEditorKind{kPanelSignature, 6101};
inline constexpr ControlID kEditorText{kPanelSignature, 6102};
inline constexpr ControlID kEditorFont{kPanelSignature, 6103};
inline constexpr ControlID kEditorFontSize{kPanelSignature, 6105};
inline constexpr ControlID kEditorFontSizes{kPanelSignature, 6106};
inline constexpr ControlID kEditorColorWell{kPanelSignature, 6108};
inline constexpr ControlID kEditorColor{kPanelSignature, 6109};
inline constexpr ControlID kEditorFontColorWell{kPanelSignature, 6111};
inline constexpr ControlID kEditorFontColor{kPanelSignature, 6112};
inline constexpr ControlID kEditorAngle{kPanelSignature, 6114};
inline constexpr ControlID kEditorAngleDial{kPanelSignature, 6115};
inline constexpr ControlID kEditorDensity{kPanelSignature, 6117};
inline constexpr ControlID kEditorX{kPanelSignature, 6119};
inline constexpr ControlID kEditorUnits{kPanelSignature, 6120};
inline constexpr ControlID kEditorY{kPanelSignature, 6122};
inline constexpr ControlID kEditorCenter{kPanelSignature, 6123};
inline constexpr ControlID kEditorPicture{kPanelSignature, 6124};
inline constexpr ControlID kEditorScale{kPanelSignature, 6127};
inline constexpr ControlID kEditorPreview{kPanelSignature, 6129};
inline constexpr ControlID kEditorOverPage{kPanelSignature, 6130};

inline constexpr int kKindText = 1, kKindPicture = 2; // buttons of the kind

// None is null in a window that was made.
struct WatermarkEditorControls
{
    RadioGroup *kind = nullptr;
    QLineEdit *text = nullptr;
    PopupButton *font = nullptr;
    SpinField *fontSize = nullptr;
    MenuButton *fontSizes = nullptr;
    QPushButton *colorWell = nullptr, *fontColorWell = nullptr;
    QLineEdit *color = nullptr, *fontColor = nullptr;
    SpinField *angle = nullptr;
    AngleDial *angleDial = nullptr;
    SpinField *density = nullptr;
    SpinField *x = nullptr, *y = nullptr;
    PopupButton *units = nullptr;
    QPushButton *center = nullptr;
    QPushButton *picture = nullptr;
    SpinField *scale = nullptr;
    PaperView *preview = nullptr;
    QCheckBox *overPage = nullptr;
    // Beside and below those.
    QLabel *fontHint = nullptr, *fontSizeLimits = nullptr;
    QLabel *colorHint = nullptr, *fontColorHint = nullptr;
    QLabel *angleLimits = nullptr, *densityLimits = nullptr, *xLimits = nullptr, *yLimits = nullptr;
    QLabel *pictureName = nullptr, *pictureHint = nullptr, *scaleLimits = nullptr;
    QLabel *placeHint = nullptr, *kindHint = nullptr;
};

WatermarkEditorControls findWatermarkEditorControls(NeededControls &needed);

// Menus and limits, which the record does not change.
void fillWatermarkEditorControls(const WatermarkEditorControls &controls, const Device &device);

// "200 by 100 pixels, printed 2.8 by 1.4 inches large", in the record's units at its scale.
QString pictureSizeText(const Device &device, const QSizeF &pixels,
                        const _WatermarkData &watermark);

// Which font it has; what takes its place is looked for, so only when it is another one.
void showWatermarkFont(const WatermarkEditorControls &controls, const Device &device,
                       const _WatermarkData &watermark);

// From the record to the controls, but for font, colors and picture.
void showWatermark(const WatermarkEditorControls &controls, const Device &device,
                   const _WatermarkData &watermark, bool isCoverImage);

} // namespace kelvo
