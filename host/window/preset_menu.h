#pragma once

#include "event.h"
#include "presets.h"

#include <QWidget>

namespace kelvo {

class DialogSession;
class MenuButton;
class PopupButton;

// Where a preset gets its name: `ok` is what the button says.
QWidget *makePresetNamePane(const QString &title, const QString &ok, const QString &name,
                            bool asksForSecrets);

// Chooses a preset for the session, and saves, renames and deletes the user's
// own. A star behind the name says that settings were changed since.
class PresetMenu : public QWidget
{
    Q_OBJECT

public:
    // `chosen` is what the session began with; empty: the defaults.
    PresetMenu(DialogSession &session, const QString &chosen, QWidget *parent = nullptr);

    void updateStar();
    QWidget *popup() const; // what a label in front of this is for

private:
    enum Reference { Defaults = -1 }; // else the row in m_presets

    void reload();
    void fillMenu();
    OSStatus handle(const Event &event);
    void choose(int reference);
    void save();
    void saveAs();
    void rename();
    void remove();
    // Without `keepSecrets`, as the preset that is replaced has it.
    bool store(const QString &name, std::optional<bool> keepSecrets);
    Result<void> write(const QString &name, std::optional<bool> keepSecrets);
    const Preset *chosenPreset() const;
    const Preset *findOwn(const QString &name) const;

    DialogSession &m_session;
    PresetStore m_store;
    std::vector<Preset> m_presets;
    QString m_chosen;
    bool m_hasStar = false;
    PopupButton *m_popup;
    MenuButton *m_button;
    EventHandlerRef m_handler;
};

} // namespace kelvo
