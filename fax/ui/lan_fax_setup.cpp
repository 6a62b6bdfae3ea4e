#include "lan_fax_setup.h"

#include "address_book_picker.h"
#include "cover_sheet.h"
#include "cover_sheet_dialog.h"
#include "cover_sheet_preview.h"
#include "dialog_window.h"
#include "fax_preferences_dialog.h"
#include "fax_texts.h"
#include "lan_fax_view.h"
#include "list_view.h"
#include "max_characters_dialog.h"
#include "newest_task.h"
#include "popups.h"
#include "recipient_dialogs.h"
#include "recipient_rows.h"
#include "save_group_dialog.h"
#include "string_table.h"
#include "tab_control.h"
#include "time_field.h"
#include "tool_tip.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTimer>

#include <chrono>
#include <optional>
#include <set>

namespace kelvo {

namespace {

constexpr OSType kCommandAdd = fourCharCode("LFad");
constexpr OSType kCommandAddFromAddressBook = fourCharCode("LFab");
constexpr OSType kCommandEdit = fourCharCode("LFed");
constexpr OSType kCommandRemove = fourCharCode("LFrm");
constexpr OSType kCommandRemoveAll = fourCharCode("LFra");
constexpr OSType kCommandSaveGroup = fourCharCode("LFsg");
constexpr OSType kCommandSendNow = fourCharCode("LFsn");
constexpr OSType kCommandSendAt = fourCharCode("LFsl");
constexpr OSType kCommandPrefix = fourCharCode("LFdp");
constexpr OSType kCommandCoverMenu = fourCharCode("LFco");
constexpr OSType kCommandCoverSetup = fourCharCode("LFcv");
constexpr OSType kCommandTab = fourCharCode("LFtb");
constexpr OSType kCommandPreferences = fourCharCode("pref");

struct LanFaxSetup
{
    RecipientEditing editing;
    Dictionary options;
    FaxControls values; // as SyncToUI() had them, with what the preferences say now
    CoverSheetWords words;
    std::vector<FaxRecipient *> rows; // as the list was reloaded with them last
    std::unique_ptr<ModalDialog> window;
    LanFaxControls controls;
    CoverSheetPreview *preview = nullptr; // the view's
    bool hasAddressBook = false;
    NewestTask lookingForAddressBook; // last: it ends first
};

QString text(const LanFaxSetup &setup, const char *key)
{
    return faxText(setup.editing.device.bundle, key);
}

void sayPreview(const LanFaxSetup &setup)
{
    setup.controls.previewHint->setText(hasCoverSheet(setup.controls)
                                            ? setup.preview->notice()
                                            : text(setup, "No Cover Sheet Hint"));
}

void showPreview(const LanFaxSetup &setup)
{
    // Without one, a page on which there is nothing.
    setup.preview->show(hasCoverSheet(setup.controls)
                            ? coverSheetContent(setup.options, setup.controls.notes->toPlainText(),
                                                setup.editing.recipients, setup.words)
                            : coverSheetContent({}, {}, {}, setup.words));
    sayPreview(setup);
}

// Those who were selected stay so.
void showRecipientList(LanFaxSetup &setup)
{
    ListView *list = setup.controls.recipients;
    const std::vector<FaxRecipient *> selected = selectedOf(list, setup.rows);
    const std::set<FaxRecipient *> wanted(selected.begin(), selected.end());
    setup.rows = allOf(setup.editing.recipients);
    list->reload(static_cast<int>(setup.rows.size()));
    std::vector<int> rows;
    for (std::size_t i = 0; i < setup.rows.size() && !wanted.empty(); ++i) {
        if (wanted.contains(setup.rows[i]))
            rows.push_back(static_cast<int>(i));
    }
    list->selectRows(rows);
    QString count = text(setup, "No Recipients Yet");
    if (setup.rows.size() == 1)
        count = text(setup, "One Recipient");
    else if (!setup.rows.empty())
        count = formatted(text(setup, "Number of Recipients"),
                          {QLocale().toString(static_cast<qlonglong>(setup.rows.size()))});
    setup.controls.recipientsHint->setText(count);
    enableRecipientButtons(setup.controls, setup.hasAddressBook);
    showPreview(setup);
}

void enableControls(const LanFaxSetup &setup)
{
    enableFaxControls(setup.controls, setup.editing.device, setup.values, currentLongDate());
}

bool CheckMaxDialingStringExceeded(LanFaxSetup &setup)
{
    if (!setup.editing.needsDialingCheck)
        return false;
    const LanFaxControls &controls = setup.controls;
    std::optional<QString> prefix;
    if (controls.prefixOn->isChecked())
        prefix = controls.prefix->text();
    const bool canBeDialed = ValidateMaxCharacters(setup.editing, prefix, setup.window.get());
    if (canBeDialed)
        setup.editing.needsDialingCheck = false;
    controls.prefixOn->setChecked(prefix.has_value());
    controls.prefix->setText(prefix.value_or(QString()));
    enableControls(setup);
    return !canBeDialed;
}

// After recipients were added or edited.
void takeRecipients(LanFaxSetup &setup)
{
    CheckMaxDialingStringExceeded(setup);
    showRecipientList(setup);
}

void removeRecipients(LanFaxSetup &setup, const std::vector<FaxRecipient *> &selected)
{
    if (RemoveSelectedRecipients(setup.editing, selected, setup.window.get()))
        showRecipientList(setup);
}

void editSelected(LanFaxSetup &setup)
{
    const std::vector<FaxRecipient *> selected = selectedOf(setup.controls.recipients, setup.rows);
    if (selected.size() == 1
        && RunModalEditRecipientDialog(setup.editing, selected.front(), setup.window.get())
            == DialogResult::OK)
        takeRecipients(setup);
}

void addRecipients(LanFaxSetup &setup,
                   DialogResult (*dialog)(RecipientEditing &editing, QWidget *parent))
{
    if (dialog(setup.editing, setup.window.get()) == DialogResult::OK)
        takeRecipients(setup);
}

void setUpCoverSheet(LanFaxSetup &setup)
{
    RunModalCoverSheetDialog(setup.editing.device, &setup.options, setup.editing.recipients,
                             setup.controls.notes->toPlainText(), setup.window.get());
    showPreview(setup);
}

void chooseCoverSheet(LanFaxSetup &setup)
{
    enableControls(setup);
    showPreview(setup);
    if (!hasCoverSheet(setup.controls))
        return;
    setup.controls.notes->setFocus();
    setUpCoverSheet(setup);
}

void chooseSendTime(LanFaxSetup &setup, bool isLater)
{
    (isLater ? setup.controls.sendAt : setup.controls.sendNow)->setChecked(true);
    enableControls(setup);
    if (isLater)
        setup.controls.sendTime->setFocus();
}

void togglePrefix(LanFaxSetup &setup)
{
    setup.editing.needsDialingCheck = true;
    enableControls(setup);
    if (setup.controls.prefix->isEnabled())
        setup.controls.prefix->setFocus();
}

void changeTab(LanFaxSetup &setup)
{
    const LanFaxControls &controls = setup.controls;
    UpdateTabControl(controls.tabs, static_cast<int>(controls.panes.size()), controls.panes.data());
    takeRecipients(setup);
}

OSStatus handleCommand(LanFaxSetup &setup, OSType command)
{
    switch (command) {
    case kCommandAdd:
        addRecipients(setup, RunModalAddRecipientDialog);
        return noErr;
    case kCommandAddFromAddressBook:
        addRecipients(setup, RunModalAddressBookPicker);
        return noErr;
    case kCommandEdit:
        editSelected(setup);
        return noErr;
    case kCommandRemove:
        removeRecipients(setup, selectedOf(setup.controls.recipients, setup.rows));
        return noErr;
    case kCommandRemoveAll:
        removeRecipients(setup, setup.rows);
        return noErr;
    case kCommandSaveGroup:
        RunModalSaveGroupDialog(setup.editing, setup.window.get());
        return noErr;
    case kCommandSendNow:
    case kCommandSendAt:
        chooseSendTime(setup, command == kCommandSendAt);
        return noErr;
    case kCommandPrefix:
        togglePrefix(setup);
        return noErr;
    case kCommandCoverMenu:
        chooseCoverSheet(setup);
        return noErr;
    case kCommandCoverSetup:
        setUpCoverSheet(setup);
        return noErr;
    case kCommandTab:
        changeTab(setup);
        return noErr;
    case kCommandPreferences:
        RunModalFaxPreferencesDialog(setup.editing.device.bundle, &setup.editing.promptDuplicate,
                                     &setup.editing.promptRemove, setup.window.get());
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

OSStatus handleEvent(LanFaxSetup &setup, const Event &event)
{
    const LanFaxControls &controls = setup.controls;
    switch (event.kind) {
    case EventKind::Command:
        return handleCommand(setup, event.command);
    case EventKind::ControlHit:
        if (event.source == controls.coverSheet)
            return handleCommand(setup, kCommandCoverMenu);
        if (event.source == controls.sendTime)
            enableControls(setup);
        return eventNotHandledErr;
    case EventKind::TextChanged:
        if (event.source == controls.notes)
            showPreview(setup);
        return eventNotHandledErr;
    case EventKind::ListSelection:
        enableRecipientButtons(controls, setup.hasAddressBook);
        return noErr;
    case EventKind::ListActivated:
        if (event.row >= 0)
            return handleCommand(setup, kCommandEdit);
        return setup.rows.empty() ? handleCommand(setup, kCommandAdd) : noErr;
    default:
        return eventNotHandledErr;
    }
}

// `problem`: why there is none; none where there is.
void takeAddressBook(LanFaxSetup &setup, const std::optional<QString> &problem)
{
    const LanFaxControls &controls = setup.controls;
    setAwaited(controls.saveGroup, false);
    setup.hasAddressBook = !problem;
    const QString hint =
        problem ? formatted(text(setup, "No Address Book Hint"), {*problem}) : QString();
    controls.addressBookHint->setText(hint);
    setPlainToolTip(controls.saveGroup, hint);
    enableRecipientButtons(controls, setup.hasAddressBook);
}

// On a thread: its library is opened, and the desktop asked.
void lookForAddressBook(LanFaxSetup &setup)
{
    const bool isStarted =
        setup.lookingForAddressBook.start([&setup](const std::atomic_bool &isUnwanted) {
            const Result<const AddressBook *> book = addressBook();
            const Result<void> found =
                book ? book.value()->find(&isUnwanted) : Result<void>(book.error());
            std::optional<QString> problem;
            if (!found)
                problem = found.error().detail;
            return [&setup, problem] { takeAddressBook(setup, problem); };
        });
    setAwaited(setup.controls.saveGroup, true);
    if (!isStarted)
        takeAddressBook(setup, QString());
}

void initialize(LanFaxSetup &setup)
{
    const Device &device = setup.editing.device;
    setup.words = coverSheetWords(device.bundle);
    prepareLanFaxControls(setup.controls, device);
    showRecipients(setup.controls.recipients, device, RecipientColumns::All,
                   [&setup](int row) { return setup.editing.recipients.recipientAtIndex(row); });
    setup.preview = new CoverSheetPreview(device.bundle, setup.controls.preview);
    QObject::connect(setup.preview, &CoverSheetPreview::noticed, setup.window.get(),
                     [&setup] { sayPreview(setup); });
    setup.values = SyncToUI(setup.options);
    showFaxControls(setup.controls, device, setup.values);
    setup.editing.promptDuplicate = setup.values.promptDuplicate;
    setup.editing.promptRemove = setup.values.promptRemove;
    enableControls(setup);
    showRecipientList(setup);
    lookForAddressBook(setup);
    auto *removing = new QShortcut(QKeySequence::Delete, setup.controls.recipients, nullptr,
                                   nullptr, Qt::WidgetShortcut);
    QObject::connect(removing, &QShortcut::activated, setup.window.get(),
                     [&setup] { handleCommand(setup, kCommandRemove); });
    // A chosen time passes while the window is open.
    auto *clock = new QTimer(setup.window.get());
    QObject::connect(clock, &QTimer::timeout, setup.window.get(),
                     [&setup] { enableControls(setup); });
    clock->start(std::chrono::seconds(1));
}

void take(LanFaxSetup &setup)
{
    const LongDateTime now = currentLongDate();
    takeFaxControls(setup.controls, setup.values, now);
    setup.values.promptDuplicate = setup.editing.promptDuplicate;
    setup.values.promptRemove = setup.editing.promptRemove;
    SyncFromUI(setup.values, setup.options, now, setup.words.notes);
}

} // namespace

DialogResult RunModalLANFaxSetup(const Device &device, Dictionary *options,
                                 FaxRecipientList *recipients, QWidget *parent)
{
    if (!device.bundle || !options || !recipients)
        return DialogResult::Cancel;
    LanFaxSetup setup;
    setup.editing.device = device;
    setup.editing.recipients = *recipients; // of its own
    setup.options = *options;
    setup.window =
        createModalDialog(device.bundle, QStringLiteral("LANFAX"), QStringLiteral("LANFAX"), parent,
                          [&setup](NeededControls &needed) { setup.controls.find(needed); });
    if (!setup.window)
        return DialogResult::Cancel;
    initialize(setup);
    const EventHandlerRef handler = installEventHandler(
        setup.window.get(), [&setup](const Event &event) { return handleEvent(setup, event); });
    setup.window->setAcceptRule([&setup] {
        const bool isRefused = CheckMaxDialingStringExceeded(setup);
        showRecipientList(setup);
        return !isRefused;
    });
    if (setup.window->runModal() != DialogResult::OK)
        return DialogResult::Cancel;
    take(setup);
    *options = setup.options;
    recipients->removeAll();
    for (FaxRecipient *recipient : allOf(setup.editing.recipients))
        recipients->append(recipient);
    return DialogResult::OK;
}

} // namespace kelvo
