#include "watermark_preview.h"

#include "page_drawing.h"
#include "paper_view.h"
#include "texts.h"

#include <utility>

namespace kelvo {

namespace {

// The same pixels; `bytes` may go.
QImage imageOf(const QSize &size, const QByteArray &bytes)
{
    return QImage(reinterpret_cast<const uchar *>(bytes.constData()), size.width(), size.height(),
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

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
        || picturePathOf(watermark) != m_picturePath
        || paper != QSizeF(before.paperWidth, before.paperHeight);
    if (!isOther) {
        m_shown.xPos = before.xPos;
        m_shown.yPos = before.yPos;
        return;
    }
    m_hasShown = true;
    m_view->setPaper(paper);
    readPicture();
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

void WatermarkPreview::readPicture()
{
    const QString path = picturePathOf(m_shown);
    if (path == m_picturePath)
        return;
    m_picturePath = path;
    m_picture = {};
    m_reading.drop();
    if (path.isEmpty()) {
        setPictureState(PictureState::None);
        return;
    }
    const bool isStarted = m_reading.start([this, path](const std::atomic_bool &isUnwanted) {
        return [this, read = importPicture(path, &isUnwanted)] {
            if (read)
                m_picture = read.value();
            else
                m_pictureProblem = read.error();
            setPictureState(read ? PictureState::Read : PictureState::Unreadable);
            draw();
        };
    });
    if (!isStarted) {
        m_pictureProblem = {Error::Code::NotReadable, path,
                            translate("Watermark",
                                      "the system has no thread to read it on; close programs and "
                                      "choose it again")};
    }
    setPictureState(isStarted ? PictureState::Reading : PictureState::Unreadable);
}

void WatermarkPreview::setPictureState(PictureState state)
{
    m_pictureState = state;
    tellUnfinished();
    emit pictureChanged();
}

void WatermarkPreview::draw()
{
    const PictureReader readAlready = [this](const QString &path) {
        return path == m_picturePath ? m_picture : ImportedPicture();
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
    QString note;
    QImage mark;
    if (!m_drawn) {
        note = m_drawn.error().detail;
    } else if (const QSize pixels = m_view->pixels(); !pixels.isEmpty()) {
        // The PDF alone: what stands behind it in the buffer means nothing.
        const auto shown = drawing::showPdf(
            QByteArray::fromRawData(m_pdf.buffer.data(), qsizetype(m_pdf.position)), pixels, true);
        if (shown)
            mark = imageOf(shown.value().size, shown.value().bytes);
        else
            note = shown.error().detail;
    }
    if (m_pictureState == PictureState::Reading)
        note = translate("Watermark", "Reading the picture…");
    else if (m_pictureState == PictureState::Unreadable)
        note = translate("Watermark", "The picture cannot be shown.");
    m_view->setMark(mark, picturePathOf(m_shown).isEmpty() ? 1 : m_pictureOpacity);
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
    m_view->setUnfinished(m_reading.isBusy() || m_drawing.isBusy());
}

} // namespace kelvo
