#pragma once

#include "status.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <vector>

// A PDF of one page that is written into memory and read from there. One byte of the buffer
// always stays free.
namespace kelvo {

struct _MemoryConsumer // NOLINT(bugprone-reserved-identifier): the record's own name
{
    std::uint32_t position = 0; // bytes written so far; for reading, where it goes on
    std::vector<char> buffer;   // its size is the capacity
};

inline constexpr std::uint32_t kPreviewCapacity = 32'768; // bytes; most previews take a tenth

// paramErr for a null consumer; memFullErr where there is no such memory.
OSStatus CreateMemoryConsumer(std::uint32_t capacity, _MemoryConsumer *consumer);

// The consumer's side; `info` is a _MemoryConsumer. What is written: `count`, or 0, and
// nothing is, where the buffer cannot grow: it doubles until `count` bytes and the free one
// fit, and never beyond what 32 bits count.
std::size_t MemoryConsumerPutBytes(void *info, const void *bytes, std::size_t count);
void MemoryConsumerReleaseInfo(void *info); // frees the buffer

// The provider's side. Reads go up to the capacity, less the free byte: after what was
// written come bytes that mean nothing. What is copied; what is skipped, all of `count` also
// where there is less.
std::size_t MemoryProviderGetBytes(void *info, void *buffer, std::size_t count);
std::size_t MemoryProviderSkipBytes(void *info, std::size_t count);
void MemoryProviderRewind(void *info);
void MemoryProviderReleaseInfo(void *info);

// What was written, before any of it is read, without what the provider would give after it.
QByteArray writtenBytes(const _MemoryConsumer &consumer);

} // namespace kelvo
