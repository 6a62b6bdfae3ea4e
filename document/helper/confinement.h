#pragma once

#include <QStringList>

namespace kelvo::documents {

// All hold for the rest of the process, whatever it reads. The first line is that a
// helper follows no names of files in documents; this is the second, for the one that is
// made to. Where the kernel has Landlock (Debian 12 has), nothing can be opened, made,
// removed or run any more, and no connection be made.

// No exception, also where there is no Landlock: the process may have no more files,
// folders and connections than it has now. What must be loaded is loaded before.
void confineToOpenFiles();

// But what lies below `toRead`, files or folders, for reading, and below `toWrite` (empty:
// nothing) for reading and writing. For what needs files that are known late, as texts
// need fonts. Without Landlock it does nothing. What is not there is not allowed.
void confineTo(const QStringList &toRead, const QString &toWrite = {});

} // namespace kelvo::documents
