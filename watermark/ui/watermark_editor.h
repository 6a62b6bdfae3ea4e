#pragma once

#include "device.h"
#include "print_session.h"
#include "status.h"
#include "watermark_data.h"

#include <QString>

class QWidget;

// The dialog that makes and changes a watermark.
namespace kelvo {

struct WatermarkEditing
{
    QString fileName;          // of the store: whose names are checked
    QString titleKey;          // of the window, in "Localizable"
    DocumentPage firstPage;    // shown below it; without a path: white paper
    bool isCoverImage = false; // a picture for fax cover sheets: has density, and no text
};

// Edits `watermark`, whose paper says what it is shown on: OK, and it is what the user made,
// with a name that the store can have; or Cancel, and it is as it was.
DialogResult RunModalWatermarkEditor(const Device &device, _WatermarkData *watermark,
                                     const WatermarkEditing &editing, QWidget *parent);

} // namespace kelvo
