#pragma once

#include "picture_import.h"

#include <atomic>

namespace kelvo {

// As importPicture(), but a null one where it cannot be read or was cancelled. The last one
// stays here and is not read again until its file is another one, nor is one that cannot be
// read tried again. Any thread; several may read at once.
ImportedPicture lastPicture(const QString &path, const std::atomic_bool *cancelled = nullptr);

} // namespace kelvo
