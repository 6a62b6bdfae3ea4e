#pragma once

#include "result.h"
#include "secret_keys.h"
#include "ticket_file.h"

#include <QString>
#include <QStringList>

#include <vector>

// Named ticket files: the user's own in the preferences folder's "presets",
// and an administrator's, read-only, in the site folder's.
namespace kelvo {

struct Preset
{
    QString name;
    QString path;
    bool isSite = false;
};

class PresetStore
{
public:
    // Own presets and site presets by name; an own one hides a site one of the same name.
    std::vector<Preset> presets() const;
    Result<TicketFile> read(const QString &name) const; // NotFound with the nearest name

    // Saves under a safe file name; the name itself stands in the file. Secrets
    // are left out unless `keepSecrets`. Page ranges and the job's name are never kept.
    Result<void> save(const QString &name, const TicketFile &ticket, const SecretKeys &keys,
                      bool keepSecrets);
    Result<void> remove(const QString &name);                       // Refused for a site preset
    Result<void> rename(const QString &from, const QString &to); // Refused when `to` exists

    // What every job starts from: the site preset named "default"; none when there is none.
    std::optional<TicketFile> siteDefaults() const;
};

} // namespace kelvo
