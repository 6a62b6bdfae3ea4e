#pragma once

#include "drawing_view.h"
#include "image_options_controls.h"
#include "image_options_settings.h"
#include "invert_image_controls.h"
#include "panel_context.h"
#include "picture_view.h"
#include "popup_button.h"
#include "print_look.h"
#include "spin_field.h"

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QSlider>

#include <optional>

// What the Image Options panel shows: its controls, what fills them, and the way
// between them and the context.
namespace kelvo {

inline constexpr std::int32_t kShowAgain = 1004; // KPDE, no setting; the panel shows itself again

// Null until they are built.
struct ImageOptionsControls
{
    QPointer<QSlider> lightenDarkenSlider;              // KPDE 1102
    QPointer<PictureView> lightenDarkenPicture;         // KPDE 1103
    QPointer<SpinField> lightenDarken;                  // KPDE 1104
    QPointer<QLabel> lightenDarkenWords;                // KPDE 1105
    QPointer<QCheckBox> printerDefault;                 // KPDE 1109
    QPointer<PopupButton> imageQuality;                 // KPDE 1202
    QPointer<PictureView> imageQualityPicture;          // KPDE 1203
    QPointer<QCheckBox> tonerSaver;                     // KPDE 1302
    QPointer<PictureView> tonerSaverPicture;            // KPDE 1303
    QPointer<PopupButton> cmykSourceColor;              // KPDE 1902
    QPointer<PictureView> cmykSourceColorPicture;       // KPDE 1903
    QPointer<PopupButton> outputColorCorrection;        // KPDE 2002
    QPointer<PictureView> outputColorCorrectionPicture; // KPDE 2003
    QPointer<QCheckBox> mirror;                         // KPDE 2103
    QPointer<PictureView> invertPicture;                // KPDE 2104
    QPointer<QLabel> invertHint;                        // KPDE 2105
    QPointer<DrawingView> example;                      // KPDE 2201
};

struct ImageOptionsContext final : PanelContext
{
    static constexpr PanelTraits traits{.titleKey = "ImageOptions", .signature = kShellSignature};
    ImageOptionsContext()
        : PanelContext(traits)
    {
    }

    void begin(const Ticket &printSettings) override;
    OSStatus read(Ticket &printSettings, const Ticket &pageFormat) override;
    OSStatus write(Ticket &printSettings, const Ticket &pageFormat) override;
    std::optional<std::vector<SummaryLine>> words() const override;
    OSStatus build() override;

    ImageOptionsSettings settings;
    ImageOptionsControls controls;
    InvertImageContext invertControls;
    std::optional<PrintLook> shownLook; // as the example is drawn
};

ImageOptionsControls findImageOptionsControls(NeededControls &needed);

// Gives the controls ranges, and fills the pop-ups from the PPD. What the device does
// not have is disabled, and says so.
void fillImageOptionsControls(ImageOptionsContext &panel);

// From the controls to the context; nothing happens before they are built.
void SaveUIValuesToData(ImageOptionsContext &panel);
// From the context to the controls and the pictures; likewise.
void RestoreUIValuesFromData(ImageOptionsContext &panel);

// Slider and spin field follow each other, and every change by the user is taken
// and shown at once. eventNotHandledErr for what is not the panel's.
OSStatus ImageOptionsEventHandler(ImageOptionsContext &panel, const Event &event);

} // namespace kelvo
