#pragma once

#include "glib_owner.h"
#include "people.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

// Calls that can be left. GLib's own can be cancelled, but those of the address book wait for
// its service in some places without looking: it may be stopped, or hang.
namespace kelvo {

enum class CallEnd { Done, Cancelled, TimedOut, NoThread };

// Runs `work` on a thread of its own, with a main context of its own, and waits for its end,
// for `cancelled` or for that long. Where that comes first, `work` is told by its cancellable,
// and a call that does not listen is left behind: what it uses it must own.
CallEnd runCall(const std::function<void(GCancellable *)> &work, AddressBook::Flag cancelled,
                std::optional<std::chrono::milliseconds> longest);

// Why a call that was not Done has nothing to say.
Error unfinished(CallEnd end);

template <typename T>
Result<T> call(std::function<Result<T>(GCancellable *)> work, AddressBook::Flag cancelled,
               std::optional<std::chrono::milliseconds> longest = std::nullopt)
{
    auto answer = std::make_shared<std::optional<Result<T>>>();
    const CallEnd end =
        runCall([answer, work = std::move(work)](
                    GCancellable *cancellable) { answer->emplace(work(cancellable)); },
                cancelled, longest);
    if (end != CallEnd::Done)
        return unfinished(end);
    return *std::move(*answer);
}

} // namespace kelvo
