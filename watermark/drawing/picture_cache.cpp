#include "picture_cache.h"

#include "file_store.h"

#include <QMutex>

namespace kelvo {

namespace {

struct LastPicture
{
    QMutex mutex;
    StampedFile file;
    ImportedPicture picture;
};

// Never destroyed: a thread may outlive every static object.
LastPicture &last()
{
    static auto &picture = *new LastPicture;
    return picture;
}

} // namespace

ImportedPicture lastPicture(const QString &path, const std::atomic_bool *cancelled)
{
    const StampedFile file{path, stampOf(path)}; // before it is read: what comes later is seen
    {
        const QMutexLocker lock(&last().mutex);
        if (last().file == file)
            return last().picture;
    }
    const Result<ImportedPicture> read = importPicture(path, cancelled);
    if (!read && read.error().code == Error::Code::Cancelled)
        return {};
    const QMutexLocker lock(&last().mutex);
    last().file = file;
    last().picture = read ? read.value() : ImportedPicture();
    return last().picture;
}

} // namespace kelvo
