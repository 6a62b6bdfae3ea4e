#pragma once

#include "pdf_layout.h"

#include <qpdf/QPDF.hh>

namespace kelvo::documents {

// Lays the pages of `pdf` out and leaves nothing of those that are not printed; an empty layout,
// and one of the document as it is, leave all as it is. Throws what libqpdf throws, and for a page
// that is not there.
void layOutPages(QPDF &pdf, const PdfLayout &layout);

} // namespace kelvo::documents
