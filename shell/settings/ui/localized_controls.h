#pragma once

#include "bundle.h"
#include "menu.h"

#include <QStringList>

class QWidget;
class QLabel;

// Localized texts on controls. The text of `key` in "Localizable" (missing:
// "STRING NOT FOUND") is a format whose place holders %1… take `arguments`.
// Nothing happens when bundle, key or target is missing.
namespace kelvo {

void SetLocalizedStaticText(CFBundleRef bundle, const QString &key, QLabel *control,
                            const QStringList &arguments = {});
void SetLocalizedControlTitle(CFBundleRef bundle, const QString &key, QWidget *control,
                              const QStringList &arguments = {});
void SetLocalizedWindowTitle(CFBundleRef bundle, const QString &key, QWidget *window,
                             const QStringList &arguments = {});
// `item` from 1.
void SetLocalizedMenuTitle(CFBundleRef bundle, const QString &key, Menu *menu, int item,
                           const QStringList &arguments = {});

} // namespace kelvo
