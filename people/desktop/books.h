#pragma once

#include "contacts.h"
#include "glib_owner.h"
#include "people.h"

#include <vector>

namespace kelvo {

struct Book
{
    GLibOwner<EBookClient> client;
    QString uid, name;
};

struct BookContact
{
    EBookClient *client; // of its book
    QString book;        // its uid
    Contact contact;
};

// The address books of the user's desktop, for one call: they are asked for anew each time, so
// that a service that went away is asked again. Not for several threads at once.
class Books
{
public:
    // `cancellable` is the caller's, and for all that follows.
    static Result<Books> open(GCancellable *cancellable);

    // Where new people go to; Refused where it cannot be changed.
    Result<Book> openDefault() const;

    // All contacts of all books that are enabled; `unread` names those that do not answer while
    // others do. The first one's error where none does.
    Result<std::vector<BookContact>> contacts(QStringList &unread);

    // In any of them; NotFound, or a book's error where it could be in that one.
    Result<BookContact> contact(const QString &uid);

private:
    Books() = default;
    Result<Book> open(ESource *source) const;
    void openEnabled();

    GCancellable *m_cancellable = nullptr;
    GLibOwner<GDBusConnection> m_bus; // stays open with this
    GLibOwner<ESourceRegistry> m_registry;
    std::optional<std::vector<Book>> m_enabled; // those that answer, when they have been asked
    std::vector<Error> m_failures;              // of the others
};

} // namespace kelvo
