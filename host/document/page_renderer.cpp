#include "page_renderer.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace kelvo {

namespace {

struct Request
{
    Document document;
    OverlayPainter overlayPainter;
    LeadingPagePainter leadingPagePainter;
    SideToDraw side;
    std::shared_ptr<std::atomic_bool> isAbandoned;
};

DrawnSide undrawn(const SideToDraw &side)
{
    const qsizetype places = side.leadingPage ? 1 : side.pages.size();
    return {{}, QList<PageProblem>(places, PageProblem::NotDrawable), {}};
}

// The size in which a page is drawn that is turned only then.
QSize beforeTurn(const QRect &rect, int rotation)
{
    return rotation % 180 == 0 ? rect.size() : rect.size().transposed();
}

// Pictures of what the last side has: the next one often has the same.
template <typename Key>
class KeptImages
{
public:
    // Null: there is none.
    QImage find(const Key &key)
    {
        const auto kept = std::ranges::find(m_images, key, &Kept::key);
        if (kept == m_images.end())
            return {};
        kept->isUsed = true;
        return kept->image;
    }
    void keep(const Key &key, const QImage &image) { m_images.push_back({key, image, true}); }
    void forgetUnused()
    {
        std::erase_if(m_images, [](Kept &kept) { return !std::exchange(kept.isUsed, false); });
    }
    void clear() { m_images.clear(); }

private:
    struct Kept
    {
        Key key;
        QImage image;
        bool isUsed;
    };
    std::vector<Kept> m_images;
};

struct PageKey
{
    int page;
    QSize pixels;
    PagePaper paper;
    friend bool operator==(const PageKey &, const PageKey &) = default;
};

struct OverlayKey
{
    QString name;
    quint64 version;
    QSizeF page;
    QSize pixels;
    friend bool operator==(const OverlayKey &, const OverlayKey &) = default;
};

struct LeadingPageKey
{
    LeadingPage page;
    QSize pixels;
    friend bool operator==(const LeadingPageKey &, const LeadingPageKey &) = default;
};

// Draws one side after the other, on the renderer's thread.
class SideDrawer
{
public:
    DrawnSide draw(const Request &request);

private:
    void load(const Document &document);
    DrawnPage drawPage(const Request &request, const SideToDraw::Page &page, PagePaper paper);
    QImage drawOverlay(const Request &request, const SideToDraw::OverlayOnPage &on);
    DrawnSide drawPages(const Request &request);
    DrawnSide drawLeadingPage(const Request &request);

    Document m_document; // keeps the file while it is read
    std::unique_ptr<PageDrawing> m_drawing;
    KeptImages<PageKey> m_pages;
    KeptImages<OverlayKey> m_overlays;
    KeptImages<LeadingPageKey> m_leadingPages;
};

void SideDrawer::load(const Document &document)
{
    if (m_document.pdfPath() == document.pdfPath())
        return;
    m_document = document;
    m_pages.clear();
    m_drawing = document.isNull() ? nullptr : std::make_unique<PageDrawing>(document.pdfPath());
}

DrawnPage SideDrawer::drawPage(const Request &request, const SideToDraw::Page &page,
                               PagePaper paper)
{
    const PageKey key{page.page, beforeTurn(page.rect, page.rotation), paper};
    if (const QImage kept = m_pages.find(key); !kept.isNull())
        return {kept};
    const auto isAbandoned = [&request] { return request.isAbandoned->load(); };
    DrawnPage drawn = m_drawing->draw(page.page, key.pixels, isAbandoned, paper);
    if (!drawn.image.isNull())
        m_pages.keep(key, drawn.image);
    return drawn;
}

QImage SideDrawer::drawOverlay(const Request &request, const SideToDraw::OverlayOnPage &on)
{
    const OverlayKey key{on.overlay.name, on.overlay.version, on.page,
                         beforeTurn(on.rect, on.rotation)};
    if (const QImage kept = m_overlays.find(key); !kept.isNull())
        return kept;
    if (!request.overlayPainter || *request.isAbandoned)
        return {};
    const QImage image =
        request.overlayPainter(on.overlay, on.page, key.pixels, *request.isAbandoned);
    if (!image.isNull())
        m_overlays.keep(key, image);
    return image;
}

DrawnSide SideDrawer::draw(const Request &request)
{
    load(request.document);
    if (request.side.leadingPage)
        return drawLeadingPage(request);
    return m_drawing ? drawPages(request) : undrawn(request.side);
}

DrawnSide SideDrawer::drawLeadingPage(const Request &request)
{
    const LeadingPageKey key{*request.side.leadingPage, request.side.pixels};
    QImage image = m_leadingPages.find(key);
    if (image.isNull() && request.leadingPagePainter && !*request.isAbandoned) {
        image = request.leadingPagePainter(key.page, key.pixels, *request.isAbandoned);
        if (!image.isNull())
            m_leadingPages.keep(key, image);
    }
    m_leadingPages.forgetUnused();
    if (image.isNull())
        return undrawn(request.side);
    const QRect whole(QPoint(), key.pixels);
    return {composedSide(key.pixels, {{image, whole}}, {}), {PageProblem::None}, {}};
}

DrawnSide SideDrawer::drawPages(const Request &request)
{
    const bool isAnyBehind =
        std::ranges::any_of(request.side.overlays, [](const SideToDraw::OverlayOnPage &on) {
            return on.overlay.place == Overlay::Place::Behind;
        });

    DrawnSide drawn;
    QList<PictureLayer> pages;
    for (const SideToDraw::Page &page : request.side.pages) {
        const DrawnPage one =
            drawPage(request, page, isAnyBehind ? PagePaper::None : PagePaper::White);
        drawn.problems << one.problem;
        if (!one.image.isNull())
            pages << PictureLayer{one.image, page.rect, page.rotation, page.clip};
    }
    QList<OverlayLayer> overlays;
    for (const SideToDraw::OverlayOnPage &on : request.side.overlays) {
        const QImage image = drawOverlay(request, on);
        if (!image.isNull())
            overlays << OverlayLayer{{image, on.rect, on.rotation}, on.overlay.place};
        else if (!drawn.lackingOverlays.contains(on.overlay.name))
            drawn.lackingOverlays << on.overlay.name;
    }
    if (!pages.isEmpty())
        drawn.picture = composedSide(request.side.pixels, pages, overlays);
    m_pages.forgetUnused();
    m_overlays.forgetUnused();
    return drawn;
}

} // namespace

