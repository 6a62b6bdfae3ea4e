#include "address_book_picker.h"

#include "dialog_window.h"
#include "fax_texts.h"
#include "file_name_filter.h"
#include "hint_text.h"
#include "input_limits.h"
#include "list_view.h"
#include "modal_dialog.h"
#include "newest_task.h"
#include "notice.h"
#include "picker_texts.h"
#include "popup_button.h"
#include "recent_recipients.h"
#include "string_table.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStandardPaths>

namespace kelvo {

namespace {

constexpr OSType kCommandChooseCards = fourCharCode("LFvc");
constexpr OSType kCommandClearRecent = fourCharCode("LFcl");

constexpr ControlID kSource{kPanelSignature, 1502};
constexpr ControlID kChooseCards{kPanelSignature, 1503};
constexpr ControlID kClearRecent{kPanelSignature, 1504};
constexpr ControlID kSearch{kPanelSignature, 1506};
constexpr ControlID kList{kPanelSignature, 1507};
constexpr ControlID kMessage{kPanelSignature, 1508};
constexpr ControlID kHidden{kPanelSignature, 1509};
constexpr ControlID kAdded{kPanelSignature, 1510};
constexpr ControlID kAdd{kPanelSignature, 1511};

constexpr int kLongestSearch = 255; // characters

enum Source : std::int32_t { FromAddressBook, FromRecent, FromCards };

// One of those places; `people` is null until it has been read.
struct PeopleSource
{
    std::shared_ptr<const PeopleToPick> people;
    QString problem;    // why it was not
    QStringList unread; // books that are not among it: "NAME: why"
};

class AddressBookPicker
{
public:
    AddressBookPicker(RecipientEditing &editing, AddressBookReader read)
        : m_editing(editing)
        , m_read(std::move(read))
        , m_inList(editing.recipients)
        , m_drop(*this)
    {
    }

    bool makeWindow(QWidget *parent);
    DialogResult run();

private:
    // Takes the files that are dropped onto a window.
    class Drop : public QObject
    {
    public:
        explicit Drop(AddressBookPicker &picker)
            : m_picker(picker)
        {
        }
        bool eventFilter(QObject *watched, QEvent *event) override;

    private:
        AddressBookPicker &m_picker;
    };

    void readAddressBook();
    void readRecent();
    void chooseCards();
    void readCards(const QStringList &paths, const QStringList &notLocal);
    void takeCards(CardFiles &&read, std::shared_ptr<const PeopleToPick> people);
    void takeDropped(const QList<QUrl> &addresses);
    void sayCardProblems(const std::vector<CardProblem> &problems);
    void clearRecent();

    Source source() const { return Source(m_source->chosenReference()); }
    const PeopleSource &shownSource() const { return m_sources[source()]; }
    void chooseSource(Source source);
    void showFound();
    QString messageOfEmptyList() const;
    void enableButtons();

    OSStatus handle(const Event &event);
    void add();

    QString text(const char *key) const { return faxText(m_editing.device.bundle, key); }

    RecipientEditing &m_editing;
    AddressBookReader m_read;
    PeopleSource m_sources[3];
    std::vector<CardFile> m_cards;
    QStringList m_cardsToRead, m_cardsElsewhere; // paths; addresses that are to be told
    PeopleToPick::Found m_found;                 // what the list shows, of the shown source
    RecipientSet m_inList;
    bool m_hasAdded = false;

    std::unique_ptr<ModalDialog> m_window;
    PopupButton *m_source = nullptr;
    QPushButton *m_chooseCards = nullptr, *m_clearRecent = nullptr, *m_add = nullptr;
    QLineEdit *m_search = nullptr;
    ListView *m_list = nullptr;
    QLabel *m_message = nullptr, *m_hidden = nullptr, *m_added = nullptr;

