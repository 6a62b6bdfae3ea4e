#include "watermark_preview.h"

#include "page_drawing.h"
#include "page_image.h"
#include "paper_view.h"
#include "texts.h"

#include <utility>

namespace kelvo {

namespace {

QString picturePathOf(const _WatermarkData &watermark)
{
    const bool isPicture = watermark.textString[0] == '\0' && watermark.filename[0] != '\0';
    return isPicture ? textOf(watermark.filePath) : QString();
}

} // namespace

WatermarkPreview::WatermarkPreview(PaperView *view)
    : QObject(view)
    , m_view(view)
{
    // CreateMemoryConsumer() fails only without memory, and drawing says so then.
    (void)CreateMemoryConsumer(kPreviewCapacity, &m_pdf);
    connect(&m_picture, &PictureReading::changed, this, [this] { takePicture(); });
    connect(view, &PaperView::pixelsChanged, this, [this] {
        showDrawn();
        drawPageBelow();
    });
}

void WatermarkPreview::renderWatermarkIfNecessary(const _WatermarkData &watermark, bool isForced)
{
    const _WatermarkData before = std::exchange(m_shown, watermark);
    const QSizeF paper(watermark.paperWidth, watermark.paperHeight);
    const bool isOther = !m_hasShown || isForced || needsRedraw(before, watermark)
        || picturePathOf(watermark) != m_picture.path()
        || paper != QSizeF(before.paperWidth, before.paperHeight);
    if (!isOther) {
        m_shown.xPos = before.xPos;
        m_shown.yPos = before.yPos;
        return;
    }
    m_hasShown = true;
    m_view->setPaper(paper);
    m_picture.read(picturePathOf(m_shown));
    draw();
}

void WatermarkPreview::setPictureOpacity(double opacity)
{
    m_pictureOpacity = opacity;
    showDrawn();
}

void WatermarkPreview::setPageBelow(const DocumentPage &page)
{
    m_pageBelow = page;
    m_pagePixels = {};
    m_drawing.drop();
    m_view->setPage({});
    drawPageBelow();
    tellUnfinished();
}

void WatermarkPreview::takePicture()
{
    tellUnfinished();
    if (m_picture.state() == PictureState::Read || m_picture.state() == PictureState::Unreadable)
        draw();
}

void WatermarkPreview::draw()
{
    const PictureReader readAlready = [this](const QString &path) {
        return path == m_picture.path() ? m_picture.picture() : ImportedPicture();
    };
    m_drawn =
        drawWatermarkPage(&m_shown, m_view->paper(), WatermarkGround::White, readAlready, m_pdf);
    showDrawn();
}

// What is drawn, in the pixels of the view.
void WatermarkPreview::showDrawn()
{
    if (!m_hasShown)
        return;
    Result<QImage> mark = m_drawn ? imageOfPage(m_pdf, m_view->pixels()) : m_drawn.error();
    QString note = mark ? QString() : mark.error().detail;
    if (m_picture.state() == PictureState::Reading)
        note = translate("Watermark", "Reading the picture…");
    else if (m_picture.state() == PictureState::Unreadable)
        note = translate("Watermark", "The picture cannot be shown.");
    m_view->setMark(mark ? mark.value() : QImage(),
                    picturePathOf(m_shown).isEmpty() ? 1 : m_pictureOpacity);
    m_view->setNote(note);
}

// The picture that is there stays until the sharper one comes.
void WatermarkPreview::drawPageBelow()
{
    const QSize pixels = m_view->pixels();
    if (m_pageBelow.pdfPath.isEmpty() || pixels.isEmpty() || pixels == m_pagePixels)
        return;
    m_pagePixels = pixels;
    // Without a thread the paper stays white, and the watermark can be seen all the same.
    (void)m_drawing.start([this, page = m_pageBelow, pixels](const std::atomic_bool &isUnwanted) {
        const auto isAbandoned = [&isUnwanted] { return isUnwanted.load(); };
        const DrawnPage drawn = PageDrawing(page.pdfPath).draw(page.page, pixels, isAbandoned);
        return [this, image = drawn.image] {
            m_view->setPage(image);
            tellUnfinished();
        };
    });
    tellUnfinished();
}

void WatermarkPreview::tellUnfinished()
{
    m_view->setUnfinished(m_picture.isBusy() || m_drawing.isBusy());
}

} // namespace kelvo
