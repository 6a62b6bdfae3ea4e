#pragma once

#include "cups_connection.h"
#include "result.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace kelvo {

// The PPD of `queue` as the server has it; of a class of printers, that of its
// first member. NotFound only when the server says that it has none; what does not
// come whole is Unreachable, and an empty one Damaged. All these block.
Result<QByteArray> queuePpd(http_t *http, const QString &queue, Patience &patience);

// The PPDs of all printers that may get what is sent to `queue`: its own, or
// those of a class's members, and of their members. Null for a printer that has
// none. NotFound when there is no such queue.
Result<std::vector<QByteArray>> allPpds(http_t *http, const QString &queue, Patience &patience);

} // namespace kelvo
