#include "library_versions.h"

#include <cups/cups.h>
#include <expat.h>
#include <gnu/libc-version.h>

namespace kelvo {

LibraryVersions libraryVersions()
{
    // "CUPS/2.4.2 (Linux 6.1.0; x86_64) IPP/2.0" and "expat_2.5.0"
    const QString agent = QString::fromUtf8(cupsUserAgent());
    const QString expat = QString::fromUtf8(XML_ExpatVersion());
    return {
        {QStringLiteral("Qt"), QString::fromUtf8(qVersion())},
        {QStringLiteral("CUPS"), agent.section(u'/', 1, 1).section(u' ', 0, 0)},
        {QStringLiteral("Expat"), expat.section(u'_', 1)},
        {QStringLiteral("GNU C Library"), QString::fromUtf8(gnu_get_libc_version())},
    };
}

} // namespace kelvo
