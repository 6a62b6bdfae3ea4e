#pragma once

#include "device.h"
#include "invert_image.h"
#include "status.h"
#include "ticket.h"
#include "ticket_file.h"

#include <QString>

#include <cstdint>
#include <optional>

// What the Image Options panel sets, and how tickets say it. All but the inverted
// image travels as choices of PPD options:
//
//   KVImageQuality      lightenDarken; none for the printer's default
//   KVEconomode         tonerSaver
//   KVOutputMode        imageQuality
//   KVCMYKColorSpace    cmykSourceColor
//   KVColorCorrection   outputColorCorrection
//
// Reading takes the ticket's choice, else the PPD's default; where neither has one
// the value stays. Writing a value that has no choice leaves the ticket's as it
// was, and so does an option that the PPD does not have: what the ticket says of it
// is for another device.
//
// Beside them stand the entry of invert_image.h and, for tickets and presets that are
// read later,
//
//   com.kelvo.print.PrinterDefaultLightness   boolean, true or missing: no choice of
//       KVImageQuality is what was chosen, not what nobody has thought of yet
namespace kelvo {

inline constexpr std::int32_t kTonerSaverOn = 1, kTonerSaverOff = 2; // "KVEconomode"

// Numbers are the ticket values of the PPD options named beside them; 0 until the
// first read.
struct ImageOptionsSettings
{
    std::int32_t lightenDarken = 0; // -5 to 5; kUnset: the printer's default
    // The choice that the panel wrote for it last; it is taken back where the printer's
    // default is chosen and the ticket still has it.
    std::optional<QString> writtenLightness;
    // Any other choice of the ticket, which stays.
    std::optional<QString> keptLightness;
    std::int32_t imageQuality = 0;          // "KVOutputMode"
    std::int32_t tonerSaver = 0;            // "KVEconomode"; -1 for a choice of its own
    std::int32_t cmykSourceColor = 0;       // "KVCMYKColorSpace"
    std::int32_t outputColorCorrection = 0; // "KVColorCorrection"
    std::int32_t colorMode = 0;             // "KVColorMode", which another panel sets: only read
    II_Options invert;

    friend bool operator==(const ImageOptionsSettings &, const ImageOptionsSettings &) = default;
};

// The step that pages are printed in: the one chosen, else that of the choice that the
// job keeps; kUnset where neither is a step.
std::int32_t lightnessStep(const ImageOptionsSettings &settings);
// Nothing but the printer's default was chosen, and the job keeps no choice of its own.
bool leavesLightnessToPrinter(const ImageOptionsSettings &settings);
// The user switched it. A choice that is neither on nor off stays until it is switched on.
void setTonerSaver(ImageOptionsSettings &settings, bool isOn);

// What the ticket says, and of the rest what was there before.
void readImageOptions(ImageOptionsSettings &settings, const Ticket &printSettings,
                      const Device &device);
// Takes down what of the lightness was written and what is kept. A panel that was never
// `opened` has no lightness of its own to write.
void writeImageOptions(ImageOptionsSettings &settings, Ticket &printSettings, const Device &device,
                       bool opened);

// The parts of the two. A choice that no step stands for is read as the printer's
// default, and so is no choice where that was chosen, here or in the ticket.
void SyncLightenDarkenToUI(ImageOptionsSettings &settings, const Ticket &printSettings,
                           const Device &device);
// The printer's default takes the choice back that the panel itself wrote; any other
// stays.
void SyncLightenDarkenToTicket(ImageOptionsSettings &settings, Ticket &printSettings,
                               const Device &device, bool opened);
void SyncTonerSaverToUI(ImageOptionsSettings &settings, const Ticket &printSettings,
                        const Device &device);
void SyncTonerSaverToTicket(const ImageOptionsSettings &settings, Ticket &printSettings,
                            const Device &device);
// The resolution of these devices is not a setting of this panel: nothing is read
// or written, and the answer is always noErr.
OSStatus SyncResolutionToUI(ImageOptionsSettings &settings, const Ticket &printSettings);
OSStatus SyncResolutionToTicket(const ImageOptionsSettings &settings, Ticket &printSettings);
// Image quality, CMYK source colour and output colour correction. The panel writes them
// after a read too: the ticket then says what the device would do by default.
void writeQualityAndColor(const ImageOptionsSettings &settings, Ticket &printSettings,
                          const Device &device);

// Where the ticket says what a control sets.
TicketPlaces lightnessPlaces();
TicketPlaces tonerSaverPlaces();
TicketPlaces mirrorPlaces();

} // namespace kelvo
