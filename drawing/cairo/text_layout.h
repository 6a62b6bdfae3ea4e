#pragma once

#include "drawing.h"
#include "pango_owner.h"

namespace kelvo::drawing {

// A text that is laid out: where it is measured and where it is drawn, it is the same.
class TextLayout
{
public:
    TextLayout(const QString &text, const TextStyle &style);

    // As Library::inkBounds() says.
    QRectF inkBounds() const;

    // With the origin at (`x`, `y`) of a context that counts in points to the right and down.
    void draw(cairo_t *context, double x, double y) const;

private:
    TextStyle m_style;
    PangoOwner<PangoLayout> m_layout;
    double m_baseline = 0; // points below the layout's top
};

} // namespace kelvo::drawing
