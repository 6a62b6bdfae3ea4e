#include "page_renderer.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

namespace kelvo {

namespace {

struct Request
{
    quint64 number = 0;
    Document document;
    int page = 0;
    QSize pixels;
};

} // namespace

// The standard's thread and locks, not Qt's: those the thread sanitizer sees.
struct PageRenderer::Private
{
    Document document; // the window's side
    std::thread thread;

    std::mutex mutex;
    std::condition_variable changed;
    std::optional<Request> next; // under the mutex
    bool isEnding = false;       // under the mutex
    // The newest request; a page that is no longer wanted stops being drawn.
    std::atomic<quint64> wanted = 0;

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
        Document loaded; // keeps the file while it is read
        std::unique_ptr<PageDrawing> drawing;
        while (const auto request = waitForRequest()) {
            if (loaded.pdfPath() != request->document.pdfPath()) {
                loaded = request->document;
                drawing =
                    loaded.isNull() ? nullptr : std::make_unique<PageDrawing>(loaded.pdfPath());
            }
            const auto isAbandoned = [this, &request] { return wanted != request->number; };
            const DrawnPage drawn = drawing
                ? drawing->draw(request->page, request->pixels, isAbandoned)
                : DrawnPage{{}, PageProblem::NotDrawable};
            renderer->tell(request->number, request->page, drawn);
        }
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
    ++d->wanted;
    const std::lock_guard lock(d->mutex);
    d->next.reset();
}

void PageRenderer::render(int page, const QSize &pixels)
{
    const quint64 number = ++d->wanted;
    if (!d->provideThread(this)) {
        // The next page may be luckier.
        tell(number, page, {{}, PageProblem::NotDrawable});
        return;
    }
    {
        const std::lock_guard lock(d->mutex);
        d->next = Request{number, d->document, page, pixels};
    }
    d->changed.notify_one();
}

// From any thread. Said on our own, where a newer request can no longer slip in, and
// never from within render().
void PageRenderer::tell(quint64 number, int page, const DrawnPage &drawn)
{
    QMetaObject::invokeMethod(
        this,
        [this, number, page, drawn] {
            if (d->wanted == number)
                emit rendered(page, drawn.image, drawn.problem);
        },
        Qt::QueuedConnection);
}

} // namespace kelvo
