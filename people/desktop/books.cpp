#include "books.h"

#include "session_bus.h"
#include "texts.h"

namespace kelvo {

namespace {

using Code = Error::Code;

// A book of another computer answers while it is not connected, too, with what it has here.
constexpr guint32 withoutWaiting = static_cast<guint32>(-1);

} // namespace

Result<Books> Books::open(GCancellable *cancellable)
{
    Books books;
    books.m_cancellable = cancellable;
    auto bus = busWithAddressBook(cancellable);
    if (!bus)
        return bus.error();
    books.m_bus = std::move(bus).value();
    // As the bus, it is shared by all of the process, and cancelled for all.
    GLibError error;
    books.m_registry.reset(e_source_registry_new_sync(nullptr, error));
    if (!books.m_registry)
        return doesNotAnswer(error);
    return books;
}

Result<Book> Books::open(ESource *source) const
{
    Book book;
    book.uid = QString::fromUtf8(e_source_get_uid(source));
    book.name = QString::fromUtf8(e_source_get_display_name(source));
    GLibError error;
    book.client.reset(reinterpret_cast<EBookClient *>(
        e_book_client_connect_sync(source, withoutWaiting, m_cancellable, error)));
    if (!book.client)
        return doesNotAnswer(error, book.name);
    return book;
}

Result<Book> Books::openDefault() const
{
    const GLibOwner<ESource> source(e_source_registry_ref_default_address_book(m_registry.get()));
    if (!source) {
        return Error{Code::NotFound, translate("People", "address book"),
                     translate("People", "none is set up; make one in the desktop’s contacts")};
    }
    Result<Book> book = open(source.get());
    if (book && e_client_is_readonly(E_CLIENT(book.value().client.get()))) {
        return Error{Code::Refused, book.value().name,
                     translate("People",
                               "this address book cannot be changed; make another one the default "
                               "in the desktop’s contacts")};
    }
    return book;
}

void Books::openEnabled()
{
    if (m_enabled)
        return;
    m_enabled.emplace();
    GList *sources =
        e_source_registry_list_enabled(m_registry.get(), E_SOURCE_EXTENSION_ADDRESS_BOOK);
    for (const GList *each = sources; each; each = each->next) {
        if (Result<Book> book = open(static_cast<ESource *>(each->data)))
            m_enabled->push_back(std::move(book).value());
        else
            m_failures.push_back(book.error());
    }
    g_list_free_full(sources, g_object_unref);
}

Result<std::vector<BookContact>> Books::contacts(QStringList &unread)
{
    openEnabled();
    std::vector<Error> failures = m_failures;
    std::vector<BookContact> contacts;
    bool hasAnswered = m_enabled->empty() && failures.empty();
    for (const Book &book : *m_enabled) {
        GLibError error;
        GSList *found = nullptr;
        if (!e_book_client_get_contacts_sync(book.client.get(),
                                             R"((contains "x-evolution-any-field" ""))", &found,
                                             m_cancellable, error)) {
            failures.push_back(doesNotAnswer(error, book.name));
            continue;
        }
        hasAnswered = true;
        for (const GSList *each = found; each; each = each->next) {
            contacts.push_back(
                {book.client.get(), book.uid, Contact(static_cast<EContact *>(each->data))});
        }
        g_slist_free(found);
    }
    if (!hasAnswered)
        return failures.front();
    for (const Error &failure : failures)
        unread << failure.text();
    return contacts;
}

Result<BookContact> Books::contact(const QString &uid)
{
    openEnabled();
    std::optional<Error> failure;
    if (!m_failures.empty())
        failure = m_failures.front();
    for (const Book &book : *m_enabled) {
        GLibError error;
        EContact *found = nullptr;
        if (e_book_client_get_contact_sync(book.client.get(), uid.toUtf8().constData(), &found,
                                           m_cancellable, error)) {
            return BookContact{book.client.get(), book.uid, Contact(found)};
        }
        if (!error.is(E_BOOK_CLIENT_ERROR, E_BOOK_CLIENT_ERROR_CONTACT_NOT_FOUND))
            failure = doesNotAnswer(error, book.name);
    }
    return failure.value_or(
        Error{Code::NotFound, translate("People", "address book"),
              translate("People", "nobody of that entry is there any more; choose somebody else")});
}

} // namespace kelvo
