#pragma once

#include "result.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QString>

#include <optional>

namespace kelvo {

// What the user has printed with last, and where a window begins. A dictionary in the user's
// preferences folder, com.kelvo.print.lastused.plist:
//
//   Printer     string: the queue
//   Settings    dictionary: a part of a ticket (ticket_file.h)
//   BeginsWith  string: "last-used", "defaults" or "preset"
//   Preset      string: its name, where it begins with one
struct LastUsed
{
    enum class Beginning { LastUsed, Defaults, Preset };

    QString printer;                    // empty: not known
    std::optional<TicketFile> settings; // none: not known
    std::optional<Beginning> beginning; // none: the user has chosen nothing: LastUsed
    QString preset;                     // for Beginning::Preset

    friend bool operator==(const LastUsed &, const LastUsed &) = default;
};

// Whether the site lets it be kept: so unless KeepLastUsed is false in preferences.plist of a
// site folder, the first of them that says anything.
bool keepsLastUsed();

// What is kept; what cannot be read, or is not to be kept, counts as not known.
LastUsed readLastUsed();
// Keeps what `used` knows; the rest stays as it is in the file. It blocks as a disk does.
Result<void> keepLastUsed(const LastUsed &used);

// What of a preset (SessionJob::preset()) comes back with the next document: no secrets, nothing
// of one job (entriesOfOneJob, SecretKeys::oneJobPaths), nor the copies and the priority, which
// nobody looks for the next time, nor paper and orientation, which follow the document. None for a
// fax, which is no print.
std::optional<TicketFile> lastUsedFrom(const TicketFile &preset, const SecretKeys &keys);

} // namespace kelvo
