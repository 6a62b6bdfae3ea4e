#pragma once

#include <QStringList>

namespace kelvo::documents {

// What must be readable where text is drawn: the folders of the fonts that are installed
// and of their indexes, of a font that is a link the one that it leads to; and /usr/share
// with the tables of character encodings. Reads the fonts' configuration.
QStringList fontFolders();

} // namespace kelvo::documents
