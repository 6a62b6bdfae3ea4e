#pragma once

#include "drawing.h"
#include "memory_consumer.h"

#include <functional>

namespace kelvo {

// A page of `size` points, with what `draw` puts on it, as a PDF in the consumer, from position 0
// on. Errors of the drawing library; the consumer is empty after them.
Result<void> writePage(const QSizeF &size, _MemoryConsumer &consumer,
                       const std::function<void(const drawing::Library &, drawing::Page &)> &draw);

} // namespace kelvo
