#pragma once

#include "document.h"
#include "page_drawing.h"
#include "side_picture.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

namespace kelvo {

struct DrawnSide
{
    QImage picture;              // null: none of its pages could be drawn
    QList<PageProblem> problems; // of its pages, in their order, or of the leading page
    QStringList lackingOverlays; // the names of those that could not be drawn
};

// An overlay for a page of that size in points, fitted into `pixels`; null when it cannot be
// drawn. Called on the renderer's thread, for one after the other.
using OverlayPainter =
    std::function<QImage(const Overlay &overlay, const QSizeF &page, const QSize &pixels,
                         const std::atomic_bool &cancelled)>;

// A leading page, fitted into `pixels`, on white paper. Called likewise.
using LeadingPagePainter = std::function<QImage(const LeadingPage &page, const QSize &pixels,
                                                const std::atomic_bool &cancelled)>;

// Renders sides of sheets: the pages in a child process, beside which a thread of its own
// waits and puts them together. One document at a time; a newer request replaces an older
// one. What the last side had is not drawn again for the next.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PageRenderer(QObject *parent = nullptr);
    ~PageRenderer() override;

    void setDocument(const Document &document);
    void setOverlayPainter(OverlayPainter painter);         // for requests from now on; null: none
    void setLeadingPagePainter(LeadingPagePainter painter); // likewise
    void render(const SideToDraw &side);                    // answered by rendered(), once

signals:
    void rendered(const kelvo::DrawnSide &side);

private:
    void tell(const std::shared_ptr<std::atomic_bool> &isAbandoned, const DrawnSide &side);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
