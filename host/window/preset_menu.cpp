#include "preset_menu.h"

#include "dialog_session.h"
#include "input_limits.h"
#include "menu_button.h"
#include "modal_dialog.h"
#include "notice.h"
#include "popup_button.h"
#include "ticket_attachment.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace kelvo {

namespace {

constexpr OSType kSave = fourCharCode("PsSv");
constexpr OSType kSaveAs = fourCharCode("PsSA");
constexpr OSType kRename = fourCharCode("PsRn");
constexpr OSType kDelete = fourCharCode("PsDl");

constexpr int maximumNameLength = 60; // characters; what a menu shows

QString defaultsName()
{
    return PresetMenu::tr("Default Settings");
}

// Why no preset can have this name; empty when one can.
QString problemWithName(const QString &name)
{
    if (name.isEmpty())
        return PresetMenu::tr("Type a name for the preset.");
    // The star stands behind the name of one that was changed.
    QString bare = name;
    if (bare.endsWith(u'*'))
        bare.chop(1);
    if (bare.simplified().compare(defaultsName(), Qt::CaseInsensitive) == 0)
        return PresetMenu::tr("“%1” is how the printer comes. Choose another name.")
            .arg(defaultsName());
    return {};
}

// A preset may have 100 MB, which takes seconds to read and to write.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY_MOVE(WaitCursor)
};

struct NameAnswer
{
    QString name;
    bool keepsSecrets = false;
};

} // namespace

QWidget *makePresetNamePane(const QString &title, const QString &ok, const QString &name,
                            bool asksForSecrets)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("presetNameDialog"));
    content->setWindowTitle(title);
    auto *label = new QLabel(PresetMenu::tr("&Name:"), content);
    auto *field = new QLineEdit(name, content);
    field->setObjectName(QStringLiteral("presetName"));
    field->setAccessibleName(PresetMenu::tr("Name of the preset"));
    field->setMaxLength(maximumNameLength);
    setInputLimits(field, {}); // the preset is a property list
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 36);
    field->selectAll();
    label->setBuddy(field);
    auto *secrets = new QCheckBox(PresetMenu::tr("&Keep passcodes in this preset"), content);
    secrets->setObjectName(QStringLiteral("keepPasscodes"));
    secrets->setToolTip(PresetMenu::tr("Whoever can read the preset can read them"));
    secrets->setVisible(asksForSecrets);
    auto *cancelButton = new QPushButton(PresetMenu::tr("Cancel"), content);
    cancelButton->setObjectName(QStringLiteral("cancel"));
    cancelButton->setProperty("command", QStringLiteral("not!"));
    auto *okButton = new QPushButton(ok, content);
    okButton->setObjectName(QStringLiteral("ok"));
    okButton->setProperty("command", QStringLiteral("ok  "));
    for (QWidget *control :
         std::initializer_list<QWidget *>{field, secrets, cancelButton, okButton})
        sendControlEvents(control);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch(1);
    buttons->addWidget(cancelButton);
    buttons->addWidget(okButton);
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setVerticalSpacing(10);
    grid->addWidget(label, 0, 0);
    grid->addWidget(field, 0, 1);
    grid->addWidget(secrets, 1, 1);
    grid->addLayout(buttons, 2, 0, 1, 2);
    return content;
}

namespace {

// Asks for a preset's name. `taken` says whether a name is another preset's;
// one that may be replaced is asked about, unless `mayReplace` is false.
std::optional<NameAnswer> askForName(QWidget *parent, const QString &title, const QString &ok,
                                     const QString &name, bool asksForSecrets, bool mayReplace,
                                     const std::function<bool(const QString &)> &taken)
{
    QWidget *content = makePresetNamePane(title, ok, name, asksForSecrets);
    auto *field = content->findChild<QLineEdit *>();
    auto *secrets = content->findChild<QCheckBox *>();
    ModalDialog dialog(content, parent);
    dialog.setAcceptRule([&] {
        const QString wanted = field->text().simplified();
        if (const QString problem = problemWithName(wanted); !problem.isEmpty()) {
            CFUserNotificationDisplayNotice(NoticeLevel::Caution,
                                            PresetMenu::tr("A preset cannot have this name"),
                                            problem, {}, &dialog);
            return false;
        }
        if (!taken(wanted))
            return true;
        if (mayReplace)
            return CFUserNotificationDisplayAlert(
                       NoticeLevel::Caution, PresetMenu::tr("Replace the preset “%1”?").arg(wanted),
                       PresetMenu::tr("There is a preset of this name. Its settings are lost when "
                                      "you replace it."),
                       {PresetMenu::tr("Replace"), PresetMenu::tr("Cancel")}, &dialog)
                == 1;
        CFUserNotificationDisplayNotice(
            NoticeLevel::Caution, PresetMenu::tr("There is a preset “%1” already").arg(wanted),
            PresetMenu::tr("Choose another name."), {}, &dialog);
        return false;
    });
    if (dialog.runModal() != DialogResult::OK)
        return std::nullopt;
    return NameAnswer{field->text().simplified(), secrets->isChecked()};
}

} // namespace

