#pragma once

#include "document.h"

#include <QImage>
#include <QObject>

#include <memory>

namespace kelvo {

// Renders pages on a thread of its own. One document at a time; a newer request
// replaces an older one that has not begun.
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
    void rendered(int page, const QImage &image); // a null image: the page cannot be drawn

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace kelvo
