#pragma once

#include "result.h"
#include "values.h"

#include <QString>

#include <functional>
#include <optional>

// Files of the user and of the machine, outside the ticket.
namespace kelvo {

// The path of `name` in the maker folder "Kelvo" of the local application
// support folder; the folder is created when missing. None on failure.
std::optional<QString> CopyPreferenceFileURL(const QString &name);
// The property list there; none when it cannot be read. A parse error goes to
// standard error.
std::optional<QVariant> CopyXMLData(const QString &name);

// Where the file `name` of the user's preferences folder lies; NotFound where there is no
// such folder.
Result<QString> userPreferencePath(const QString &name);
// The dictionary in the user's preferences folder; empty when the file is
// missing or does not parse; none only when there is no such folder.
std::optional<Dictionary> CopyUserPreferences(const QString &name);
// Replaces the whole file under its lock. Failure: a line on standard error.
bool WriteUserPreferences(const QString &name, const Dictionary &propertyList);
// Read, change and write under the lock, for what several dialogs add to. A
// damaged file is set aside first.
bool ChangeUserPreferences(const QString &name, const std::function<bool(Dictionary &)> &change);

} // namespace kelvo