PresetMenu::PresetMenu(DialogSession &session, const QString &chosen, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
    , m_chosen(chosen)
    , m_popup(new PopupButton(this))
    , m_button(new MenuButton(this))
{
    m_popup->setObjectName(QStringLiteral("preset"));
    m_button->setObjectName(QStringLiteral("presetMenu"));
    m_button->setText(QStringLiteral("…"));
    m_button->setAccessibleName(tr("Preset actions"));
    m_button->setToolTip(tr("Save, rename or delete presets"));
    // Three dots and the arrow of a menu; a button's usual width would take the
    // names' room.
    m_button->setMaximumWidth(m_button->fontMetrics().horizontalAdvance(u'…')
                              + m_button->fontMetrics().height() + 20);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_popup, 1);
    layout->addWidget(m_button);
    setTabOrder(m_popup, m_button);

    Menu actions;
    actions.items = {{.text = tr("Save"), .command = kSave},
                     {.text = tr("Save As…"), .command = kSaveAs},
                     {.divider = true},
                     {.text = tr("Rename…"), .command = kRename},
                     {.text = tr("Delete"), .command = kDelete}};
    m_button->setMenu(std::move(actions));
    m_button->setMenuUpdate([this](Menu &menu) {
        const Preset *preset = chosenPreset();
        const bool isOwn = preset && !preset->isSite;
        findItem(menu, kSave)->enabled = isOwn && m_session.isChanged();
        findItem(menu, kRename)->enabled = isOwn;
        findItem(menu, kDelete)->enabled = isOwn;
    });
    reload();
    m_handler = installEventHandler(this, [this](const Event &event) { return handle(event); });
}

QWidget *PresetMenu::popup() const
{
    return m_popup;
}

const Preset *PresetMenu::chosenPreset() const
{
    const auto preset = std::find_if(m_presets.cbegin(), m_presets.cend(),
                                     [this](const Preset &p) { return p.name == m_chosen; });
    return preset == m_presets.cend() ? nullptr : &*preset;
}

const Preset *PresetMenu::findOwn(const QString &name) const
{
    const auto preset =
        std::find_if(m_presets.cbegin(), m_presets.cend(),
                     [&name](const Preset &p) { return !p.isSite && p.name == name; });
    return preset == m_presets.cend() ? nullptr : &*preset;
}

void PresetMenu::reload()
{
    m_presets = m_store.presets();
    if (!chosenPreset())
        m_chosen.clear();
    fillMenu();
}

void PresetMenu::fillMenu()
{
    const auto starred = [this](const QString &name, bool isChosen) {
        return isChosen && m_hasStar ? tr("%1*", "a preset that was changed").arg(name) : name;
    };
    Menu menu;
    menu.items.push_back(
        {.text = starred(defaultsName(), m_chosen.isEmpty()), .reference = Defaults});
    if (!m_presets.empty())
        menu.items.push_back({.reference = Defaults, .divider = true});
    std::int32_t shown = Defaults;
    for (std::size_t i = 0; i < m_presets.size(); ++i) {
        const Preset &preset = m_presets[i];
        const auto reference = static_cast<std::int32_t>(i);
        const bool isChosen = preset.name == m_chosen;
        if (isChosen)
            shown = reference;
        menu.items.push_back(
            {.text = starred(preset.name, isChosen), .key = preset.name, .reference = reference});
    }
    m_popup->setMenu(std::move(menu));
    m_popup->setValueByReference(shown);
}

