#include "secrets.h"

#include <cstring>
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

void overwrite(QByteArray &bytes)
{
    if (bytes.isDetached())
        ::explicit_bzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    bytes.clear();
}

void overwrite(QString &text)
{
    if (text.isDetached())
        ::explicit_bzero(text.data(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
    text.clear();
}

} // namespace kelvo
