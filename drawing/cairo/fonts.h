#pragma once

#include "drawing.h"

#include <QString>

#include <fontconfig/fontconfig.h>

#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

struct FontPatternCloser
{
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
using FontPattern = std::unique_ptr<FcPattern, FontPatternCloser>;

// The installed font of that PostScript name, letter for letter, else the one that is as
// wide: name, file, face and style. Null when there is neither.
FontPattern findFontPattern(const QString &postScriptName);

// What a pattern of fontconfig says of a face; none where it names no file.
std::optional<drawing::Font> fontOf(FcPattern *font);

// As Library::fonts() says.
std::vector<drawing::Font> installedFonts();

} // namespace kelvo
