#include "page_renderer.h"

#include <QMutex>
#include <QThread>

#include <atomic>
#include <optional>

namespace kelvo {

namespace {

struct Request
{
    quint64 number = 0;
    Document document;
    int page = 0;
    QSize pixels;
};

// What the window's thread and the worker share.
struct Shared
{
    QMutex mutex;
    std::optional<Request> next; // under the mutex
    // The newest request; a page that is no longer wanted stops being drawn.
    std::atomic<quint64> wanted = 0;
};

} // namespace

struct PageRenderer::Private
{
    Shared shared;
    Document document; // the window's side
    QThread thread;
    QObject worker; // lives on the thread

    // On the thread only.
    QString loadedPath;
    Document loaded; // keeps the file while it is read
    std::unique_ptr<PageDrawing> drawing;

    std::optional<Request> takeRequest()
    {
        const QMutexLocker lock(&shared.mutex);
        return std::exchange(shared.next, std::nullopt);
    }

    void load(const Document &wanted)
    {
        if (loadedPath == wanted.pdfPath())
            return;
        drawing = wanted.isNull() ? nullptr : std::make_unique<PageDrawing>(wanted.pdfPath());
        loaded = wanted;
        loadedPath = wanted.pdfPath();
    }
};

PageRenderer::PageRenderer(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->worker.moveToThread(&d->thread);
    d->thread.setObjectName(QStringLiteral("page renderer"));
}

PageRenderer::~PageRenderer()
{
    setDocument({}); // stops the page being drawn
    // A process belongs to the thread that started it. It listens at once: nobody wants
    // the page that it may be at.
    if (d->thread.isRunning()) {
        QMetaObject::invokeMethod(
            &d->worker, [this] { d->drawing.reset(); }, Qt::BlockingQueuedConnection);
    }
    d->thread.quit();
    d->thread.wait();
}

void PageRenderer::setDocument(const Document &document)
{
    d->document = document;
    ++d->shared.wanted;
    const QMutexLocker lock(&d->shared.mutex);
    d->shared.next.reset();
}

void PageRenderer::render(int page, const QSize &pixels)
{
    if (!d->thread.isRunning())
        d->thread.start();
    if (!d->thread.isRunning()) {
        // The system has no thread to give; the next page may be luckier.
        QMetaObject::invokeMethod(
            this,
            [this, number = ++d->shared.wanted, page] {
                if (d->shared.wanted == number)
                    emit rendered(page, {}, PageProblem::NotDrawable);
            },
            Qt::QueuedConnection);
        return;
    }
    {
        const QMutexLocker lock(&d->shared.mutex);
        d->shared.next = Request{++d->shared.wanted, d->document, page, pixels};
    }
    QMetaObject::invokeMethod(&d->worker, [this] {
        const std::optional<Request> request = d->takeRequest();
        if (!request)
            return;
        d->load(request->document);
        const auto isAbandoned = [this, number = request->number] {
            return d->shared.wanted != number;
        };
        const DrawnPage drawn = d->drawing
            ? d->drawing->draw(request->page, request->pixels, isAbandoned)
            : DrawnPage{{}, PageProblem::NotDrawable};
        // Told on our own thread, where a newer request can no longer slip in.
        QMetaObject::invokeMethod(this,
                                  [this, number = request->number, page = request->page, drawn] {
                                      if (d->shared.wanted == number)
                                          emit rendered(page, drawn.image, drawn.problem);
                                  });
    });
}

} // namespace kelvo
