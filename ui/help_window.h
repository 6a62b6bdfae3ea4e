#pragma once

#include "bundle.h"
#include "status.h"

#include <QString>

class QWidget;

namespace kelvo {

// Makes Resources/help of `bundle` the help book. fnfErr when the bundle has
// none or its folder cannot be read.
OSStatus AHRegisterHelpBook(CFBundleRef bundle);

// Opens the help window on `page` (relative to the help book, "shell/advanced.html";
// empty: the contents). fnfErr when no registered book has the page. Only files
// of the books are shown; other links are not followed. The window is usable
// while a modal dialog is open, and stays when that closes.
OSStatus DisplayHelp(const QString &page = {}, QWidget *parent = nullptr);

// The same for a button or a key: where there is no such page a notice says so, and in
// which folders it was looked for.
OSStatus showHelp(const QString &page, QWidget *parent);

// An additional folder of help pages, asked after the books: the host's own.
void addHelpFolder(const QString &folder);

} // namespace kelvo
