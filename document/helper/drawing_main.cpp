#include "confinement.h"
#include "font_folders.h"
#include "helper_main.h"
#include "page_picture.h"

#include <QFile>
#include <QFileInfo>

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

// Where what draws heavy pages lies, and what that needs: it is opened when there is one.
static QStringList libraryFolders()
{
    return {QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath(), QStringLiteral("/usr/lib"),
            QStringLiteral("/etc/ld.so.cache")};
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
    confineTo(fontFolders() + libraryFolders() << path);

    PagePictures pages({path, {}});
    DrawingRequest request;
    while (readWhole(&request, sizeof request)) {
        const QImage image =
            pages.draw(request.page, {request.width, request.height}, request.isOnPaper);
        const DrawingAnswer answer{image.width(), image.height()};
        // Rows of four-byte pixels have no gaps.
        if (!writeWhole(answers, &answer, sizeof answer)
            || !writeWhole(answers, image.constBits(),
                           static_cast<std::size_t>(image.sizeInBytes())))
            break;
    }
    std::_Exit(0);
}
