#include "session_presets.h"

#include "session_job.h"
#include "ticket_attachment.h"

#include <algorithm>

namespace kelvo {

using Beginning = LastUsed::Beginning;

SessionPresets::SessionPresets(SessionJob &job, const Chosen &chosen,
                               std::optional<TicketFile> lastUsed)
    : m_job(job)
    , m_chosen(chosen.preset)
    , m_lastUsed(std::move(lastUsed))
    , m_isLastUsedChosen(chosen.isLastUsed)
{
    reload();
}

void SessionPresets::reload()
{
    m_presets = m_store.presets();
    if (!chosen())
        m_chosen.clear();
}

const Preset *SessionPresets::find(const QString &name) const
{
    const auto preset = std::ranges::find(m_presets, name, &Preset::name);
    return preset == m_presets.cend() ? nullptr : &*preset;
}

const Preset *SessionPresets::findOwn(const QString &name) const
{
    const Preset *preset = find(name);
    return preset && !preset->isSite ? preset : nullptr;
}

void SessionPresets::chooseDefaults()
{
    m_chosen.clear();
    m_isLastUsedChosen = false;
    m_picked = Beginning::Defaults;
    m_job.usePreset(nullptr);
}

void SessionPresets::chooseLastUsed()
{
    m_chosen.clear();
    m_isLastUsedChosen = true;
    m_picked = Beginning::LastUsed;
    m_job.usePreset(m_lastUsed ? &*m_lastUsed : nullptr);
}

Result<void> SessionPresets::choose(const QString &name)
{
    const auto file = m_store.read(name);
    if (!file)
        return file.error();
    m_chosen = name;
    m_isLastUsedChosen = false;
    m_picked = Beginning::Preset;
    m_job.usePreset(&file.value());
    return {};
}

Result<void> SessionPresets::save(const QString &name, std::optional<bool> keepsSecrets)
{
    m_job.writeAll();
    TicketFile ticket = m_job.preset();
    if (findOwn(name)) {
        if (const auto stored = m_store.read(name)) {
            Dictionary unknown = stored.value().unknown;
            unknown.insert(ticket.unknown);
            ticket.unknown = unknown;
            if (!keepsSecrets)
                keepsSecrets = holdsSecret(stored.value(), m_job.secretKeys());
        }
        ticket.unknown.remove(kTicketNonceKey);
    }
    if (auto saved = m_store.save(name, ticket, m_job.secretKeys(), keepsSecrets.value_or(false));
        !saved)
        return saved;
    m_chosen = name;
    m_isLastUsedChosen = false;
    m_picked = Beginning::Preset;
    m_job.takeAsUnchanged();
    reload();
    return {};
}

Result<void> SessionPresets::rename(const QString &to)
{
    if (auto renamed = m_store.rename(m_chosen, to); !renamed)
        return renamed;
    m_chosen = to;
    m_picked = Beginning::Preset;
    reload();
    return {};
}

Result<void> SessionPresets::remove()
{
    if (auto removed = m_store.remove(m_chosen); !removed)
        return removed;
    m_chosen.clear();
    m_job.takeAsChanged();
    reload();
    return {};
}

} // namespace kelvo
