#include "cover_sheet_preview.h"

#include "fax_cover.h"
#include "fax_texts.h"
#include "page_image.h"
#include "paper_view.h"
#include "string_table.h"
#include "watermark_store.h"

#include <QEvent>
#include <QStringList>

#include <algorithm>

namespace kelvo {

// What comes of one.
struct CoverSheetDrawing
{
    Result<CoverSheetDrawn> drawn = CoverSheetDrawn();
    Result<QImage> page = QImage();
    bool isImageLost = false; // the store has none of that name
    StampedFile picture;      // of the image; no path: none
};

namespace {

// The picture of a sheet, as far as it is read.
struct KnownPicture
{
    StampedFile file;
    ImportedPicture picture;
};

// "U+E123, U+1F600": whoever has no font for a character cannot read it here either.
QString codesOf(const QString &characters)
{
    constexpr qsizetype most = 5;
    QStringList codes;
    const auto points = characters.toUcs4();
    for (qsizetype i = 0; i < std::min(most, points.size()); ++i)
        codes << QStringLiteral("U+") + QString::number(points[i], 16).toUpper();
    if (points.size() > most)
        codes << QStringLiteral("…");
    return codes.join(QStringLiteral(", "));
}

// On any thread.
CoverSheetDrawing drawn(const CoverSheetContent &content, const KnownPicture &known,
                        const QSize &pixels)
{
    CoverSheetDrawing drawing;
    const PictureReader readAlready = [&](const QString &path) {
        drawing.picture = {path, stampOf(path)};
        return drawing.picture == known.file ? known.picture : ImportedPicture();
    };
    _MemoryConsumer page;
    // It fails only without memory, and drawing says so then.
    (void)CreateMemoryConsumer(kPreviewCapacity, &page);
    drawing.drawn = drawCoverSheet(content, readAlready, page);
    drawing.page = drawing.drawn ? imageOfPage(page, pixels) : drawing.drawn.error();
    _WatermarkData image;
    drawing.isImageLost =
        !content.image.isEmpty() && !loadWatermarkData(kFaxImagesFile, content.image, &image);
    return drawing;
}

} // namespace

CoverSheetPreview::CoverSheetPreview(CFBundleRef bundle, PaperView *view)
    : QObject(view)
    , m_bundle(bundle)
    , m_view(view)
{
    view->installEventFilter(this);
    connect(view, &PaperView::pixelsChanged, this, [this] { draw(); });
    connect(&m_picture, &PictureReading::changed, this, [this] { takePicture(); });
}

void CoverSheetPreview::show(const CoverSheetContent &content)
{
    m_content = content;
    m_hasContent = true;
    m_view->setPaper(content.size);
    draw();
}

bool CoverSheetPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show)
        draw();
    return QObject::eventFilter(watched, event);
}

void CoverSheetPreview::draw()
{
    if (!m_hasContent || !m_view->isVisible())
        return;
    const KnownPicture known{{m_picture.path(), m_pictureStamp}, m_picture.picture()};
    const bool isStarted = m_drawing.start(
        [this, content = m_content, known, pixels = m_view->pixels()](const std::atomic_bool &) {
            return [this, drawing = drawn(content, known, pixels)] { take(drawing); };
        });
    if (!isStarted)
        m_view->setNote(faxText(m_bundle, "Cover Preview No Thread"));
    tellUnfinished();
}

void CoverSheetPreview::take(const CoverSheetDrawing &drawing)
{
    m_view->setMark(drawing.page ? drawing.page.value() : QImage());
    m_view->setNote(drawing.page ? QString() : drawing.page.error().detail);
    if (drawing.picture.stamp != m_pictureStamp)
        m_picture.forget();
    m_pictureStamp = drawing.picture.stamp;
    m_picture.read(drawing.picture.path); // and then it is drawn once more
    if (m_picture.isBusy())
        m_view->setNote(faxText(m_bundle, "Cover Preview Reading"));
    say(drawing);
    tellUnfinished();
}

void CoverSheetPreview::takePicture()
{
    tellUnfinished();
    if (m_picture.state() == PictureState::Read || m_picture.state() == PictureState::Unreadable)
        draw();
}

void CoverSheetPreview::say(const CoverSheetDrawing &drawing)
{
    QStringList sentences;
    if (drawing.drawn && drawing.drawn.value().isCut)
        sentences << faxText(m_bundle, "Cover Preview Cut");
    if (drawing.drawn && !drawing.drawn.value().missingCharacters.isEmpty())
        sentences << formatted(faxText(m_bundle, "Cover Preview No Font"),
                               {codesOf(drawing.drawn.value().missingCharacters)});
    if (drawing.isImageLost)
        sentences << formatted(faxText(m_bundle, "Cover Preview Image Lost"), {m_content.image});
    else if (m_picture.state() == PictureState::Unreadable)
        sentences << formatted(faxText(m_bundle, "Cover Preview Image Unreadable"),
                               {m_picture.problem().text()});
    const QString notice = sentences.join(u'\n');
    if (notice == m_notice)
        return;
    m_notice = notice;
    emit noticed(notice);
}

void CoverSheetPreview::tellUnfinished()
{
    m_view->setUnfinished(m_drawing.isBusy() || m_picture.isBusy());
}

} // namespace kelvo
