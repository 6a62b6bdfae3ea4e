// Part of every test program under the thread sanitizer. QProcess clones its children into
// the parent's own memory, as vfork() does. The sanitizer takes that for a fork and stops
// looking in the child, which there means in the parent too: no race is reported any more
// from the first child on. With memory of its own the child is what it is taken for.
#include <cstdarg>
#include <dlfcn.h>
#include <sched.h>

extern "C" int clone(int (*work)(void *), void *stack, int flags, void *argument, ...) noexcept
{
    std::va_list more;
    va_start(more, argument);
    void *parentId = va_arg(more, void *);
    void *storage = va_arg(more, void *);
    void *childId = va_arg(more, void *);
    va_end(more);

    if (flags & CLONE_VFORK) // else a thread
        flags &= ~CLONE_VM;
    static const auto next = reinterpret_cast<decltype(&clone)>(::dlsym(RTLD_NEXT, "clone"));
    return next(work, stack, flags, argument, parentId, storage, childId);
}
