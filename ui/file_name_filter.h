#pragma once

#include <QString>

#include <initializer_list>

namespace kelvo {

// A filter of QFileDialog, which takes what stands in brackets for patterns: `words`, and files
// with one of `endings`, in small letters or in capitals; without endings all files.
QString fileNameFilter(QString words, std::initializer_list<const char *> endings);

} // namespace kelvo
