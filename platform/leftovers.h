#pragma once

#include "result.h"

#include <QByteArray>
#include <QLatin1String>
#include <QString>

// Files and folders that are ours for a moment: documents and tickets before they
// are sent, files before they take their place. They go with us, unless we are
// killed. So each is locked (flock) while its owner lives, and whoever gets the lock
// knows that nobody needs it any more.
namespace kelvo {

enum class LeftoverKind { File, Folder }; // 0600, 0700

// A file or folder of our own that is locked as long as this lives. Where the file
// system has no locks it is not, and is never taken for a leftover there.
class HeldPath
{
public:
    HeldPath() = default;
    HeldPath(HeldPath &&other) noexcept;
    HeldPath &operator=(HeldPath &&other) noexcept;
    ~HeldPath(); // lets go of the lock; what it locked stays where it is

    // A new one in `folder`, called `prefix` and sixteen hexadecimal digits.
    // NotWritable with the system's reason.
    static Result<HeldPath> make(const QString &folder, QLatin1String prefix, LeftoverKind kind);

    const QByteArray &path() const { return m_path; } // encoded
    int fd() const { return m_fd; }                   // of a file: open for reading and writing

private:
    QByteArray m_path;
    int m_fd = -1;
};

// Removes from `folder` what HeldPath::make() made there with `prefix` and nobody
// holds any more. Only what is the user's own, has the rights that it was made with,
// is no link and has a name of that very form. What cannot be removed stays.
void removeLeftovers(const QString &folder, QLatin1String prefix, LeftoverKind kind);

inline constexpr QLatin1String kTemporaryFolderPrefix("kelvo-print-"); // in the temporary folder
inline constexpr QLatin1String kStagedFilePrefix(".kelvo-");           // beside what they replace

} // namespace kelvo
