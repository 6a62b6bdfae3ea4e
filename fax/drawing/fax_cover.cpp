#include "fax_cover.h"

#include "page_writing.h"
#include "watermark_store.h"

namespace kelvo {

namespace {

// Points.
constexpr double margin = 31;
constexpr double headroom = 72;      // above the first line, within the margins
constexpr double gapAfterBlock = 12; // after the sender and the recipients
constexpr double textSize = 12;

// Red, green and blue of 65,535: nearly black.
constexpr double shade = 255.0 / 65'535;

drawing::TextStyle bodyStyle()
{
    return {{}, textSize, {shade, shade, shade, 1}};
}

drawing::TextStyle labelStyle()
{
    drawing::TextStyle style = bodyStyle();
    style.isBold = true;
    return style;
}

// Of rectangles top() is the lower edge, and bottom() the upper one: y counts up here.
QRectF within(const QRectF &page)
{
    return page.adjusted(margin, margin, -margin, -margin);
}

void drawBlock(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
               const QString &label, const QString &text, CoverSheetDrawn &drawn)
{
    const double width = content.width();
    const bool isWhole = width > 0
        && RenderWrappingText(*context.wrapText(label, labelStyle(), width), content, x, y, drawn)
        && RenderWrappingText(*context.wrapText(text, bodyStyle(), width), content, x, y, drawn);
    drawn.isCut |= !isWhole;
}

void addMissing(const QString &characters, CoverSheetDrawn &drawn)
{
    for (const char32_t character : characters.toUcs4()) {
        const QString missing = QString::fromUcs4(&character, 1);
        if (!drawn.missingCharacters.contains(missing))
            drawn.missingCharacters += missing;
    }
}

} // namespace

bool RenderWrappingText(drawing::WrappedText &layout, const QRectF &rectangle, Fixed &x, Fixed &y,
                        CoverSheetDrawn &drawn)
{
    const Fixed bottom = fixedFrom(rectangle.top());
    x = fixedFrom(rectangle.left());
    while (const std::optional<drawing::TextLine> line = layout.nextLine()) {
        const Fixed baseline = y - fixedFrom(line->ascent);
        const Fixed below = baseline - fixedFrom(line->descent);
        if (below < bottom)
            return false;
        layout.drawLine({pointsFrom(x), pointsFrom(baseline)});
        addMissing(line->missingCharacters, drawn);
        y = below;
    }
    return true;
}

void DrawFaxCoverSender(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                        const QString &label, const QString &text, CoverSheetDrawn &drawn)
{
    drawBlock(context, content, x, y, label, text, drawn);
}

void DrawFaxCoverRecipients(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                            const QString &label, const QString &text, CoverSheetDrawn &drawn)
{
    drawBlock(context, content, x, y, label, text, drawn);
}

void DrawFaxCoverNotes(drawing::Page &context, const QRectF &content, Fixed &x, Fixed &y,
                       const QString &label, const QString &text, CoverSheetDrawn &drawn)
{
    drawBlock(context, content, x, y, label, text, drawn);
}

Result<CoverSheetDrawn> DrawFaxCover(_MemoryConsumer &consumer, const QRectF &page,
                                     const QString &senderLabel, const QString &senderText,
                                     const QString &recipientsLabel, const QString &recipientsText,
                                     const QString &notesLabel, const QString &notesText,
                                     _WatermarkData *watermark, const PictureReader &pictures)
{
    CoverSheetDrawn drawn;
    const auto draw = [&](const drawing::Library &library, drawing::Page &context) {
        const QRectF whole(QPointF(), page.size());
        const QRectF content = within(whole);
        context.fill({1, 1, 1, 1});
        Fixed x = fixedFrom(content.left());
        Fixed y = fixedFrom(content.bottom() - headroom);
        if (!senderText.isEmpty()) {
            DrawFaxCoverSender(context, content, x, y, senderLabel, senderText, drawn);
            y -= fixedFrom(gapAfterBlock);
        }
        if (!recipientsText.isEmpty()) {
            DrawFaxCoverRecipients(context, content, x, y, recipientsLabel, recipientsText, drawn);
            y -= fixedFrom(gapAfterBlock);
        }
        if (!notesText.isEmpty())
            DrawFaxCoverNotes(context, content, x, y, notesLabel, notesText, drawn);
        if (watermark) {
            context.setOpacity(watermark->density / 100.0);
            DrawWatermark(library, context, whole, watermark, pictures);
        }
    };
    if (const Result<void> written = writePage(page.size(), consumer, draw); !written)
        return written.error();
    return drawn;
}

Result<CoverSheetDrawn> drawCoverSheet(const CoverSheetContent &content,
                                       const PictureReader &pictures, _MemoryConsumer &consumer)
{
    _WatermarkData image;
    if (!content.image.isEmpty())
        loadWatermarkData(kFaxImagesFile, content.image, &image);
    return DrawFaxCover(consumer, QRectF(QPointF(), content.size), content.senderLabel,
                        content.senderText, content.recipientsLabel, content.recipientsText,
                        content.notesLabel, content.notesText, &image, pictures);
}

} // namespace kelvo