void PresetMenu::updateStar()
{
    const bool isChanged = m_session.isChanged();
    if (isChanged == m_hasStar)
        return;
    m_hasStar = isChanged;
    fillMenu();
}

OSStatus PresetMenu::handle(const Event &event)
{
    if (event.kind == EventKind::ControlHit && event.source == m_popup) {
        choose(m_popup->chosenReference());
        return noErr;
    }
    if (event.kind != EventKind::Command)
        return eventNotHandledErr;
    switch (event.command) {
    case kSave:
        save();
        return noErr;
    case kSaveAs:
        saveAs();
        return noErr;
    case kRename:
        rename();
        return noErr;
    case kDelete:
        remove();
        return noErr;
    }
    return eventNotHandledErr;
}

void PresetMenu::choose(int reference)
{
    if (reference == Defaults) {
        m_chosen.clear();
        m_session.usePreset(nullptr);
    } else {
        const Preset &preset = m_presets[static_cast<std::size_t>(reference)];
        const auto file = [this, &preset] {
            const WaitCursor waiting;
            return m_store.read(preset.name);
        }();
        if (!file) {
            CFUserNotificationDisplayNotice(
                NoticeLevel::Caution, tr("The preset “%1” cannot be read").arg(preset.name),
                tr("%1\nThe settings stay as they are.").arg(file.error().text()), {}, this);
            fillMenu();
            return;
        }
        m_chosen = preset.name;
        m_session.usePreset(&file.value());
    }
    m_hasStar = false;
    fillMenu();
}

Result<void> PresetMenu::write(const QString &name, std::optional<bool> keepSecrets)
{
    const WaitCursor waiting;
    TicketFile ticket = m_session.preset();
    if (findOwn(name)) {
        if (const auto stored = m_store.read(name)) {
            // A preset that is replaced keeps what we do not know of it, and passcodes
            // once kept are kept on.
            Dictionary unknown = stored.value().unknown;
            unknown.insert(ticket.unknown);
            ticket.unknown = unknown;
            if (!keepSecrets)
                keepSecrets = holdsSecret(stored.value(), m_session.secretKeys());
        }
        ticket.unknown.remove(kTicketNonceKey);
    }
    return m_store.save(name, ticket, m_session.secretKeys(), keepSecrets.value_or(false));
}

bool PresetMenu::store(const QString &name, std::optional<bool> keepSecrets)
{
    m_session.writeAll();
    if (const auto saved = write(name, keepSecrets); !saved) {
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not saved").arg(name),
                                        saved.error().text(), {}, this);
        return false;
    }
    m_chosen = name;
    m_session.takeAsUnchanged();
    m_hasStar = false;
    reload();
    return true;
}

void PresetMenu::save()
{
    const Preset *preset = chosenPreset();
    if (preset && !preset->isSite)
        store(QString(preset->name), std::nullopt);
}

void PresetMenu::saveAs()
{
    const auto answer =
        askForName(this, tr("Save Preset"), tr("&Save"), m_chosen, true, true,
                   [this](const QString &name) { return findOwn(name) != nullptr; });
    if (answer)
        store(answer->name, answer->keepsSecrets);
}

void PresetMenu::rename()
{
    const QString from = m_chosen;
    const auto answer =
        askForName(this, tr("Rename Preset"), tr("&Rename"), from, false, false,
                   [this, &from](const QString &name) { return name != from && findOwn(name); });
    if (!answer || answer->name == from)
        return;
    if (const auto renamed = m_store.rename(from, answer->name); !renamed) {
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not renamed").arg(from),
                                        renamed.error().text(), {}, this);
        return;
    }
    m_chosen = answer->name;
    reload();
}

void PresetMenu::remove()
{
    const QString name = m_chosen;
    if (CFUserNotificationDisplayAlert(
            NoticeLevel::Caution, tr("Delete the preset “%1”?").arg(name),
            tr("The settings in this window stay as they are."), {tr("Delete"), tr("Cancel")}, this)
        != 1)
        return;
    if (const auto removed = m_store.remove(name); !removed) {
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not deleted").arg(name),
                                        removed.error().text(), {}, this);
        return;
    }
    // The settings stay, and are not the defaults.
    m_chosen.clear();
    m_session.takeAsChanged();
    m_hasStar = true;
    reload();
}

} // namespace kelvo
