#include "font_folders.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <fontconfig/fontconfig.h>

namespace kelvo::documents {

namespace {

QString pathFrom(const FcChar8 *path)
{
    return QFile::decodeName(reinterpret_cast<const char *>(path));
}

void add(QSet<QString> &folders, FcStrList *list)
{
    while (const FcChar8 *path = FcStrListNext(list))
        folders << pathFrom(path);
    FcStrListDone(list);
}

} // namespace

QStringList fontFolders()
{
    FcInit();
    QSet<QString> folders = {QStringLiteral("/usr/share")};
    add(folders, FcConfigGetFontDirs(nullptr));
    add(folders, FcConfigGetCacheDirs(nullptr));
    const FcFontSet *fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    for (int index = 0; fonts && index < fonts->nfont; ++index) {
        FcChar8 *path = nullptr;
        if (FcPatternGetString(fonts->fonts[index], FC_FILE, 0, &path) != FcResultMatch)
            continue;
        const QFileInfo file(pathFrom(path));
        if (file.isSymLink())
            folders << QFileInfo(file.canonicalFilePath()).path();
    }
    return folders.values();
}

} // namespace kelvo::documents
