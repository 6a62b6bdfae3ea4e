#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QWidget;

namespace kelvo {

// What has not been built yet; destroying it drops that.
using LateContent = std::unique_ptr<QObject>;

// Calls `build` once, before `pane` is seen but not before the window's first frame
// needs it: at once when the pane is not hidden, when it is shown, or else as soon as
// its window has been painted. Panels of hidden tabs would delay that frame. Where nobody
// looks (audience.h) those of them that are never shown are never built.
[[nodiscard]] LateContent buildBeforeSeen(QWidget *pane, std::function<void()> build);

} // namespace kelvo
