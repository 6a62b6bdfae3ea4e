#pragma once

#include "booklet_watermark_view.h"

// What the user does on the Booklet/Watermark panel.
namespace kelvo {

// Takes the hits and commands of the panel's controls; eventNotHandledErr for any other event.
OSStatus BookletWatermarkEventHandler(BookletWatermarkContext &panel, const Event &event);

} // namespace kelvo
