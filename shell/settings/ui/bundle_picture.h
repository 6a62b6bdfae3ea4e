#pragma once

#include "bundle.h"

#include <QString>
#include <QStringList>

namespace kelvo {

class PictureView;

// Shows one picture of the bundle ("….gif"); nothing for an empty name and for a
// picture that the bundle does not have. `description` is what a screen reader
// says. Nothing happens for a null view or bundle.
void showBundlePicture(PictureView *view, CFBundleRef bundle, const QString &name,
                       const QString &description = {});
// Several on top of one another, the lowest first.
void showBundlePictures(PictureView *view, CFBundleRef bundle, const QStringList &names,
                        const QString &description = {});

} // namespace kelvo
