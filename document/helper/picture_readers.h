#pragma once

#include "document_kind.h"
#include "result.h"

#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QSvgRenderer>

#include <optional>

// What reads pictures, of whatever they are to become: which reader, how many pixels, and
// that nothing else is opened. Errors are of nothing in particular.
namespace kelvo::documents {

// ---- pictures of pixels, in this order

// Loads what reads `kind`; Unsupported, with the package that is missing.
Result<void> loadPictureReader(DocumentKind kind);
// From now on nothing can be opened (confineToOpenFiles()).
void confinePictureReader();
// As `kind` and nothing else, turned as a camera says.
void beginReading(QImageReader &reader, QIODevice &source, DocumentKind kind);
// The next picture; TooLarge above limits::picturePixels, or Damaged. `page` from 1 stands
// in messages; 0: it is the only one.
Result<QImage> readPicture(QImageReader &reader, int page = 0);

// ---- drawings

// An SVG drawing. There is one in a process, which it makes fit for texts and for the
// pictures that a drawing holds: before confineTo(fontFolders()).
class SvgDrawing
{
public:
    SvgDrawing();
    Q_DISABLE_COPY_MOVE(SvgDrawing)

    // Without its references to anything outside it; Damaged.
    Result<void> read(const QByteArray &svg);

    QSizeF size() const;                      // CSS pixels; not empty
    int leftOut() const { return m_leftOut; } // other files that it would have shown
    void draw(QPainter &painter, const QRectF &place) { m_renderer->render(&painter, place); }

private:
    int m_argc = 1;
    char m_name[16] = "kelvo-converter";
    char *m_argv[2] = {m_name, nullptr};
    std::optional<QGuiApplication> m_application;
    std::optional<QSvgRenderer> m_renderer;
    int m_leftOut = 0;
};

} // namespace kelvo::documents
