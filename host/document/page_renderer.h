#pragma once

#include "document.h"
#include "page_drawing.h"

#include <QImage>
#include <QObject>

#include <memory>

namespace kelvo {

// Renders pages in a child process, beside which a thread of its own waits. One document
// at a time; a newer request replaces an older one.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PageRenderer(QObject *parent = nullptr);
    ~PageRenderer() override;

    void setDocument(const Document &document);
    // `page` from 1, fitted into `pixels`; answered by rendered().
    void render(int page, const QSize &pixels);

signals:
    void rendered(int page, const QImage &image, kelvo::PageProblem problem);

private:
    void tell(quint64 number, int page, const DrawnPage &drawn);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
