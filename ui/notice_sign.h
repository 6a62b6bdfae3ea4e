#pragma once

#include "notice.h"

#include <QPixmap>

namespace kelvo {

// The sign of a notice, `side` logical pixels large, on a screen of `ratio`
// device pixels to each. In the usual colours, which read on light and dark alike.
QPixmap noticeSign(NoticeLevel level, int side, double ratio);

} // namespace kelvo
