#pragma once

#include <qpdf/QPDFMatrix.hh>
#include <qpdf/QPDFPageObjectHelper.hh>

#include <QSizeF>

namespace kelvo::documents {

// What viewers show of a page.
struct ShownPage
{
    QPDFObjectHandle::Rectangle box; // in the page's own coordinates, lower corner first
    double unit = 1;                 // points
    int turn = 0;                    // clockwise: 0, 90, 180 or 270

    QSizeF size() const; // points, as one looks at it
    // From the page's coordinates to points from the lower left corner of what is shown.
    QPDFMatrix toShown() const;
};

// The crop box within the media box; US Letter for a page without a box of sense, as viewers have
// it. Throws what libqpdf throws.
ShownPage shownPage(QPDFPageObjectHelper page);

// What turns `box` clockwise and makes it larger by `scale`, with its lower left corner, as it
// is seen then, at the origin.
QPDFMatrix turnedToOrigin(const QPDFObjectHandle::Rectangle &box, double scale, int turn);

} // namespace kelvo::documents
