#pragma once

#include <QString>

namespace kelvo {

// Keeps the font of a watermark as a Type 42 program in the watermarks' store, under the name
// that the watermark has for it, so that the device can print with it. A picture needs none.
// What is not installed, cannot be read, has no TrueType outlines or finds no place in the store
// does not go along; standard error says so, once in a process. GUI thread.
//
// With each write of a ticket: a font that the store has already, and whose file is still the
// same, is not read. What tells so is in the user's preferences (kConvertedFontsFile).
void convertFont(const QString &watermarkName);

inline const QString kConvertedFontsFile = QStringLiteral("com.kelvo.print.watermarkfonts.plist");

} // namespace kelvo
