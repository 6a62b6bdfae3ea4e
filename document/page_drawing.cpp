#include "page_drawing.h"

#include "document_helper.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

namespace kelvo {

namespace {

constexpr int pollMs = 10;

// What a page that nobody wants any more may take from its beginning on. A new process and its
// first page take about as long, so that pages that are drawn quickly do not cost one.
constexpr int leaveMs = 50;

} // namespace

PageDrawing::PageDrawing(const QString &pdfPath)
    : m_pdfPath(pdfPath)
{
}

PageDrawing::~PageDrawing()
{
    stop();
}

bool PageDrawing::start()
{
    if (m_process)
        return true;
    Result<ChildProgram> child = documentHelper(DocumentHelper::Drawing);
    if (!child)
        return false;
    child.value().arguments << m_pdfPath;
    child.value().folder = QFileInfo(m_pdfPath).path();
    child.value().memory = limits::drawingMemory;
    child.value().seconds = 0; // each page has its own
    m_process = std::make_unique<QProcess>();
    prepareChild(*m_process, child.value());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_process->start();
    if (m_process->waitForStarted(-1))
        return true;
    m_process.reset();
    return false;
}

void PageDrawing::stop()
{
    if (!m_process)
        return;
    m_process->kill();
    m_process->waitForFinished(-1);
    m_process.reset();
}

// Takes the answer when it is there as a whole; whether it was.
bool PageDrawing::readAnswer(PagePaper paper, QImage &image)
{
    DrawingAnswer answer;
    const auto header = qint64(sizeof answer);
    if (m_process->peek(reinterpret_cast<char *>(&answer), header) < header)
        return false;
    const auto isSide = [](int pixels) { return pixels >= 0 && pixels <= limits::drawnSide; };
    if (!isSide(answer.width) || !isSide(answer.height)) {
        stop();
        return false;
    }
    const qint64 bytes = qint64(answer.width) * answer.height * 4;
    if (m_process->bytesAvailable() < header + bytes)
        return false;
    m_process->skip(header);
    image = QImage(answer.width, answer.height,
                   paper == PagePaper::White ? QImage::Format_RGB32
                                             : QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        m_process->skip(bytes);
    else
        m_process->read(reinterpret_cast<char *>(image.bits()), bytes);
    return true;
}

PageProblem PageDrawing::problemOfEnd() const
{
    const bool hasExited = m_process->exitStatus() == QProcess::NormalExit;
    const bool isTooLarge =
        m_process->exitCode() == (hasExited ? kOutOfMemoryStatus : SIGKILL); // by the kernel
    return isTooLarge ? PageProblem::TooLarge : PageProblem::NotDrawable;
}

DrawnPage PageDrawing::draw(int page, const QSize &pixels, const std::function<bool()> &isAbandoned,
                            PagePaper paper)
{
    if (const auto known = m_problems.constFind(page); known != m_problems.cend())
        return {{}, *known};
    const auto failed = [&](PageProblem problem) {
        stop();
        m_problems.insert(page, problem);
        return DrawnPage{{}, problem};
    };

    if (!start())
        return {{}, PageProblem::NotDrawable};
    const DrawingRequest request{page, pixels.width(), pixels.height(), paper == PagePaper::White};
    m_process->write(reinterpret_cast<const char *>(&request), sizeof request);
    QElapsedTimer timer;
    timer.start();
    QImage image;
    while (!readAnswer(paper, image)) {
        if (!m_process)
            return failed(PageProblem::NotDrawable);
        if (m_process->state() == QProcess::NotRunning)
            return failed(problemOfEnd());
        if (timer.hasExpired(leaveMs) && isAbandoned()) {
            stop();
            return {};
        }
        if (timer.hasExpired(limits::drawingSeconds * 1000))
            return failed(PageProblem::TooSlow);
        m_process->waitForReadyRead(pollMs);
    }
    return {image, image.isNull() ? PageProblem::NotDrawable : PageProblem::None};
}

} // namespace kelvo
