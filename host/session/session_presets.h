#pragma once

#include "last_used.h"
#include "presets.h"

#include <QString>

#include <optional>
#include <vector>

namespace kelvo {

class SessionJob;

// The presets that a job can begin on, and which of them it did. Saving, renaming and
// deleting go to the user's own; errors are the store's, and nothing has changed then.
class SessionPresets
{
public:
    // What a job begins with: a preset, else what was printed with last, else the defaults.
    struct Chosen
    {
        QString preset; // empty, or one that does not exist: none
        bool isLastUsed = false;
    };
    // `job` is borrowed, and began with `chosen`. `lastUsed` is what can be chosen in a preset's
    // place; none: nothing.
    SessionPresets(SessionJob &job, const Chosen &chosen, std::optional<TicketFile> lastUsed);

    const std::vector<Preset> &all() const { return m_presets; }
    const Preset *chosen() const { return find(m_chosen); } // null: the defaults
    const Preset *findOwn(const QString &name) const;       // null: none, or the site's

    bool hasLastUsed() const { return m_lastUsed.has_value(); }
    bool isLastUsedChosen() const { return m_isLastUsedChosen && !chosen(); }
    // What the next window begins with; none: nothing was chosen.
    const std::optional<LastUsed::Beginning> &picked() const { return m_picked; }

    void chooseDefaults();
    void chooseLastUsed();
    Result<void> choose(const QString &name);
    // The settings as they stand, over an own preset of that name; it is the chosen one
    // then. Without `keepsSecrets`, as the preset that is replaced has it. What is not
    // ours in one that is replaced is kept.
    Result<void> save(const QString &name, std::optional<bool> keepsSecrets);
    // Both of the chosen one. The settings stay; without a preset they are changed ones.
    Result<void> rename(const QString &to);
    Result<void> remove();

private:
    void reload();
    const Preset *find(const QString &name) const;

    SessionJob &m_job;
    PresetStore m_store;
    std::vector<Preset> m_presets;
    QString m_chosen;
    const std::optional<TicketFile> m_lastUsed;
    bool m_isLastUsedChosen;
    std::optional<LastUsed::Beginning> m_picked;
};

} // namespace kelvo
