#pragma once

#include "newest_task.h"
#include "picture_import.h"
#include "print_session.h"
#include "watermark_drawing.h"
#include "watermark_editing.h"

#include <QImage>
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

    // Of the picture that the record names.
    PictureState pictureState() const { return m_pictureState; }
    const ImportedPicture &picture() const { return m_picture; }     // null unless it is Read
    const Error &pictureProblem() const { return m_pictureProblem; } // when it is Unreadable
    // Reads the file again with the next drawing, where it may have changed.
    void forgetPicture() { m_picturePath.clear(); }

signals:
    void pictureChanged(); // its state

private:
    void readPicture();
    void setPictureState(PictureState state);
    void draw();
    void showDrawn();
    void drawPageBelow();
    void tellUnfinished();

    PaperView *m_view;
    _WatermarkData m_shown;
    _MemoryConsumer m_pdf;
    Result<void> m_drawn;
    bool m_hasShown = false;

    QString m_picturePath; // of m_picture, or of the one that is being read
    ImportedPicture m_picture;
    PictureState m_pictureState = PictureState::None;
    Error m_pictureProblem{Error::Code::NotFound, {}, {}};
    double m_pictureOpacity = 1;

    DocumentPage m_pageBelow;
    QSize m_pagePixels; // what it was asked for

    NewestTask m_reading; // last: they end first
    NewestTask m_drawing;
};

} // namespace kelvo
