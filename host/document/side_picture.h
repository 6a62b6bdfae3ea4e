#pragma once

#include "job_description.h"

#include <QImage>
#include <QList>
#include <QRect>
#include <QSize>
#include <QSizeF>

#include <optional>

// What one looks at when one looks at one side of a sheet: pages of the document on white
// paper, and what is drawn over them and under them; or the page that the device sends first.
namespace kelvo {

// All in pixels of the picture, from its top left.
struct SideToDraw
{
    struct Page
    {
        int page = 0;     // of the document, from 1
        QRect rect;       // it is fitted into this; may reach beyond the picture
        int rotation = 0; // clockwise: 0, 90, 180 or 270
        QRect clip = {};  // what is seen of it; null: all
        friend bool operator==(const Page &, const Page &) = default;
    };
    struct OverlayOnPage
    {
        Overlay overlay;
        QSizeF page; // points, what it is drawn for
        QRect rect;  // and fitted into
        int rotation = 0;
        friend bool operator==(const OverlayOnPage &, const OverlayOnPage &) = default;
    };
    QSize pixels;
    QList<Page> pages;
    QList<OverlayOnPage> overlays;
    std::optional<LeadingPage> leadingPage; // fills the side, and nothing else is on it

    bool isBlank() const { return pages.isEmpty() && !leadingPage; }
    friend bool operator==(const SideToDraw &, const SideToDraw &) = default;
};

// Something that is drawn already. Pixel comes upon pixel: nothing is scaled.
struct PictureLayer
{
    QImage image;
    QRect rect; // of the picture; the image lies in its middle
    int rotation = 0;
    QRect clip = {}; // null: all of it is seen
};
struct OverlayLayer
{
    PictureLayer layer; // transparent but for what it draws
    Overlay::Place place = Overlay::Place::Blended;
};

// White paper; what lies behind the pages; the pages; then what is blended with them or lies
// above, in its order. What is blended darkens each color by its own, as inks do. Where
// something lies behind them, the pages must have no paper of their own.
QImage composedSide(const QSize &pixels, QList<PictureLayer> pages, QList<OverlayLayer> overlays);

} // namespace kelvo
