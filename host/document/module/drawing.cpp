#include "functions.h"

#include <poppler-qt6.h>

#include <algorithm>

namespace kelvo::documents {

namespace {

constexpr int mostPixels = 8192; // along either side; 4 times a large screen

bool isAbandonedNow(const QVariant &payload)
{
    return (*static_cast<const std::function<bool()> *>(payload.value<void *>()))();
}

class Drawing : public PdfDrawing
{
public:
    explicit Drawing(std::unique_ptr<Poppler::Document> pdf)
        : m_pdf(std::move(pdf))
    {
        m_pdf->setRenderHint(Poppler::Document::Antialiasing);
        m_pdf->setRenderHint(Poppler::Document::TextAntialiasing);
        m_pdf->setPaperColor(Qt::white);
    }

    QImage draw(int number, const QSize &pixels, const std::function<bool()> &isAbandoned) override
    {
        const std::unique_ptr<Poppler::Page> page = m_pdf->page(number - 1);
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
        // The payload is handed back as it is, and to nobody after this call.
        auto *asked = const_cast<std::function<bool()> *>(&isAbandoned);
        return page->renderToImage(72 * scale, 72 * scale, 0, 0, fitted.width(), fitted.height(),
                                   Poppler::Page::Rotate0, none, never, isAbandonedNow,
                                   QVariant::fromValue(static_cast<void *>(asked)));
    }

private:
    std::unique_ptr<Poppler::Document> m_pdf;
};

} // namespace

std::unique_ptr<PdfDrawing> openDrawing(const QString &pdfPath)
{
    // It reports every oddity of a document on standard error.
    Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
    auto pdf = Poppler::Document::load(pdfPath);
    return pdf ? std::make_unique<Drawing>(std::move(pdf)) : nullptr;
}

} // namespace kelvo::documents
