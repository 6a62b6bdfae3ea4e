#include "confinement.h"
#include "font_folders.h"
#include "helper_main.h"
#include "page_picture.h"

#include <QFile>

#include <cstdlib>
#include <fcntl.h>
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

static drawing::Picture draw(PagePictures &pages, const DrawingRequest &request)
{
    const Result<drawing::Picture> picture =
        pages.draw(request.page, {request.width, request.height}, request.isOnPaper);
    if (picture)
        return picture.value();
    if (picture.error().code == Error::Code::TooLarge)
        std::_Exit(kOutOfMemoryStatus);
    return {};
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
    const QString path = QFile::decodeName(argv[2]);
    confineTo(fontFolders() << path);

    PagePictures pages({path, {}});
    DrawingRequest request;
    while (readWhole(&request, sizeof request)) {
        const drawing::Picture picture = draw(pages, request);
        const DrawingAnswer answer{picture.size.width(), picture.size.height()};
        if (!writeWhole(answers, &answer, sizeof answer)
            || !writeWhole(answers, picture.bytes.constData(),
                           static_cast<std::size_t>(picture.bytes.size())))
            break;
    }
    std::_Exit(0);
}
