#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

#include <sys/stat.h>

// A file's name is bytes, and not all of them are UTF-8: an old archive's "Gr\xfc\xdfe".
// As text such a byte is a lone surrogate, U+DC80 to U+DCFF, which no UTF-8 text
// has, so that every name comes back as it was. Qt's own QFile::encodeName() would
// make "?" of it: what opens files that users name goes through here.
namespace kelvo {

inline constexpr char16_t kFirstByte = 0xDC80; // stands for 0x80
inline constexpr char16_t kLastByte = 0xDCFF;

QString fileNameFrom(const QByteArray &bytes);
QByteArray fileNameBytes(const QString &name);

// What lies at `path`, links followed; none when there is nothing, or no way to it.
std::optional<struct stat> fileStatus(const QString &path);

} // namespace kelvo
