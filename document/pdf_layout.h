#pragma once

#include "result.h"

#include <QRectF>
#include <QSizeF>

#include <vector>

// What becomes of a document's pages on the way out. Lengths are points (1/72 inch); places
// count from the upper left corner of the new page as one looks at it.
namespace kelvo {

// A page of the document on a page that goes out.
struct PlacedPage
{
    int page = 0;     // of the document, from 1
    QRectF rect;      // where it lies once it is turned: all that viewers show of it, so with crop
                      // box, /Rotate and /UserUnit counted. It is stretched where the sides differ.
    int rotation = 0; // clockwise: 0, 90, 180 or 270
    QRectF place;     // what is printed of it is in here; the rest is cut off
    friend bool operator==(const PlacedPage &, const PlacedPage &) = default;
};

// A page that goes out.
struct LaidOutPage
{
    QSizeF size;                   // as one looks at it
    std::vector<PlacedPage> pages; // drawn one over the other; empty: a blank page
    // `pages` has one entry, and that page goes out as it is in the document: the rest of this
    // and of the entry says nothing.
    bool isAsItIs = false;
    // Width of a line around each placed page, within both its rect and its place; 0: none.
    double border = 0;
    friend bool operator==(const LaidOutPage &, const LaidOutPage &) = default;
};

// In the order in which they go out. Empty: the document as it is.
using PdfLayout = std::vector<LaidOutPage>;

// Whether that is the document, of `pageCount` pages, as it is.
bool isAsItIs(const PdfLayout &layout, int pageCount);

// OutOfRange where the layout names a page that the document of `pageCount` pages has not, or
// where a size, place or rotation makes no page: sides of 3 (the least that PDF has) to 14,400
// points (200 inches, the most that readers take), places of some extent. About the document
// that messages call `where`.
Result<void> checkLayout(const PdfLayout &layout, int pageCount, const QString &where);

} // namespace kelvo
