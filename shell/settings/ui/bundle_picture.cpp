#include "bundle_picture.h"

#include "picture_view.h"
#include "pictures.h"

namespace kelvo {

void showBundlePicture(PictureView *view, CFBundleRef bundle, const QString &name,
                       const QString &description)
{
    showBundlePictures(view, bundle, {name}, description);
}

void showBundlePictures(PictureView *view, CFBundleRef bundle, const QStringList &names,
                        const QString &description)
{
    if (!view || !bundle)
        return;
    QStringList files;
    for (const QString &name : names) {
        if (const QString file = pictureFile(bundle->resourcesPath(), name); !file.isEmpty())
            files << file;
    }
    view->setPictures(files, description);
}

} // namespace kelvo
