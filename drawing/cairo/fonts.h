#pragma once

#include <QString>

#include <fontconfig/fontconfig.h>

#include <memory>

namespace kelvo {

struct FontPatternCloser
{
    void operator()(FcPattern *pattern) const { FcPatternDestroy(pattern); }
};
using FontPattern = std::unique_ptr<FcPattern, FontPatternCloser>;

// The installed font of that PostScript name, letter for letter, else the one that is as
// wide: name, file, face and style. Null when there is neither.
FontPattern findFontPattern(const QString &postScriptName);

} // namespace kelvo
