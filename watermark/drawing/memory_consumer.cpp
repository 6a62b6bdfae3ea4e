#include "memory_consumer.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <iterator>
#include <limits>

namespace kelvo {

namespace {

constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max();

// Between the position and the byte that stays free.
std::uint64_t room(const _MemoryConsumer &consumer)
{
    const std::uint64_t capacity = consumer.buffer.size();
    return capacity > consumer.position ? capacity - consumer.position - 1 : 0;
}

bool resize(_MemoryConsumer &consumer, std::uint64_t capacity)
{
    try {
        consumer.buffer.resize(capacity);
    } catch (const std::exception &) {
        return false;
    }
    return true;
}

bool makeRoom(_MemoryConsumer &consumer, std::size_t count)
{
    if (count <= room(consumer))
        return true;
    if (count >= most - consumer.position)
        return false;
    const std::uint64_t needed = consumer.position + std::uint64_t(count) + 1;
    std::uint64_t capacity = std::max<std::uint64_t>(consumer.buffer.size(), 1);
    while (capacity < needed)
        capacity *= 2;
    return capacity <= most && resize(consumer, capacity);
}

} // namespace

OSStatus CreateMemoryConsumer(std::uint32_t capacity, _MemoryConsumer *consumer)
{
    if (!consumer)
        return paramErr;
    *consumer = {};
    return resize(*consumer, capacity) ? noErr : memFullErr;
}

std::size_t MemoryConsumerPutBytes(void *info, const void *bytes, std::size_t count)
{
    auto *consumer = static_cast<_MemoryConsumer *>(info);
    if (!consumer || !bytes || count == 0 || !makeRoom(*consumer, count))
        return 0;
    std::memcpy(consumer->buffer.data() + consumer->position, bytes, count);
    consumer->position += static_cast<std::uint32_t>(count);
    return count;
}

void MemoryConsumerReleaseInfo(void *info)
{
    if (auto *consumer = static_cast<_MemoryConsumer *>(info))
        *consumer = {};
}

std::size_t MemoryProviderGetBytes(void *info, void *buffer, std::size_t count)
{
    auto *consumer = static_cast<_MemoryConsumer *>(info);
    if (!consumer || !buffer)
        return 0;
    const auto copied = static_cast<std::size_t>(std::min<std::uint64_t>(count, room(*consumer)));
    if (copied > 0)
        std::memcpy(buffer, consumer->buffer.data() + consumer->position, copied);
    consumer->position += static_cast<std::uint32_t>(copied);
    return copied;
}

std::size_t MemoryProviderSkipBytes(void *info, std::size_t count)
{
    if (auto *consumer = static_cast<_MemoryConsumer *>(info))
        consumer->position +=
            static_cast<std::uint32_t>(std::min<std::uint64_t>(count, most - consumer->position));
    return count;
}

void MemoryProviderRewind(void *info)
{
    if (auto *consumer = static_cast<_MemoryConsumer *>(info))
        consumer->position = 0;
}

void MemoryProviderReleaseInfo(void *info)
{
    MemoryConsumerReleaseInfo(info);
}

QByteArray writtenBytes(const _MemoryConsumer &consumer)
{
    return QByteArray(consumer.buffer.data(),
                      std::min<qsizetype>(consumer.position, std::ssize(consumer.buffer)));
}

} // namespace kelvo
