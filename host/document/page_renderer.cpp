#include "page_renderer.h"

#include <QMutex>
#include <QThread>

#include <poppler-qt6.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace kelvo {

namespace {

constexpr int mostPixels = 8192; // along either side; 4 times a large screen

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

// What poppler's callback needs to know of the page being drawn.
struct Progress
{
    const Shared *shared;
    quint64 number;
};

bool isAbandoned(const QVariant &payload)
{
    const auto *progress = static_cast<const Progress *>(payload.value<void *>());
    return progress->shared->wanted != progress->number;
}

QImage draw(Poppler::Document &pdf, int number, const QSize &pixels, Progress progress)
{
    const std::unique_ptr<Poppler::Page> page = pdf.page(number - 1);
    if (!page)
        return {};
    const QSizeF size = page->pageSizeF(); // points
    if (size.isEmpty() || pixels.isEmpty())
        return {};
    const QSize room = pixels.boundedTo(QSize(mostPixels, mostPixels));
    const double scale = std::min(room.width() / size.width(), room.height() / size.height());
    const QSize fitted = (size * scale).toSize().expandedTo(QSize(1, 1));
    const auto none = [](const QImage &, const QVariant &) {};
    const auto never = [](const QVariant &) { return false; };
    return page->renderToImage(72 * scale, 72 * scale, 0, 0, fitted.width(), fitted.height(),
                               Poppler::Page::Rotate0, none, never, isAbandoned,
                               QVariant::fromValue(static_cast<void *>(&progress)));
}

} // namespace

struct PageRenderer::Private
{
    Shared shared;
    Document document; // the window's side
    QThread thread;
    QObject worker; // lives on the thread

    // On the thread only.
    QString loadedPath;
    Document loaded; // keeps the file while poppler reads it
    std::unique_ptr<Poppler::Document> pdf;

    std::optional<Request> takeRequest()
    {
        const QMutexLocker lock(&shared.mutex);
        return std::exchange(shared.next, std::nullopt);
    }

    void load(const Document &wanted)
    {
        if (loadedPath == wanted.pdfPath())
            return;
        pdf = Poppler::Document::load(wanted.pdfPath());
        loaded = wanted;
        loadedPath = wanted.pdfPath();
        if (!pdf)
            return;
        pdf->setRenderHint(Poppler::Document::Antialiasing);
        pdf->setRenderHint(Poppler::Document::TextAntialiasing);
        pdf->setPaperColor(Qt::white);
    }
};

PageRenderer::PageRenderer(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    // It reports every oddity of a document on standard error.
    Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
    d->worker.moveToThread(&d->thread);
    d->thread.setObjectName(QStringLiteral("page renderer"));
    d->thread.start();
}

PageRenderer::~PageRenderer()
{
    setDocument({}); // stops the page being drawn
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
    {
        const QMutexLocker lock(&d->shared.mutex);
        d->shared.next = Request{++d->shared.wanted, d->document, page, pixels};
    }
    QMetaObject::invokeMethod(&d->worker, [this] {
        const std::optional<Request> request = d->takeRequest();
        if (!request)
            return;
        d->load(request->document);
        const QImage image = d->pdf
            ? draw(*d->pdf, request->page, request->pixels, {&d->shared, request->number})
            : QImage();
        // Told on our own thread, where a newer request can no longer slip in.
        QMetaObject::invokeMethod(this,
                                  [this, number = request->number, page = request->page, image] {
                                      if (d->shared.wanted == number)
                                          emit rendered(page, image);
                                  });
    });
}

} // namespace kelvo
