#include "dialog_picture.h"

#include "picture_view.h"
#include "ticket_values.h"

namespace kelvo {

void showDialogPicture(CFBundleRef bundle, const QWidget *window, ControlID id,
                       const QString &name, const QString &descriptionKey)
{
    auto *view = findControl<PictureView>(window, id);
    if (!view)
        return;
    const QString file = pictureFile(bundle->resourcesPath(), name);
    view->setPictures(file.isEmpty() ? QStringList() : QStringList(file),
                      localizedText(bundle, descriptionKey));
}

} // namespace kelvo
