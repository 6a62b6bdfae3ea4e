#pragma once

#include <QString>

namespace kelvo::bench {

// A long report, A4: each page has a text of its own, 1.5 MB in all for 500 of them. Whether it
// was written.
bool writeReport(const QString &path, int pages);

} // namespace kelvo::bench
