#include "confinement.h"
#include "font_folders.h"
#include "helper_main.h"
#include "page_picture.h"

#include <QFile>
#include <QImage>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

using namespace kelvo;
using namespace kelvo::documents;

// Draws pages of one PDF until nobody asks any more.

// False at the end of the input.
static bool readWhole(void *data, std::size_t size)
{
    auto *bytes = static_cast<char *>(data);
    while (size > 0) {
        const ssize_t count = ::read(STDIN_FILENO, bytes, size);
        if (count <= 0)
            return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

static bool writeWhole(int fd, const void *data, std::size_t size)
{
    const auto *bytes = static_cast<const char *>(data);
    while (size > 0) {
        const ssize_t count = ::write(fd, bytes, size);
        if (count <= 0)
            return false;
        bytes += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

// Whoever asks again wants this page no longer; nor does who has gone.
static bool isAskedAgain(const QVariant &)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return ::poll(&input, 1, 0) > 0;
}

static QImage draw(Poppler::Document &pdf, const DrawingRequest &request)
{
    const std::unique_ptr<Poppler::Page> page = pdf.page(request.page - 1);
    if (!page)
        return {};
    pdf.setRenderHint(Poppler::Document::IgnorePaperColor, !request.isOnPaper);
    QImage image = pictureOfPage(*page, {request.width, request.height}, isAskedAgain);
    image.convertTo(request.isOnPaper ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    return image;
}

int main(int argc, char **argv)
{
    if (!isOwnCaller(argc, argv) || argc != 3)
        return kOtherVersionStatus;
    endWithoutMemory();
    const int answers = ::dup(STDOUT_FILENO);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    // A page is a megabyte and more, and a pipe holds a sixteenth of one.
    ::fcntl(answers, F_SETPIPE_SZ, 1024 * 1024);
    // It reports every oddity of a document on standard error.
    Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
    const QString path = QFile::decodeName(argv[2]);
    confineTo(fontFolders() << path);

    const std::unique_ptr<Poppler::Document> pdf = Poppler::Document::load(path);
    if (pdf) {
        pdf->setRenderHint(Poppler::Document::Antialiasing);
        pdf->setRenderHint(Poppler::Document::TextAntialiasing);
        pdf->setPaperColor(Qt::white);
    }
    DrawingRequest request;
    while (readWhole(&request, sizeof request)) {
        if (request.number == 0)
            continue;
        const QImage image = pdf ? draw(*pdf, request) : QImage();
        const DrawingAnswer answer{request.number, image.width(), image.height()};
        // Rows of four-byte pixels have no gaps.
        if (!writeWhole(answers, &answer, sizeof answer)
            || !writeWhole(answers, image.constBits(),
                           static_cast<std::size_t>(image.sizeInBytes())))
            break;
    }
    std::_Exit(0);
}
