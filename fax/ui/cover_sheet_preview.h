#pragma once

#include "bundle.h"
#include "cover_sheet.h"
#include "file_store.h"
#include "newest_task.h"
#include "picture_reading.h"

#include <QObject>
#include <QString>

namespace kelvo {

class PaperView;
struct CoverSheetDrawing;

// Draws a cover sheet into a view, and lives with it. Pages are drawn and pictures are read on
// threads of their own, and the last that was asked for counts. A page that cannot be drawn
// says so on the paper. What is not looked at is not drawn.
class CoverSheetPreview : public QObject
{
    Q_OBJECT

public:
    CoverSheetPreview(CFBundleRef bundle, PaperView *view); // the bundle of the texts

    // Draws it, with what its image is by now.
    void show(const CoverSheetContent &content);

    // What to say below the preview: what does not fit, which characters no font has, which
    // image cannot be shown; empty: all is there.
    const QString &notice() const { return m_notice; }

signals:
    void noticed(const QString &notice); // it is another one

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void draw();
    void take(const CoverSheetDrawing &drawing);
    void takePicture();
    void say(const CoverSheetDrawing &drawing);
    void tellUnfinished();

    CFBundleRef m_bundle;
    PaperView *m_view;
    CoverSheetContent m_content;
    bool m_hasContent = false;
    FileStamp m_pictureStamp; // of the file that m_picture reads or has read
    QString m_notice;

    PictureReading m_picture; // last: they end first
    NewestTask m_drawing;
};

} // namespace kelvo
