#include "page_writing.h"

namespace kelvo {

Result<void> writePage(const QSizeF &size, _MemoryConsumer &consumer,
                       const std::function<void(const drawing::Library &, drawing::Page &)> &draw)
{
    consumer.position = 0;
    const Result<const drawing::Library *> library = drawing::library();
    if (!library)
        return library.error();
    const auto write = [&consumer](const char *bytes, std::size_t count) {
        return MemoryConsumerPutBytes(&consumer, bytes, count) == count;
    };
    Result<std::unique_ptr<drawing::Page>> begun = library.value()->beginPage(size, write);
    if (!begun)
        return begun.error();
    draw(*library.value(), *begun.value());
    Result<void> finished = begun.value()->finish();
    if (!finished)
        consumer.position = 0;
    return finished;
}

} // namespace kelvo
