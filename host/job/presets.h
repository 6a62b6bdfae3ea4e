#pragma once

#include "result.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// Named ticket files: the user's own in the preferences folder's "presets",
// and an administrator's, read-only, in the site folders'. A preset's name stands
// in its root as "PresetName"; without that (or where the file is damaged) it is
// the file's name without ".plist".
namespace kelvo {

// What of `ticket` a preset may hold: nothing of one job (entriesOfOneJob), and secrets only
// when `keepSecrets`.
TicketFile presetFrom(TicketFile ticket, const SecretKeys &keys, bool keepSecrets);

struct Preset
{
    QString name;
    QString path;
    bool isSite = false;
};

class PresetStore
{
public:
    // Own presets and site presets by name; an own one hides a site one of the
    // same name. Damaged files are listed too: reading one says what is wrong.
    std::vector<Preset> presets() const;

    // NotFound with the nearest name; for a damaged file, where and why. The
    // file's name entry is left out: what comes back is a job's ticket.
    Result<TicketFile> read(const QString &name) const;

    static QString ownFolder(); // where the user's own lie
    // Saves presetFrom(ticket) under a safe file name, over an own preset of that name.
    // Refused for an empty name or one with control characters, and where a
    // file of another kind would be lost; a damaged file is set aside.
    Result<void> save(const QString &name, const TicketFile &ticket, const SecretKeys &keys,
                      bool keepSecrets);
    Result<void> remove(const QString &name);                    // Refused for a site preset
    Result<void> rename(const QString &from, const QString &to); // Refused when `to` exists

    // What every job starts from: the site preset named "default"; none when
    // there is none. A damaged one is told on standard error and counts as none.
    std::optional<TicketFile> siteDefaults() const;
};

} // namespace kelvo
