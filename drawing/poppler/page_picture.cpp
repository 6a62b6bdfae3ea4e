#include "page_picture.h"

#include "cairo_picture.h"

#include "size_limits.h"

#include <QHash>

#include <algorithm>
#include <poppler-qt6.h>

namespace kelvo {

namespace {

// How often poppler asks whether it shall go on: about every eleven operators. Dense pages of
// text have 100. From here on cairo begins anew, which costs a heavy page little.
constexpr int ordinaryCalls = 200;

std::unique_ptr<Poppler::Document> load(const PdfSource &source)
{
    // It tells every oddity on standard error.
    Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
    std::unique_ptr<Poppler::Document> pdf = source.path.isEmpty()
        ? Poppler::Document::loadFromData(source.bytes)
        : Poppler::Document::load(source.path);
    if (!pdf || pdf->isLocked())
        return nullptr;
    pdf->setRenderHint(Poppler::Document::Antialiasing);
    pdf->setRenderHint(Poppler::Document::TextAntialiasing);
    pdf->setPaperColor(Qt::white);
    return pdf;
}

struct BySplash
{
    QImage image; // null: it cannot be drawn
    bool isLeft;  // it is a heavy page, and only a part of it is drawn
};

BySplash drawnBySplash(const Poppler::Page &page, const QSize &pixels, double scale,
                       bool mayBeHeavy)
{
    int calls = 0;
    const auto none = [](const QImage &, const QVariant &) {};
    const auto never = [](const QVariant &) { return false; };
    const auto isHeavy = [](const QVariant &counter) {
        return ++*static_cast<int *>(counter.value<void *>()) > ordinaryCalls;
    };
    const QImage image = page.renderToImage(
        72 * scale, 72 * scale, 0, 0, pixels.width(), pixels.height(), Poppler::Page::Rotate0, none,
        never, mayBeHeavy ? Poppler::Page::ShouldAbortQueryFunc(never) : isHeavy,
        QVariant::fromValue<void *>(&calls));
    return {image, calls > ordinaryCalls};
}

// A Type 3 font's letters are drawings, whose colors are lost with cairo 1.16.
bool hasDrawnLetters(const Poppler::Document &pdf, int page)
{
    const std::unique_ptr<Poppler::FontIterator> fonts(pdf.newFontIterator(page - 1));
    return fonts->hasNext()
        && std::ranges::any_of(fonts->next(), [](const Poppler::FontInfo &font) {
               return font.type() == Poppler::FontInfo::Type3;
           });
}

enum class Way {
    Unknown, // Splash, as far as it is no heavy page
    Cairo,
    Splash, // also of a heavy page
};

} // namespace

struct PagePictures::Private
{
    PdfSource source;
    std::unique_ptr<Poppler::Document> pdf; // null: there are no pages
    std::unique_ptr<CairoPictures> cairo;   // from the first heavy page on
    QHash<int, Way> ways;                   // of heavy pages

    QImage draw(const Poppler::Page &page, int number, const QSize &pixels, double scale,
                bool isOnWhite);
};

QImage PagePictures::Private::draw(const Poppler::Page &page, int number, const QSize &pixels,
                                   double scale, bool isOnWhite)
{
    Way way = ways.value(number, Way::Unknown);
    if (way == Way::Unknown) {
        const BySplash drawn = drawnBySplash(page, pixels, scale, false);
        if (!drawn.isLeft)
            return drawn.image;
        way = hasDrawnLetters(*pdf, number) ? Way::Splash : Way::Cairo;
    }
    QImage image;
    if (way == Way::Cairo) {
        if (!cairo)
            cairo = CairoPictures::open(source);
        if (cairo)
            image = cairo->draw(number, pixels, isOnWhite);
        if (image.isNull())
            way = Way::Splash;
    }
    ways.insert(number, way);
    return way == Way::Cairo ? image : drawnBySplash(page, pixels, scale, true).image;
}

PagePictures::PagePictures(const PdfSource &source)
    : d(std::make_unique<Private>())
{
    d->source = source;
    d->pdf = load(source);
}

PagePictures::~PagePictures() = default;

QImage PagePictures::draw(int page, const QSize &room, bool isOnWhite)
{
    const std::unique_ptr<Poppler::Page> read = d->pdf ? d->pdf->page(page - 1) : nullptr;
    const QSizeF size = read ? read->pageSizeF() : QSizeF(); // points
    const QSize most = room.boundedTo({limits::drawnSide, limits::drawnSide});
    if (size.isEmpty() || most.isEmpty())
        return {};
    const double scale = std::min(most.width() / size.width(), most.height() / size.height());
    const QSize pixels = (size * scale).toSize().expandedTo(QSize(1, 1));
    d->pdf->setRenderHint(Poppler::Document::IgnorePaperColor, !isOnWhite);
    QImage image = d->draw(*read, page, pixels, scale, isOnWhite);
    image.convertTo(isOnWhite ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    return image;
}

} // namespace kelvo
