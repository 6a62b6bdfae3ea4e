#include "file_names.h"

#include <QStringDecoder>

namespace kelvo {

namespace {

// The text of `bytes` where they are UTF-8. A byte order mark is a part of a name.
std::optional<QString> textOf(QByteArrayView bytes)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

} // namespace

QString fileNameFrom(const QByteArray &bytes)
{
    if (const auto whole = textOf(bytes))
        return *whole;

    QString name;
    for (qsizetype at = 0; at < bytes.size();) {
        // The shortest piece that is a character; none is longer than four bytes.
        qsizetype length = 0;
        for (qsizetype tried = 1; tried <= 4 && at + tried <= bytes.size() && length == 0;
             ++tried) {
            if (const auto character = textOf(QByteArrayView(bytes).sliced(at, tried))) {
                name += *character;
                length = tried;
            }
        }
        if (length == 0) {
            name += QChar(char16_t(kFirstByte + (static_cast<uchar>(bytes[at]) - 0x80)));
            length = 1;
        }
        at += length;
    }
    return name;
}

QByteArray fileNameBytes(const QString &name)
{
    QByteArray bytes;
    qsizetype done = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const char16_t unit = name[i].unicode();
        if (unit < kFirstByte || unit > kLastByte || (i > 0 && name[i - 1].isHighSurrogate()))
            continue;
        bytes += QStringView(name).sliced(done, i - done).toUtf8();
        bytes += static_cast<char>(0x80 + (unit - kFirstByte));
        done = i + 1;
    }
    return bytes + QStringView(name).sliced(done).toUtf8();
}

std::optional<struct stat> fileStatus(const QString &path)
{
    struct stat status = {};
    if (::stat(fileNameBytes(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

} // namespace kelvo
