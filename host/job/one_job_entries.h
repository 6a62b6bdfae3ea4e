#pragma once

#include <QStringList>

namespace kelvo {

// Entries of the print settings that belong to one job: what it is called, its pages, until when
// it is held. No preset keeps them, and they are no change of one.
const QStringList &oneJobEntries();

} // namespace kelvo
