#pragma once

#include "result.h"

class QPDF;

namespace kelvo::documents {

// Writes `pdf`, never encrypted, to a new file at `target`. Throws what libqpdf
// throws where the document is at fault; NotWritable for a disk that filled up.
Result<void> writePdf(QPDF &pdf, const QString &target);

} // namespace kelvo::documents
