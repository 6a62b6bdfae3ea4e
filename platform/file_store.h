#pragma once

#include "leftovers.h"
#include "result.h"

#include <QByteArray>
#include <QVariantMap>

#include <functional>
#include <optional>
#include <span>

// The only code that changes files that users own. Two dialogs at once lose
// nothing; a crash, a kill or a full disk leaves the old file or the new one.
//
// Not QSaveFile: on a full disk it replaced a good file by a truncated one and reported
// success. Not QLockFile: it leaves chains of lock files after a kill.
namespace kelvo {

// What the user can do about a file or folder that could not be written, by the system's
// errno: the end of a sentence, "make room there".
QString writingAdvice(int number);

// A whole file, at most `limit` bytes, a regular file. Readers take no lock:
// writers only rename complete files.
Result<QByteArray> readFile(const QString &path, qint64 limit);

// What tells whether a file is still the same one: whoever replaces or changes it leaves
// another stamp. All 0 for a file that is not there.
struct FileStamp
{
    quint64 device = 0, inode = 0;
    qint64 size = 0;
    qint64 modified = 0, changed = 0; // nanoseconds
    friend bool operator==(const FileStamp &, const FileStamp &) = default;
};
FileStamp stampOf(const QString &path);

struct StampedFile
{
    QString path;
    FileStamp stamp;
    friend bool operator==(const StampedFile &, const StampedFile &) = default;
};

// Replaces the file at `path`: a temporary file in the same folder (0600; locked, so
// that what a killed program leaves is known by its free lock), every write and the
// size checked, synced, renamed, folder synced. After an error the old file is as it
// was and no temporary file is left.
Result<void> replaceFile(const QString &path, const QByteArray &bytes);

// A file that is written, as replaceFile() writes it, and waits to take its
// place: what belongs together is all on the disk before the first one changes.
// One that goes without place() leaves nothing behind. The system may still be writing it:
// what was lost of it shows in place().
class StagedFile
{
public:
    static Result<StagedFile> withBytes(const QString &path, const QByteArray &bytes);
    // The bytes of the regular file `source`, of any size: they are streamed.
    // NotFound or NotReadable when it cannot be read.
    static Result<StagedFile> withCopy(const QString &path, const QString &source);

    StagedFile(StagedFile &&other) noexcept;
    StagedFile &operator=(StagedFile &&other) = delete;
    ~StagedFile();

    // Puts them in their places, in their order; once. All of them are on the disk, with every
    // write and their sizes checked, before the first one is put there. They are waited for
    // together: a disk takes as long for one small file as for some.
    static Result<void> place(std::span<StagedFile> files);
    Result<void> place() { return place({this, 1}); }

private:
    // How many bytes went into the new file; -1 with `errno` where they could not.
    using Writer = std::function<Result<qint64>(int fd)>;
    static Result<StagedFile> write(const QString &path, const Writer &writer);
    StagedFile() = default;
    Result<void> settle();

    QString m_path;
    HeldPath m_temporary; // without a path: there is none any more
    qint64 m_size = 0;    // bytes that were written
};

enum class DamagedStore {
    SetAside, // a writer that creates: rename to NAME.damaged-1 (…-2), say so, begin empty
    Keep,     // a writer that only changes: fail and leave it alone
};

// What two writers of a store meet at: a permanent 0600 lock file beside it, opened
// without following links, waited for at most limits::fileLockWaitMs. Every writer
// of a store takes the same one.
enum class StoreLock {
    OfFile,   // ".NAME.lock"
    OfFolder, // ".lock": one for all where users make up the names, and each would leave one
};

// Read → change → write of a property-list dictionary under its lock. `change` gets
// what the file holds now, an empty dictionary when there is no file, and edits it;
// returning false means that there is nothing to write. What is no property list
// within the limits of size_limits.h is damaged; a store that is there but cannot be
// read fails. Missing folders are created, 0700.
Result<void> changeDictionaryFile(const QString &path, DamagedStore damaged,
                                  const std::function<bool(QVariantMap &)> &change,
                                  StoreLock scope = StoreLock::OfFile);

// Removes the file under its lock; NotFound when there was none.
Result<void> removeFile(const QString &path, StoreLock scope = StoreLock::OfFile);

// `name` as one safe file-name component: no slash, no control character, not
// empty, no leading dot, at most 200 bytes of UTF-8. Distinct names stay
// distinct (what is unsafe is percent-encoded).
QString safeFileName(const QString &name);

} // namespace kelvo
