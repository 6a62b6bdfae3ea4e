#pragma once

#include <QString>

namespace kelvo {

// What is going on or wrong while there are no panels to show, and what to do; without a header, a
// remark on those that there are.
struct SessionMessage
{
    QString header, text;
    bool canRetry = false;
    QString advice = {}; // for those who sit before the window
};

} // namespace kelvo
