#include "cover_sheet_dialog.h"

#include "control.h"
#include "cover_image_menu.h"
#include "cover_sheet.h"
#include "cover_sheet_preview.h"
#include "dialog_window.h"
#include "fax_texts.h"
#include "hint_text.h"
#include "menu_button.h"
#include "newest_task.h"
#include "paper_view.h"
#include "popup_button.h"
#include "popups.h"
#include "setting_maps.h"
#include "stored_watermarks.h"
#include "string_table.h"
#include "watermark_menu.h"
#include "watermark_store.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <array>

namespace kelvo {

namespace {

constexpr ControlID dialogID(std::int32_t number)
{
    return {kPanelSignature, number};
}

constexpr ControlID kSenderMenu = dialogID(1601);
constexpr ControlID kMyCard = dialogID(1607);
constexpr ControlID kRecipientsMenu = dialogID(1609);

// Values of CoverSheetSenderMap and CoverSheetRecipientMap.
constexpr std::int32_t kSenderShown = 1, kSenderHidden = 2;
constexpr std::int32_t kCustomText = 3;

// Below the sender, in the order in which they stand there.
struct SenderText
{
    std::int32_t control;
    QString FaxSender::*text;
};
constexpr std::array senderTexts{
    SenderText{1602, &FaxSender::name}, SenderText{1603, &FaxSender::organization},
    SenderText{1604, &FaxSender::emailAddress}, SenderText{1605, &FaxSender::phoneNumber},
    SenderText{1606, &FaxSender::faxNumber}};

// None is null in a window that was made.
struct CoverSheetControls
{
    PopupButton *sender = nullptr;
    std::array<QLineEdit *, senderTexts.size()> senderFields{}; // as senderTexts
    QPushButton *myCard = nullptr;
    QLabel *myCardHint = nullptr;
    PopupButton *recipients = nullptr;
    QPlainTextEdit *customText = nullptr;
    MenuButton *image = nullptr;
    QLabel *imageHint = nullptr;
    PaperView *preview = nullptr;
    QLabel *notice = nullptr;

    void find(NeededControls &needed);
};

void CoverSheetControls::find(NeededControls &needed)
{
    sender = needed.find<PopupButton>(kSenderMenu);
    for (std::size_t i = 0; i < senderTexts.size(); ++i)
        senderFields[i] = needed.find<QLineEdit>(dialogID(senderTexts[i].control));
    myCard = needed.find<QPushButton>(kMyCard);
    myCardHint = needed.find<QLabel>(dialogID(1608));
    recipients = needed.find<PopupButton>(kRecipientsMenu);
    customText = needed.find<QPlainTextEdit>(dialogID(1610));
    image = needed.find<MenuButton>(dialogID(1611));
    imageHint = needed.find<QLabel>(dialogID(1612));
    preview = needed.find<PaperView>(dialogID(1613));
    notice = needed.find<QLabel>(dialogID(1614));
}

class CoverSheetDialog
{
public:
    CoverSheetDialog(const Device &device, const Dictionary &options,
                     const FaxRecipientList &recipients, const QString &notes,
                     const OwnCardReader &ownCard)
        : m_device(device)
        , m_options(options)
        , m_recipients(recipients)
        , m_notes(notes)
        , m_words(coverSheetWords(device.bundle))
        , m_ownCard(ownCard)
        , m_settings(readCoverSheet(options))
    {
    }

    bool makeWindow(QWidget *parent);
    DialogResult run();
    Dictionary result() const;

private:
    void fillControls();
    void fillImageMenu(Menu &menu);

    void showTexts(); // what fields show
    void sync();      // all else
    void showImage();
    void showPreview();
    void makeRoom();
    QString cardHint() const;

    OSStatus handle(const Event &event);
    void takeTexts();
    bool takeChoice(const ControlID &control);
    OSStatus takeCommand(OSType command, std::int32_t reference);
    void take(const std::optional<ChosenWatermark> &chosen);
    StoredWatermarks coverImages() const;

    void readCard();
    void takeCard();

    QString text(const char *key) const { return faxText(m_device.bundle, key); }

    Device m_device;
    Dictionary m_options;
    const FaxRecipientList &m_recipients;
    QString m_notes;
    CoverSheetWords m_words;
    OwnCardReader m_ownCard;

    CoverSheetSettings m_settings; // the sender's texts also while it is hidden
    QStringList m_images;          // of the store, as the menu has them
    std::optional<Result<std::optional<Person>>> m_card; // none: not read yet
    bool m_fillsFromCard = false; // when it comes, where nothing has been typed till then

