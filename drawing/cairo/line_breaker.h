#pragma once

#include "drawing.h"
#include "pango_owner.h"

#include <optional>

namespace kelvo::drawing {

// Breaks a text into lines, as WrappedText says, and lays out no more of it than that takes.
class LineBreaker
{
public:
    // `width` in points, up to longestSide.
    LineBreaker(const QString &text, const TextStyle &style, double width);

    std::optional<TextLine> next();

    // The line that next() gave last, from the left end of its baseline on.
    void draw(cairo_t *context, double x, double y) const;

private:
    // Of a paragraph: all of it, or as much as a few lines need.
    struct Part
    {
        qsizetype begin = 0, end = 0; // in the text
        bool endsParagraph = false;
        bool endsLine = false; // so it does, or there is more than a line can have
        PangoOwner<PangoLayout> layout;
        QString shown; // what stands in the layout: as long, without what no font has
        int lines = 0; // that stay as they are, whatever follows
        int current = -1;
    };
    Part partFrom(qsizetype begin, qsizetype length) const;
    void layOut(Part &part) const;
    bool beginPart();
    QString missingIn(PangoLayoutLine *line) const;

    QString m_text;
    double m_width;
    PangoOwner<PangoContext> m_context;
    PangoOwner<PangoFontDescription> m_font;
    Part m_part;
    qsizetype m_next = 0;                      // where the next part begins
    std::optional<PangoDirection> m_direction; // of the paragraph that a part has begun
};

} // namespace kelvo::drawing
