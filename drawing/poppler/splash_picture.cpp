#include "splash_picture.h"

#include <QFile>

#include <algorithm>
#include <poppler-document.h>
#include <poppler-font.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>
#include <span>

namespace kelvo {

namespace {

using Pixels = std::span<quint32>;

constexpr quint32 opaque = 0xff000000;

Pixels pixelsOf(QByteArray &bytes)
{
    return {reinterpret_cast<quint32 *>(bytes.data()), std::size_t(bytes.size()) / 4};
}

// Opaque, as drawing::Picture has them; empty when it cannot be drawn.
QByteArray drawn(const poppler::page &page, const QSize &pixels, const QSizeF &perPoint,
                 quint32 paper)
{
    poppler::page_renderer renderer;
    renderer.set_render_hints(poppler::page_renderer::antialiasing
                              | poppler::page_renderer::text_antialiasing);
    renderer.set_image_format(poppler::image::format_argb32);
    renderer.set_paper_color(paper);
    const poppler::image image =
        renderer.render_page(&page, 72 * perPoint.width(), 72 * perPoint.height(), 0, 0,
                             pixels.width(), pixels.height());
    if (!image.is_valid() || QSize(image.width(), image.height()) != pixels)
        return {};
    QByteArray bytes;
    bytes.reserve(qsizetype(4) * pixels.width() * pixels.height());
    for (int y = 0; y < pixels.height(); ++y)
        bytes.append(image.const_data() + qsizetype(y) * image.bytes_per_row(), 4 * pixels.width());
    for (quint32 &pixel : pixelsOf(bytes))
        pixel |= opaque;
    return bytes;
}

// What is the same on white as on black paper is opaque, and the more the two differ, the more
// shows through. On black the colors are multiplied by that already.
void removePaper(Pixels onBlack, Pixels onWhite)
{
    for (std::size_t index = 0; index < onBlack.size(); ++index) {
        quint32 alpha = 0;
        for (const int shift : {0, 8, 16}) {
            const int black = onBlack[index] >> shift & 0xff;
            const int white = onWhite[index] >> shift & 0xff;
            alpha = std::max(alpha, quint32(std::clamp(255 - white + black, black, 255)));
        }
        onBlack[index] = (onBlack[index] & ~opaque) | alpha << 24;
    }
}

std::unique_ptr<poppler::document> load(const PdfSource &source)
{
    // It tells every oddity on standard error.
    poppler::set_debug_error_function([](const std::string &, void *) {}, nullptr);
    std::unique_ptr<poppler::document> pdf(
        source.path.isEmpty()
            ? poppler::document::load_from_raw_data(source.bytes.constData(),
                                                    int(source.bytes.size()))
            : poppler::document::load_from_file(QFile::encodeName(source.path).toStdString()));
    return pdf && !pdf->is_locked() ? std::move(pdf) : nullptr;
}

} // namespace

SplashPictures::SplashPictures(const PdfSource &source)
    : m_source(source)
    , m_pdf(load(m_source))
{
}

SplashPictures::~SplashPictures() = default;

bool SplashPictures::hasDrawnLetters(int page) const
{
    const std::unique_ptr<poppler::font_iterator> fonts(
        m_pdf ? m_pdf->create_font_iterator(page - 1) : nullptr);
    return fonts && fonts->has_next()
        && std::ranges::any_of(fonts->next(), [](const poppler::font_info &font) {
               return font.type() == poppler::font_info::type3;
           });
}

drawing::Picture SplashPictures::draw(int page, const QSize &pixels, const QSizeF &perPoint,
                                      bool isOnWhite)
{
    const std::unique_ptr<poppler::page> read(m_pdf ? m_pdf->create_page(page - 1) : nullptr);
    if (!read)
        return {};
    QByteArray onWhite = drawn(*read, pixels, perPoint, 0xffffffff);
    if (isOnWhite)
        return onWhite.isEmpty() ? drawing::Picture() : drawing::Picture{pixels, onWhite};
    QByteArray onBlack = drawn(*read, pixels, perPoint, opaque);
    if (onWhite.isEmpty() || onBlack.isEmpty())
        return {};
    removePaper(pixelsOf(onBlack), pixelsOf(onWhite));
    return {pixels, onBlack};
}

} // namespace kelvo
