#pragma once

#include "event.h"
#include "session_presets.h"

#include <QWidget>

namespace kelvo {

class MenuButton;
class PopupButton;

// Where a preset gets its name: `ok` is what the button says.
QWidget *makePresetNamePane(const QString &title, const QString &ok, const QString &name,
                            bool asksForSecrets);

// Why no preset can have this name, a sentence; empty when one can.
QString presetNameProblem(const QString &name);

// Chooses a preset for the job, and saves, renames and deletes the user's
// own. A star behind the name says that settings were changed since.
class PresetMenu : public QWidget
{
    Q_OBJECT

public:
    // As SessionPresets.
    PresetMenu(SessionJob &job, const SessionPresets::Chosen &chosen,
               std::optional<TicketFile> lastUsed, QWidget *parent = nullptr);

    const SessionPresets &presets() const { return m_presets; }

    void updateStar();
    QWidget *popup() const; // what a label in front of this is for

private:
    enum Reference { LastUsed = -2, Defaults = -1 }; // else the row in m_presets.all()

    void fillMenu(bool hasStar);
    OSStatus handle(const Event &event);
    void choose(int reference);
    void save();
    void saveAs();
    void rename();
    void remove();
    void store(const QString &name, std::optional<bool> keepsSecrets);

    SessionJob &m_job;
    SessionPresets m_presets;
    bool m_hasStar = false;
    PopupButton *m_popup;
    MenuButton *m_button;
    EventHandlerRef m_handler;
};

} // namespace kelvo
