#include "preset_menu.h"

#include "button_row.h"
#include "input_limits.h"
#include "menu_button.h"
#include "modal_dialog.h"
#include "notice.h"
#include "popup_button.h"
#include "session_job.h"
#include "tool_tip.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kelvo {

namespace {

constexpr OSType kSave = fourCharCode("PsSv");
constexpr OSType kSaveAs = fourCharCode("PsSA");
constexpr OSType kRename = fourCharCode("PsRn");
constexpr OSType kDelete = fourCharCode("PsDl");

constexpr int maximumNameLength = 60; // characters; what a menu shows

QString defaultsName()
{
    return PresetMenu::tr("Default settings");
}

QString lastUsedName()
{
    return PresetMenu::tr("Last used settings");
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

QString presetNameProblem(const QString &name)
{
    QString bare = name.simplified();
    if (bare.isEmpty())
        return PresetMenu::tr("Type a name for the preset.");
    // The star stands behind the name of one that was changed.
    if (bare.endsWith(u'*'))
        bare.chop(1);
    if (bare.simplified().compare(defaultsName(), Qt::CaseInsensitive) == 0)
        return PresetMenu::tr("“%1” is how the printer comes. Choose another name.")
            .arg(defaultsName());
    if (bare.simplified().compare(lastUsedName(), Qt::CaseInsensitive) == 0)
        return PresetMenu::tr("“%1” is what was printed with last. Choose another name.")
            .arg(lastUsedName());
    return {};
}

QWidget *makePresetNamePane(const QString &title, const QString &ok, const QString &name,
                            bool asksForSecrets)
{
    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("presetNameDialog"));
    content->setProperty("helpPage", QStringLiteral("host/presets.html"));
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
    setOwnToolTip(secrets, PresetMenu::tr("Whoever can read the preset can read them"));
    secrets->setVisible(asksForSecrets);
    auto *buttons = new ButtonRow(content);
    auto *cancelButton = new QPushButton(PresetMenu::tr("Cancel"), buttons);
    cancelButton->setObjectName(QStringLiteral("cancel"));
    cancelButton->setProperty("command", QStringLiteral("not!"));
    auto *okButton = new QPushButton(ok, buttons);
    okButton->setObjectName(QStringLiteral("ok"));
    okButton->setProperty("command", QStringLiteral("ok  "));
    for (QWidget *control :
         std::initializer_list<QWidget *>{field, secrets, cancelButton, okButton})
        sendControlEvents(control);
    buttons->arrange();

    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(20, 20, 20, 20);
    grid->setVerticalSpacing(10);
    grid->addWidget(label, 0, 0);
    grid->addWidget(field, 0, 1);
    grid->addWidget(secrets, 1, 1);
    grid->addWidget(buttons, 2, 0, 1, 2);
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
        if (const QString problem = presetNameProblem(wanted); !problem.isEmpty()) {
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

PresetMenu::PresetMenu(SessionJob &job, const SessionPresets::Chosen &chosen,
                       std::optional<TicketFile> lastUsed, QWidget *parent)
    : QWidget(parent)
    , m_job(job)
    , m_presets(job, chosen, std::move(lastUsed))
    , m_popup(new PopupButton(this))
    , m_button(new MenuButton(this))
{
    m_popup->setObjectName(QStringLiteral("preset"));
    m_popup->setChoosesInListOnly(true); // each is laid over the settings made till then
    setOwnToolTip(m_popup, tr("A star means that settings have changed since it was chosen."));
    m_button->setObjectName(QStringLiteral("presetMenu"));
    m_button->setText(QStringLiteral("…"));
    m_button->setAccessibleName(tr("Preset actions"));
    setOwnToolTip(m_button, tr("Save, rename or delete presets"));
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
        const Preset *preset = m_presets.chosen();
        const bool isOwn = preset && !preset->isSite;
        findItem(menu, kSave)->enabled = isOwn && m_job.isChanged();
        findItem(menu, kRename)->enabled = isOwn;
        findItem(menu, kDelete)->enabled = isOwn;
    });
    fillMenu(false);
    m_handler = installEventHandler(this, [this](const Event &event) { return handle(event); });
}

QWidget *PresetMenu::popup() const
{
    return m_popup;
}

void PresetMenu::fillMenu(bool hasStar)
{
    m_hasStar = hasStar;
    const Preset *chosen = m_presets.chosen();
    const auto starred = [hasStar](const QString &name, bool isChosen) {
        return isChosen && hasStar ? tr("%1*", "a preset that was changed").arg(name) : name;
    };
    const std::vector<Preset> &presets = m_presets.all();
    Menu menu;
    const bool isLastUsed = m_presets.isLastUsedChosen();
    menu.items.push_back(
        {.text = starred(defaultsName(), !chosen && !isLastUsed), .reference = Defaults});
    if (m_presets.hasLastUsed())
        menu.items.push_back(
            {.text = starred(lastUsedName(), isLastUsed), .reference = Reference::LastUsed});
    if (!presets.empty())
        menu.items.push_back({.reference = Defaults, .divider = true});
    std::int32_t shown = isLastUsed ? Reference::LastUsed : Defaults;
    for (std::size_t i = 0; i < presets.size(); ++i) {
        const auto reference = static_cast<std::int32_t>(i);
        const bool isChosen = &presets[i] == chosen;
        if (isChosen)
            shown = reference;
        menu.items.push_back({.text = starred(presets[i].name, isChosen),
                              .key = presets[i].name,
                              .reference = reference});
    }
    m_popup->setMenu(std::move(menu));
    m_popup->setValueByReference(shown);
}

void PresetMenu::updateStar()
{
    if (const bool isChanged = m_job.isChanged(); isChanged != m_hasStar)
        fillMenu(isChanged);
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
        m_presets.chooseDefaults();
        fillMenu(false);
        return;
    }
    if (reference == Reference::LastUsed) {
        m_presets.chooseLastUsed();
        fillMenu(false);
        return;
    }
    const QString name = m_presets.all()[static_cast<std::size_t>(reference)].name;
    const auto chosen = [this, &name] {
        const WaitCursor waiting;
        return m_presets.choose(name);
    }();
    if (chosen) {
        fillMenu(false);
        return;
    }
    CFUserNotificationDisplayNotice(
        NoticeLevel::Caution, tr("The preset “%1” cannot be read").arg(name),
        tr("%1\nThe settings stay as they are.").arg(chosen.reason()), {}, this);
    fillMenu(m_hasStar);
}

