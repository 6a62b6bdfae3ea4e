#include "embedded_files.h"

#include "document_helper.h"

#include <QFile>
#include <QFileInfo>

namespace kelvo {

Result<void> replaceEmbeddedFile(const QString &source, const QString &name,
                                 const QByteArray &mimeType, const QByteArray &bytes,
                                 const QString &target)
{
    const QString folder = QFileInfo(target).path();
    if (Result<void> made = ask<void>(Task::ReplaceEmbeddedFile, {source, folder}, source, name,
                                      mimeType, bytes, target);
        !made) {
        return made;
    }
    // Another process, and other code: what was overlooked once must not be again.
    Result<void> checked =
        ask<void>(Task::CheckEmbeddedFile, {target, folder}, target, name, bytes);
    if (!checked)
        QFile::remove(target);
    return checked;
}

} // namespace kelvo