// The standard's thread and locks, not Qt's: those the thread sanitizer sees.
struct PageRenderer::Private
{
    Document document; // the window's side
    OverlayPainter overlayPainter;
    LeadingPagePainter leadingPagePainter;
    // Of the newest request; null when nothing is wanted. What is no longer wanted stops
    // being drawn.
    std::shared_ptr<std::atomic_bool> isAbandoned;
    std::thread thread;

    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Request> next; // under the mutex
    bool isEnding = false;       // under the mutex

    void abandon()
    {
        if (isAbandoned)
            *isAbandoned = true;
        isAbandoned.reset();
    }

    // False when the system has no thread to give.
    bool provideThread(PageRenderer *renderer)
    {
        if (thread.joinable())
            return true;
        try {
            thread = std::thread([this, renderer] { work(renderer); });
            return true;
        } catch (const std::system_error &) {
            return false;
        }
    }

    // Empty: there is nothing more to do.
    std::optional<Request> waitForRequest()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return next || isEnding; });
        return isEnding ? std::nullopt : std::exchange(next, std::nullopt);
    }

    void work(PageRenderer *renderer)
    {
        SideDrawer drawer;
        while (const auto request = waitForRequest())
            renderer->tell(request->isAbandoned, drawer.draw(*request));
    }
};

PageRenderer::PageRenderer(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

PageRenderer::~PageRenderer()
{
    setDocument({}); // stops the page being drawn
    if (!d->thread.joinable())
        return;
    {
        const std::lock_guard lock(d->mutex);
        d->isEnding = true;
    }
    d->changed.notify_one();
    d->thread.join();
}

void PageRenderer::setDocument(const Document &document)
{
    d->document = document;
    d->abandon();
    const std::lock_guard lock(d->mutex);
    d->next.reset();
}

void PageRenderer::setOverlayPainter(OverlayPainter painter)
{
    d->overlayPainter = std::move(painter);
}

void PageRenderer::setLeadingPagePainter(LeadingPagePainter painter)
{
    d->leadingPagePainter = std::move(painter);
}

void PageRenderer::render(const SideToDraw &side)
{
    d->abandon();
    d->isAbandoned = std::make_shared<std::atomic_bool>(false);
    if (!d->provideThread(this)) {
        // The next side may be luckier.
        tell(d->isAbandoned, undrawn(side));
        return;
    }
    {
        const std::lock_guard lock(d->mutex);
        d->next =
            Request{d->document, d->overlayPainter, d->leadingPagePainter, side, d->isAbandoned};
    }
    d->changed.notify_one();
}

// From any thread. Said on our own, where a newer request can no longer slip in, and
// never from within render(). There the flag only stands for its request: this call may be
// done with here after the sender has dropped all that it holds.
void PageRenderer::tell(const std::shared_ptr<std::atomic_bool> &isAbandoned, const DrawnSide &side)
{
    QMetaObject::invokeMethod(
        this,
        [this, isAbandoned, side] {
            if (isAbandoned == d->isAbandoned)
                emit rendered(side);
        },
        Qt::QueuedConnection);
}

} // namespace kelvo