    Drop m_drop;
    NewestTask m_readingAddressBook, m_readingCards; // last: they end first
};

// ---- the window

bool AddressBookPicker::makeWindow(QWidget *parent)
{
    CFBundleRef bundle = m_editing.device.bundle;
    m_window = createModalDialog(bundle, QStringLiteral("LANFAX"), QStringLiteral("AddressBook"),
                                 parent, [this](NeededControls &needed) {
                                     m_source = needed.find<PopupButton>(kSource);
                                     m_chooseCards = needed.find<QPushButton>(kChooseCards);
                                     m_clearRecent = needed.find<QPushButton>(kClearRecent);
                                     m_search = needed.find<QLineEdit>(kSearch);
                                     m_list = needed.find<ListView>(kList);
                                     m_message = needed.find<QLabel>(kMessage);
                                     m_hidden = needed.find<QLabel>(kHidden);
                                     m_added = needed.find<QLabel>(kAdded);
                                     m_add = needed.find<QPushButton>(kAdd);
                                 });
    if (!m_window)
        return false;
    for (QLabel *label : {m_message, m_hidden, m_added}) {
        makeHintText(label);
        label->setTextFormat(Qt::PlainText);
    }
    m_message->setAttribute(Qt::WA_TransparentForMouseEvents); // the list lies below it
    // Room for what adding says, so that the list does not jump.
    m_added->setMinimumHeight(2 * m_added->fontMetrics().lineSpacing());
    m_added->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    m_hidden->setMinimumHeight(m_hidden->fontMetrics().lineSpacing());
    setInputLimits(m_search, {.maximumLength = kLongestSearch});
    m_source->setMenu({{{.text = text("People Source Address Book"),
                         .key = QStringLiteral("AddressBook"),
                         .reference = FromAddressBook},
                        {.text = text("People Source Recent"),
                         .key = QStringLiteral("Recent"),
                         .reference = FromRecent},
                        {.text = text("People Source Cards"),
                         .key = QStringLiteral("Cards"),
                         .reference = FromCards}},
                       nullptr});
    m_list->setColumns(pickerColumns(bundle), [this, bundle](int row, int column) {
        const PeopleRow &shown =
            shownSource().people->row(m_found.rows[static_cast<std::size_t>(row)]);
        return pickerCell(bundle, shown, column, m_inList.containsAll(shown));
    });
    m_window->setAcceptDrops(true);
    m_window->installEventFilter(&m_drop);
    readAddressBook();
    readRecent();
    m_sources[FromCards].people = std::make_shared<const PeopleToPick>();
    showFound();
    m_search->setFocus();
    return true;
}

DialogResult AddressBookPicker::run()
{
    const EventHandlerRef handler =
        installEventHandler(m_window.get(), [this](const Event &event) { return handle(event); });
    // Adding keeps it open: the next one is somebody else's name.
    m_window->setAcceptRule([this] {
        add();
        return false;
    });
    m_window->runModal();
    return m_hasAdded ? DialogResult::OK : DialogResult::Cancel;
}

OSStatus AddressBookPicker::handle(const Event &event)
{
    switch (event.kind) {
    case EventKind::ControlHit:
        if (event.control != kSource)
            return eventNotHandledErr;
        showFound();
        return noErr;
    case EventKind::TextChanged:
        if (event.control != kSearch)
            return eventNotHandledErr;
        showFound();
        return noErr;
    case EventKind::ListSelection:
        enableButtons();
        return noErr;
    case EventKind::ListActivated:
        if (event.row >= 0)
            add();
        return noErr;
    case EventKind::Command:
        if (event.command == kCommandChooseCards)
            chooseCards();
        else if (event.command == kCommandClearRecent)
            clearRecent();
        else
            return eventNotHandledErr;
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

// ---- what is shown

void AddressBookPicker::chooseSource(Source source)
{
    m_source->setValueByReference(source);
    showFound();
}

void AddressBookPicker::showFound()
{
    const PeopleSource &shown = shownSource();
    const bool isTyped = !m_search->text().trimmed().isEmpty();
    m_found = shown.people ? shown.people->find(m_search->text()) : PeopleToPick::Found();
    m_list->reload(static_cast<int>(m_found.rows.size()));
    if (isTyped)
        m_list->selectRows({0}); // so that Return adds the first one
    setAwaited(m_list,
               (source() == FromAddressBook && m_readingAddressBook.isBusy())
                   || (source() == FromCards && m_readingCards.isBusy()));
    m_message->setText(m_found.rows.empty() ? messageOfEmptyList() : QString());
    m_list->setAccessibleDescription(m_message->text());
    m_hidden->setText(notShownText(m_editing.device.bundle, m_found.withoutNumber, shown.unread));
    enableButtons();
}

QString AddressBookPicker::messageOfEmptyList() const
{
    const PeopleSource &shown = shownSource();
    const bool isTyped = !m_search->text().trimmed().isEmpty();
    if (!shown.problem.isEmpty())
        return formatted(text("Address Book Unread"), {shown.problem}) + u'\n'
            + text("Address Book Unread Advice");
    if (isAwaited(m_list))
        return text(source() == FromCards ? "Reading Cards" : "Reading Address Book");
    if (m_found.withoutNumber > 0)
        return text("Nobody Has Fax Number");
    if (isTyped && shown.people && !shown.people->isEmpty())
        return text("Nobody Found");
    switch (source()) {
    case FromRecent:
        return text("Recent Empty");
    case FromCards:
        return text("Cards Empty");
    case FromAddressBook:
        break;
    }
    return text("Address Book Empty");
}

void AddressBookPicker::enableButtons()
{
    m_add->setEnabled(!m_list->selectedRows().empty());
    m_clearRecent->setEnabled(source() == FromRecent && shownSource().people
                              && !shownSource().people->isEmpty());
}

// ---- where people come from

void AddressBookPicker::readAddressBook()
{
    const bool isStarted =
        m_readingAddressBook.start([this, read = m_read](const std::atomic_bool &isUnwanted) {
            PeopleSource source;
            if (const Result<AddressBookContents> contents = read(&isUnwanted)) {
                source.people = std::make_shared<const PeopleToPick>(contents.value());
                source.unread = contents.value().unread;
            } else {
                source.problem = contents.error().detail;
            }
            return [this, source] {
                m_sources[FromAddressBook] = source;
                showFound();
            };
        });
    if (!isStarted)
        m_sources[FromAddressBook].problem = text("No Thread to Read With");
}

void AddressBookPicker::readRecent()
{
    m_sources[FromRecent].people = std::make_shared<const PeopleToPick>(recentRecipients());
}

void AddressBookPicker::clearRecent()
{
    if (CFUserNotificationDisplayAlert(
            NoticeLevel::Caution, text("Clear Recent Header"), text("Clear Recent Message"),
            {text("Clear Recent"), m_editing.device.text("Cancel Command")}, m_window.get())
        != 1)
        return;
    if (!forgetRecipients())
        CFUserNotificationDisplayNotice(NoticeLevel::Stop, text("Clear Recent Failed"),
                                        text("Clear Recent Failed Message"), {}, m_window.get());
    readRecent();
    showFound();
}

void AddressBookPicker::chooseCards()
{
    QFileDialog chooser(m_window.get(), text("Cards Chooser"));
    chooser.setObjectName(QStringLiteral("cardsChooser"));
    chooser.setFileMode(QFileDialog::ExistingFiles);
    chooser.setNameFilters({fileNameFilter(text("Cards Kinds"), {"vcf", "vcard"}),
                            fileNameFilter(text("Cards All Files"), {})});
    chooser.setDirectory(QStandardPaths::writableLocation(QStandardPaths::HomeLocation));
    // At once: whoever comes next finds that they are being read.
    QObject::connect(&chooser, &QFileDialog::filesSelected, &chooser,
                     [this](const QStringList &paths) { readCards(paths, {}); });
    runChooser(chooser);
}

// Reading begins anew with those that come meanwhile.
void AddressBookPicker::readCards(const QStringList &paths, const QStringList &notLocal)
{
    m_cardsToRead += paths;
    m_cardsElsewhere += notLocal;
    const bool isStarted = m_readingCards.start(
        [this, cards = m_cards, toRead = m_cardsToRead](const std::atomic_bool &isUnwanted) {
            auto read = std::make_shared<CardFiles>(withCardFiles(cards, toRead, &isUnwanted));
            auto people = std::make_shared<const PeopleToPick>(peopleIn(read->files));
            return [this, read, people] { takeCards(std::move(*read), people); };
        });
    if (!isStarted)
        CFUserNotificationDisplayNotice(NoticeLevel::Stop, text("Cards Problems Header"),
                                        text("No Thread to Read With"), {}, m_window.get());
    chooseSource(FromCards);
}

void AddressBookPicker::takeCards(CardFiles &&read, std::shared_ptr<const PeopleToPick> people)
{
    m_cardsToRead.clear();
    m_cards = std::move(read.files);
    m_sources[FromCards].people = std::move(people);
    showFound();
    sayCardProblems(read.problems);
}

void AddressBookPicker::sayCardProblems(const std::vector<CardProblem> &problems)
{
    const QStringList notLocal = std::exchange(m_cardsElsewhere, {});
    if (!problems.empty() || !notLocal.isEmpty())
        CFUserNotificationDisplayNotice(
            NoticeLevel::Caution, text("Cards Problems Header"),
            cardProblemsText(m_editing.device.bundle, problems, notLocal), {}, m_window.get());
}

void AddressBookPicker::takeDropped(const QList<QUrl> &addresses)
{
    QStringList paths, notLocal;
    for (const QUrl &address : addresses)
        (address.isLocalFile() ? paths : notLocal)
            .append(address.isLocalFile() ? address.toLocalFile() : address.toDisplayString());
    readCards(paths, notLocal); // of none, too: all is said at once, when it has been read
}

bool AddressBookPicker::Drop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::DragEnter || event->type() == QEvent::Drop) {
        auto *drop = static_cast<QDropEvent *>(event);
        if (drop->mimeData()->hasUrls()) {
            drop->setDropAction(Qt::CopyAction);
            drop->accept();
            // The program that they come from waits for the drop to end; a notice does not.
            if (event->type() == QEvent::Drop)
                QMetaObject::invokeMethod(
                    this,
                    [this, addresses = drop->mimeData()->urls()] {
                        m_picker.takeDropped(addresses);
                    },
                    Qt::QueuedConnection);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

// ---- adding

void AddressBookPicker::add()
{
    const std::vector<int> selected = m_list->selectedRows();
    if (selected.empty())
        return;
    // Whatever the questions below change, these rows are added.
    const std::shared_ptr<const PeopleToPick> people = shownSource().people;
    std::vector<const PeopleRow *> rows;
    rows.reserve(selected.size());
    for (const int row : selected)
        rows.push_back(&people->row(m_found.rows[static_cast<std::size_t>(row)]));
    const PeopleToAdd adding = peopleToAdd(rows, m_inList, m_editing.promptDuplicate);
    int added = 0, declined = 0;
    for (const FaxRecipient &recipient : adding.recipients) {
        const bool isAdded = AddRecipient(m_editing, recipient, m_window.get());
        ++(isAdded ? added : declined);
        if (isAdded)
            m_inList.add(recipient);
    }
    m_hasAdded = m_hasAdded || added > 0;
    m_added->setText(addedText(m_editing.device.bundle, adding, added, declined));
    m_list->viewport()->update(); // whoever is in the list now says so
    if (m_search->hasFocus())
        m_search->selectAll(); // the next name
}

} // namespace

DialogResult RunModalAddressBookPicker(RecipientEditing &editing, const AddressBookReader &read,
                                       QWidget *parent)
{
    AddressBookPicker picker(editing, read);
    return picker.makeWindow(parent) ? picker.run() : DialogResult::Cancel;
}

DialogResult RunModalAddressBookPicker(RecipientEditing &editing, QWidget *parent)
{
    const auto read = [](AddressBook::Flag cancelled) -> Result<AddressBookContents> {
        const Result<const AddressBook *> book = addressBook();
        return book ? book.value()->read(cancelled) : book.error();
    };
    return RunModalAddressBookPicker(editing, read, parent);
}

} // namespace kelvo
