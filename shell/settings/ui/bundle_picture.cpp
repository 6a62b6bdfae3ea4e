#include "bundle_picture.h"

#include "picture_view.h"

namespace kelvo {

void showBundlePicture(PictureView *view, CFBundleRef bundle, const QString &name,
                       const QString &description)
{
    if (!view || !bundle)
        return;
    const QString file = pictureFile(bundle->resourcesPath(), name);
    view->setPictures(file.isEmpty() ? QStringList() : QStringList(file), description);
}

} // namespace kelvo
