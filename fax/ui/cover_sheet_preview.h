#pragma once

#include "cover_sheet.h"
#include "memory_consumer.h"
#include "newest_task.h"

#include <QObject>

namespace kelvo {

class PaperView;

// Draws a cover sheet into a view, and lives with it. Texts are drawn at once or on a thread of
// their own, pictures are read on one. What cannot be drawn says so on the paper.
class CoverSheetPreview : public QObject
{
    Q_OBJECT

public:
    explicit CoverSheetPreview(PaperView *view);

    // Drawn again when it is another one, or its image is.
    void show(const CoverSheetContent &content);

signals:
    // The sentence to show below the preview: what does not fit, which characters no font has;
    // empty: all is there.
    void noticed(const QString &sentence);
};

} // namespace kelvo
