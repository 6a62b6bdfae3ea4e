#pragma once

#include "bundle.h"
#include "stock.h"

#include <optional>

class QWidget;

namespace kelvo {

// Asks for a name, beginning with `suggestion`, and saves `stock` under it in the
// user's library. The name; none when the user gave up or there is no window.
std::optional<QString> RunModalSaveStock(CFBundleRef bundle, const Stock &stock,
                                         const QString &suggestion, QWidget *parent);

} // namespace kelvo
