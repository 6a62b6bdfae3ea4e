#pragma once

#include "newest_task.h"
#include "picture_reading.h"
#include "print_session.h"
#include "watermark_drawing.h"

#include <QObject>

// A watermark as it looks on its paper.
namespace kelvo {

class PaperView;

// Draws into a view, and lives with it. Texts are drawn at once; pictures are read, and the
// page below is drawn, on threads of their own. What cannot be drawn says so on the paper.
class WatermarkPreview : public QObject
{
    Q_OBJECT

public:
    explicit WatermarkPreview(PaperView *view);

    // Shows the record on its paper; drawn again when needsRedraw() asks for it, `isForced` or
    // the paper is another one. A record without text and file is empty paper.
    void renderWatermarkIfNecessary(const _WatermarkData &watermark, bool isForced = false);
    // The record that was shown last, with where its text came to lie.
    const _WatermarkData &shown() const { return m_shown; }

    // How dense a picture is shown, 0 to 1; beside what a text has of its own.
    void setPictureOpacity(double opacity);
    // Below the watermark; without a path white paper.
    void setPageBelow(const DocumentPage &page);

    // The one that the record names; forgotten, it is read again with the next drawing.
    PictureReading &picture() { return m_picture; }

private:
    void takePicture();
    void draw();
    void showDrawn();
    void drawPageBelow();
    void tellUnfinished();

    PaperView *m_view;
    _WatermarkData m_shown;
    _MemoryConsumer m_pdf;
    Result<void> m_drawn;
    bool m_hasShown = false;

    double m_pictureOpacity = 1;

    DocumentPage m_pageBelow;
    QSize m_pagePixels; // what it was asked for

    PictureReading m_picture; // last: they end first
    NewestTask m_drawing;
};

} // namespace kelvo
