#pragma once

#include "image_options_context.h"
#include "plugin_abi.h"
#include "status.h"
#include "ticket_file.h"

// Between the Image Options panel and the print settings ticket. All but the
// inverted image travels as choices of PPD options:
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
// Beside them stands, for tickets and presets that are read later,
//
//   com.kelvo.print.PrinterDefaultLightness   boolean, true or missing: no choice of
//       KVImageQuality is what was chosen, not what nobody has thought of yet
//
// All give noErr, or kPMInvalidParameter for a null context or no ticket.
namespace kelvo {

// Where the ticket says how light pages are.
TicketPlaces lightnessPlaces();

// A choice that no step stands for is read as the printer's default, and so is no
// choice where that was chosen, here or in the ticket.
OSStatus SyncLightenDarkenToUI(ImageOptionsContext *context, PMTicketRef ticket);
// No choice is written before the panel was opened. The printer's default takes the
// choice back that the panel itself wrote; any other stays.
OSStatus SyncLightenDarkenToTicket(ImageOptionsContext *context, PMTicketRef ticket);

OSStatus SyncTonerSaverToUI(ImageOptionsContext *context, PMTicketRef ticket);
OSStatus SyncTonerSaverToTicket(const ImageOptionsContext *context, PMTicketRef ticket);

// Image quality, CMYK source colour and output colour correction.
OSStatus SyncQualityAndColorToUI(ImageOptionsContext *context, PMTicketRef ticket);
OSStatus SyncQualityAndColorToTicket(const ImageOptionsContext *context, PMTicketRef ticket);

// The resolution of these devices is not a setting of this panel: nothing is read
// or written, and the answer is always noErr.
OSStatus SyncResolutionToUI(ImageOptionsContext *context, PMTicketRef ticket);
OSStatus SyncResolutionToTicket(const ImageOptionsContext *context, PMTicketRef ticket);

} // namespace kelvo
