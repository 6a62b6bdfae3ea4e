#include "secrets.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace kelvo {

void protectSecrets()
{
    // The limit is for the children, which are dumpable again after their exec.
    constexpr rlimit none = {0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    ::prctl(PR_SET_DUMPABLE, 0);
}

} // namespace kelvo