    std::unique_ptr<ModalDialog> m_window;
    CoverSheetControls m_controls;
    CoverSheetPreview *m_preview = nullptr; // lives with its view
    NewestTask m_cardReading;               // last: it ends first
};

// ---- the window

bool CoverSheetDialog::makeWindow(QWidget *parent)
{
    m_window =
        createModalDialog(m_device.bundle, QStringLiteral("LANFAX"), QStringLiteral("CoverSheet"),
                          parent, [this](NeededControls &needed) { m_controls.find(needed); });
    if (!m_window)
        return false;
    fillControls();
    showTexts();
    sync();
    if (m_settings.showSender)
        readCard();
    m_controls.sender->setFocus();
    return true;
}

void CoverSheetDialog::fillControls()
{
    PopulatePopupButtonFromMap(m_device, m_controls.sender, CoverSheetSenderMap, kJobContextJob,
                               kNoCommand);
    PopulatePopupButtonFromMap(m_device, m_controls.recipients, CoverSheetRecipientMap,
                               kJobContextJob, kNoCommand);
    constexpr int customTextLines = 3;
    m_controls.customText->setFixedHeight(m_controls.customText->fontMetrics().lineSpacing()
                                              * customTextLines
                                          + m_controls.customText->fontMetrics().height());
    for (QLabel *label : {m_controls.myCardHint, m_controls.imageHint, m_controls.notice})
        makeHintText(label);
    // Another dialog may have changed the store.
    m_controls.image->setMenuUpdate([this](Menu &menu) { fillImageMenu(menu); });
    Menu menu;
    fillImageMenu(menu);
    m_controls.image->setMenu(std::move(menu));

    m_preview = new CoverSheetPreview(m_device.bundle, m_controls.preview);
    QObject::connect(m_preview, &CoverSheetPreview::noticed, m_controls.notice,
                     [this](const QString &notice) {
                         m_controls.notice->setText(notice);
                         makeRoom();
                     });
}

void CoverSheetDialog::fillImageMenu(Menu &menu)
{
    m_images.clear();
    loadWatermarkList(kFaxImagesFile, &m_images);
    menu = coverImageMenu(m_device, m_settings, m_images);
}

DialogResult CoverSheetDialog::run()
{
    const EventHandlerRef handler =
        installEventHandler(m_window.get(), [this](const Event &event) { return handle(event); });
    return m_window->runModal();
}

Dictionary CoverSheetDialog::result() const
{
    Dictionary options = m_options;
    writeCoverSheet(m_settings, options, m_words.to);
    return options;
}

// ---- from the settings to what is seen

void CoverSheetDialog::showTexts()
{
    for (std::size_t i = 0; i < senderTexts.size(); ++i)
        m_controls.senderFields[i]->setText(m_settings.sender.*senderTexts[i].text);
    m_controls.customText->setPlainText(m_settings.customText);
}

void CoverSheetDialog::sync()
{
    const bool isShown = m_settings.showSender;
    SetPopupButtonToTicketValue(m_controls.sender, isShown ? kSenderShown : kSenderHidden);
    for (QLineEdit *field : m_controls.senderFields)
        setEnabledWithLabel(field, isShown);
    m_controls.myCard->setEnabled(isShown && m_card && *m_card && m_card->value());
    m_controls.myCardHint->setText(cardHint());
    SetPopupButtonToTicketValue(m_controls.recipients, m_settings.recipients);
    setEnabledWithLabel(m_controls.customText, m_settings.recipients == kCustomText);
    showImage();
    makeRoom();
    showPreview();
}

// For a reason of many lines: a layout whose heights follow its width does not ask for it.
void CoverSheetDialog::makeRoom()
{
    m_controls.sender->parentWidget()->layout()->activate(); // with the new texts
    m_window->layout()->activate();
    const int width = m_window->width();
    const int needed = std::min(m_window->layout()->totalMinimumHeightForWidth(width),
                                m_window->screen()->availableGeometry().height());
    if (m_window->isVisible() && needed > m_window->height())
        m_window->resize(width, needed);
}

void CoverSheetDialog::showImage()
{
    QString shown = m_settings.image;
    if (shown.isEmpty())
        shown = m_device.text("NoWatermark");
    else if (!m_images.contains(shown))
        shown = formatted(text("Cover Image Not Here"), {shown});
    m_controls.image->setShownChoice(shown);
    m_controls.imageHint->setText(formatted(
        text("Cover Paper Hint"), {textOfValue(m_device, FaxCoverSizeMap, m_settings.size)}));
}

void CoverSheetDialog::showPreview()
{
    m_preview->show(coverSheetContent(result(), m_notes, m_recipients, m_words));
}

// Why the card cannot be used; empty: it can, or nothing is shown of the sender.
QString CoverSheetDialog::cardHint() const
{
    if (!m_settings.showSender)
        return {};
    if (!m_card)
        return text("Cover My Card Reading");
    if (!*m_card)
        return formatted(text("Cover My Card Unavailable"), {m_card->error().detail});
    return m_card->value() ? QString() : text("Cover My Card Missing");
}

// ---- from the controls to the settings

OSStatus CoverSheetDialog::handle(const Event &event)
{
    switch (event.kind) {
    case EventKind::TextChanged:
        takeTexts();
        showPreview();
        return eventNotHandledErr;
    case EventKind::ControlHit:
        return takeChoice(event.control) ? noErr : eventNotHandledErr;
    case EventKind::Command:
        return takeCommand(event.command, event.reference);
    default:
        return eventNotHandledErr;
    }
}

void CoverSheetDialog::takeTexts()
{
    for (std::size_t i = 0; i < senderTexts.size(); ++i)
        m_settings.sender.*senderTexts[i].text = m_controls.senderFields[i]->text();
    m_settings.customText = m_controls.customText->toPlainText();
}

// False where the control is none of the settings'.
bool CoverSheetDialog::takeChoice(const ControlID &control)
{
    if (control == kSenderMenu) {
        m_settings.showSender = GetPopupButtonTicketValue(m_controls.sender) == kSenderShown;
        if (m_settings.showSender) {
            // Whoever shows a sender for the first time mostly is the sender.
            m_fillsFromCard = m_settings.sender == FaxSender();
            readCard();
        }
    } else if (control == kRecipientsMenu) {
        m_settings.recipients = GetPopupButtonTicketValue(m_controls.recipients);
    } else if (control == kMyCard) {
        takeCard();
    } else {
        return false;
    }
    sync();
    if (control == kRecipientsMenu && m_settings.recipients == kCustomText)
        m_controls.customText->setFocus();
    return true;
}

OSStatus CoverSheetDialog::takeCommand(OSType command, std::int32_t reference)
{
    switch (command) {
    case kCommandNoWatermark:
        m_settings.image.clear();
        break;
    case kCommandWatermark:
        m_settings.image = m_images.value(reference);
        break;
    case kCommandNewCoverImage:
        take(makeWatermark(coverImages()));
        break;
    case kCommandEditCoverImage:
        take(editWatermark(coverImages(), m_settings.image));
        break;
    case kCommandDeleteCoverImage:
        take(removeWatermark(coverImages(), m_settings.image));
        break;
    default:
        if (!applyCoverSize(m_settings, command))
            return eventNotHandledErr;
    }
    sync();
    return noErr;
}

void CoverSheetDialog::take(const std::optional<ChosenWatermark> &chosen)
{
    if (!chosen)
        return;
    m_images = chosen->names;
    m_settings.image = chosen->name;
}

StoredWatermarks CoverSheetDialog::coverImages() const
{
    return {.device = m_device,
            .editing = {.fileName = kFaxImagesFile,
                        .titleKey = QStringLiteral("Cover Image Editor"),
                        .firstPage = {},
                        .isCoverImage = true},
            .paper = m_controls.preview->paper(),
            .parent = m_window.get(),
            .deleteHeader = text("Delete Cover Image Header"),
            .deleteMessage = text("Delete Cover Image Message"),
            .notSavedHeader = text("Cover Image Not Saved Header"),
            .notSavedMessage = text("Cover Image Not Saved Message")};
}

// ---- the user's own card

// Once; no address book is asked by a fax that shows no sender.
void CoverSheetDialog::readCard()
{
    if (m_card || m_cardReading.isBusy())
        return;
    const auto takeAnswer = [this](const Result<std::optional<Person>> &card) {
        setAwaited(m_controls.myCard, false);
        m_card = card;
        if (m_fillsFromCard && m_settings.sender == FaxSender())
            takeCard();
        sync();
    };
    setAwaited(m_controls.myCard, true);
    const bool isStarted =
        m_cardReading.start([read = m_ownCard, takeAnswer](const std::atomic_bool &isUnwanted) {
            return [takeAnswer, card = read(&isUnwanted)] { takeAnswer(card); };
        });
    if (!isStarted)
        takeAnswer(Error{Error::Code::NotReadable, {}, text("Cover My Card No Thread")});
}

void CoverSheetDialog::takeCard()
{
    if (!m_card || !*m_card || !m_card->value())
        return;
    m_settings.sender = takenFromCard(m_settings.sender, *m_card->value());
    showTexts();
}

} // namespace

Result<std::optional<Person>> readOwnCard(AddressBook::Flag cancelled)
{
    const Result<const AddressBook *> book = addressBook();
    if (!book)
        return book.error();
    return book.value()->ownCard(cancelled);
}

DialogResult RunModalCoverSheetDialog(const Device &device, Dictionary *options,
                                      const FaxRecipientList &recipients, const QString &notes,
                                      QWidget *parent, const OwnCardReader &ownCard)
{
    if (!options || !device.bundle)
        return DialogResult::Cancel;
    CoverSheetDialog dialog(device, *options, recipients, notes, ownCard);
    if (!dialog.makeWindow(parent) || dialog.run() != DialogResult::OK)
        return DialogResult::Cancel;
    *options = dialog.result();
    return DialogResult::OK;
}

} // namespace kelvo
