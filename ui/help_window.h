#pragma once

#include "bundle.h"
#include "status.h"

#include <QString>

class QWidget;

namespace kelvo {

// Makes Resources/help of `bundle` a help book: pages in folders named for their language,
// read in the first of the user's that has them, else in English. fnfErr when the bundle
// has none or its folder cannot be read.
OSStatus AHRegisterHelpBook(CFBundleRef bundle);

// Opens the help window on `page` (relative to the help book, "shell/advanced.html";
// empty: the contents). fnfErr when no registered book has the page. Only files
// of the books are shown; other links are not followed. The window is usable
// while a modal dialog is open, and stays when that closes.
OSStatus DisplayHelp(const QString &page = {}, QWidget *parent = nullptr);

// The same for a button or a key: where there is no such page a notice says so, and in
// which folders it was looked for.
OSStatus showHelp(const QString &page, QWidget *parent);

// The page about what `widget` shows: its property "helpPage", else that of the first of its
// contents that has one and is not hidden; empty when none has.
QString helpPageOf(const QWidget *widget);

// An additional folder of help pages, as a bundle's; a folder may be named again. Asked
// after those that were there before.
void addHelpFolder(const QString &folder);

} // namespace kelvo
