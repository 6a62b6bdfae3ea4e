#pragma once

#include <QString>

namespace kelvo {

// `text`, whoever wrote it, as a tool tip that shows it letter by letter: never
// taken for markup, on the lines that it has, long ones wrapped. Empty stays empty.
QString plainToolTip(const QString &text);

} // namespace kelvo
