#pragma once

#include <QMap>
#include <QString>

// Which libraries of others run here, for whoever helps with a problem.
namespace kelvo {

// A library's own name ("CUPS") → its version.
using LibraryVersions = QMap<QString, QString>;

// Of the libraries behind this one, those that say their version themselves: it is of what
// runs here, and may be newer than what the program was built with.
LibraryVersions libraryVersions();

} // namespace kelvo
