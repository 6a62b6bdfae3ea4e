#pragma once

#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QProcess;

namespace kelvo {

// Why there is no picture of a page.
enum class PageProblem {
    None,        // there is one, or nobody wants it any more
    NotDrawable, // what draws it cannot read it, or crashed
    TooSlow,     // more than limits::drawingSeconds
    TooLarge,    // more than limits::drawingMemory
};

enum class PagePaper {
    White,
    None, // what the page leaves free is transparent
};

struct DrawnPage
{
    QImage image; // QImage::Format_RGB32, or Format_ARGB32_Premultiplied without paper; null:
                  // `problem` says why
    PageProblem problem = PageProblem::None;
};

// The pages of one PDF, drawn by a child process that is started with the first page and
// stays for the next ones, unless a page is abandoned that takes long. A page that brings it
// down is not tried again. For one thread; the child ends with it.
class PageDrawing
{
public:
    explicit PageDrawing(const QString &pdfPath);
    ~PageDrawing();

    // `page` from 1, fitted into `pixels`. Waits until it is drawn, or `isAbandoned`
    // says that nobody wants it: it is asked a hundred times a second, and the picture comes
    // all the same where it is near.
    DrawnPage draw(int page, const QSize &pixels, const std::function<bool()> &isAbandoned,
                   PagePaper paper = PagePaper::White);

private:
    bool start();
    void stop();
    bool readAnswer(PagePaper paper, QImage &image);
    PageProblem problemOfEnd() const;

    QString m_pdfPath;
    std::unique_ptr<QProcess> m_process; // null: not started, or ended
    QHash<int, PageProblem> m_problems;
};

} // namespace kelvo
