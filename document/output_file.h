#pragma once

#include "result.h"

#include <QString>

#include <cstdio>
#include <memory>

namespace kelvo {

// A new 0600 file that libraries write into. Nothing is well until close() says
// so: a full disk shows in the last flush as often as in a write.
class OutputFile
{
public:
    // Fails where there is a file already.
    static Result<OutputFile> create(const QString &path);

    std::FILE *stream() const { return m_stream.get(); }
    QString path() const { return m_path; }
    bool write(const char *bytes, std::size_t size);

    // Flushes and closes. NotWritable when any write since create() was lost.
    Result<void> close();

    // The error of a file that could not be written, with the system's reason.
    Error error() const;

private:
    struct Closer
    {
        void operator()(std::FILE *stream) const { std::fclose(stream); }
    };
    std::unique_ptr<std::FILE, Closer> m_stream;
    QString m_path;
    int m_errno = 0;
};

// Whether there is no room left for files in `folder`.
bool isFull(const QString &folder);

// The system's error number as NotWritable; of a full disk it says which folder is
// full, and what to do. 0: the reason was lost on the way.
Error notWritable(const QString &path, int errorNumber);

// The error where no folder could be made in `folder`, the one for temporary files, for
// the `reason` that the system gives: it is full, missing, or closed to the user.
Error folderNotMade(const QString &folder, const QString &reason);

} // namespace kelvo