void PresetMenu::store(const QString &name, std::optional<bool> keepsSecrets)
{
    const auto saved = [&] {
        const WaitCursor waiting;
        return m_presets.save(name, keepsSecrets);
    }();
    if (saved)
        fillMenu(false);
    else
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not saved").arg(name),
                                        saved.reason(), {}, this);
}

void PresetMenu::save()
{
    const Preset *preset = m_presets.chosen();
    if (preset && !preset->isSite)
        store(QString(preset->name), std::nullopt);
}

void PresetMenu::saveAs()
{
    const Preset *preset = m_presets.chosen();
    const auto answer =
        askForName(this, tr("Save Preset"), tr("&Save"), preset ? preset->name : QString(), true,
                   true, [this](const QString &name) { return m_presets.findOwn(name); });
    if (answer)
        store(answer->name, answer->keepsSecrets);
}

void PresetMenu::rename()
{
    const Preset *preset = m_presets.chosen();
    if (!preset)
        return;
    const QString from = preset->name;
    const auto answer =
        askForName(this, tr("Rename Preset"), tr("&Rename"), from, false, false,
                   [&](const QString &name) { return name != from && m_presets.findOwn(name); });
    if (!answer || answer->name == from)
        return;
    if (const auto renamed = m_presets.rename(answer->name); renamed)
        fillMenu(m_hasStar);
    else
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not renamed").arg(from),
                                        renamed.reason(), {}, this);
}

void PresetMenu::remove()
{
    const Preset *preset = m_presets.chosen();
    if (!preset)
        return;
    const QString name = preset->name;
    if (CFUserNotificationDisplayAlert(
            NoticeLevel::Caution, tr("Delete the preset “%1”?").arg(name),
            tr("The settings in this window stay as they are."), {tr("Delete"), tr("Cancel")}, this)
        != 1)
        return;
    if (const auto removed = m_presets.remove(); removed)
        fillMenu(true); // the settings stay, and are not the defaults
    else
        CFUserNotificationDisplayNotice(NoticeLevel::Stop,
                                        tr("The preset “%1” was not deleted").arg(name),
                                        removed.reason(), {}, this);
}

} // namespace kelvo
