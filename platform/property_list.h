#pragma once

#include "result.h"

#include <QByteArray>
#include <QVariant>

// XML property lists: read with expat into the types of values.h, written in a
// fixed form that does not depend on the locale. (libplist reads reals through the C
// locale, overflows the stack on deep nesting and clips dates.)
namespace kelvo {

// Reads one property list. `name` stands in the error ("ticket.plist, line 7"),
// whose place is the line.
// Refused: anything that is not a property list, custom entities, text outside
// its element, a dictionary key that stands twice, and whatever is above the
// plist limits of size_limits.h. Depth counts the dictionaries and arrays inside
// one another; keys do not count as nodes.
Result<QVariant> CFPropertyListCreateFromXMLData(const QByteArray &xml, const QString &name);

// Writes `list` with sorted keys, tabs, reals in shortest form and data in
// base64; a date loses its milliseconds. Fails on a type that a property list
// cannot hold and on characters that XML cannot hold, with the key path, and above
// the same limits, so that what was written can be read.
Result<QByteArray> CFPropertyListCreateXMLData(const QVariant &list);

// Reads the property list at `path`, which must be a regular file within the
// limits. NotFound when there is none.
Result<QVariant> readPropertyList(const QString &path);

} // namespace kelvo
