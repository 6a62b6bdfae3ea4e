#pragma once

namespace kelvo {

// From now on windows run as the texts do. Call it with an application object, once the
// texts are loaded and before there is a window.
void followTextDirection();

} // namespace kelvo
