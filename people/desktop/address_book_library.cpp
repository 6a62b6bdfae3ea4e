#include "address_book_entry.h"
#include "books.h"
#include "left_behind.h"
#include "session_bus.h"
#include "sort_by_name.h"

#include <cstring>
#include <map>
#include <type_traits>

namespace kelvo {

namespace {

using namespace std::chrono_literals;

constexpr auto longestFind = 1000ms;

// Whom a group means: by book and uid, or by the uid where the book is another one by now.
template <typename Found>
class MemberMap
{
public:
    void add(const QString &book, const QString &uid, Found found)
    {
        m_found.emplace(Member{book, uid}, found);
        m_found.emplace(Member{{}, uid}, found);
    }
    std::optional<Found> find(const Member &member) const
    {
        auto found = m_found.find(member);
        if (found == m_found.end())
            found = m_found.find({{}, member.uid});
        return found == m_found.end() ? std::nullopt : std::optional(found->second);
    }

private:
    std::map<Member, Found> m_found;
};

Result<AddressBookContents> readBooks(Books &books)
{
    AddressBookContents contents;
    const auto contacts = books.contacts(contents.unread);
    if (!contacts)
        return contacts.error();
    MemberMap<std::size_t> people;
    for (const BookContact &each : contacts.value()) {
        if (isGroup(each.contact.get()))
            continue;
        contents.people.push_back(personOf(each.contact.get()));
        people.add(each.book, contents.people.back().uid, contents.people.size() - 1);
    }
    for (const BookContact &each : contacts.value()) {
        if (!isGroup(each.contact.get()))
            continue;
        PeopleGroup group{uidOf(each.contact.get()), personOf(each.contact.get()).fullName, {}};
        for (const Member &member : membersOf(each.contact.get())) {
            if (const auto person = people.find(member))
                group.members.push_back(contents.people[*person]);
        }
        contents.groups.push_back(std::move(group));
    }
    sortByName(contents.people, &Person::fullName);
    sortByName(contents.groups, &PeopleGroup::name);
    return contents;
}

// The uid that the book gives it.
Result<QString> add(const Books &books, EContact *contact, GCancellable *cancellable)
{
    const Result<Book> book = books.openDefault();
    if (!book)
        return book.error();
    GLibError error;
    char *uid = nullptr;
    if (!e_book_client_add_contact_sync(book.value().client.get(), contact,
                                        E_BOOK_OPERATION_FLAG_NONE, &uid, cancellable, error))
        return doesNotAnswer(error, book.value().name);
    return QString::fromUtf8(GLibOwner<char>(uid).get());
}

Result<void> replaceMembers(Books &books, const QString &groupUid, const QStringList &personUids,
                            GCancellable *cancellable)
{
    const Result<BookContact> group = books.contact(groupUid);
    if (!group)
        return group.error();
    QStringList unread; // people who are there only
    const auto contacts = books.contacts(unread);
    if (!contacts)
        return contacts.error();
    MemberMap<MemberContact> people;
    for (const BookContact &each : contacts.value()) {
        if (!isGroup(each.contact.get()))
            people.add(each.book, uidOf(each.contact.get()), {each.client, each.contact.get()});
    }
    std::vector<MemberContact> members;
    for (const QString &uid : personUids) {
        if (const auto person = people.find({group.value().book, uid}))
            members.push_back(*person);
    }
    setMembers(group.value().contact.get(), members);
    GLibError error;
    if (!e_book_client_modify_contact_sync(group.value().client, group.value().contact.get(),
                                           E_BOOK_OPERATION_FLAG_NONE, cancellable, error))
        return doesNotAnswer(error);
    return {};
}

// Where the desktop keeps which card is the user's own. Its library would make a card where
// there is none.
QString ownUid()
{
    constexpr char schemaName[] = "org.gnome.evolution-data-server.addressbook";
    constexpr char key[] = "self-contact-uid";
    GSettingsSchemaSource *source = g_settings_schema_source_get_default();
    const GLibOwner<GSettingsSchema> schema(
        source ? g_settings_schema_source_lookup(source, schemaName, TRUE) : nullptr);
    if (!schema || !g_settings_schema_has_key(schema.get(), key))
        return {};
    const GLibOwner<GSettings> settings(g_settings_new(schemaName));
    return QString::fromUtf8(GLibOwner<char>(g_settings_get_string(settings.get(), key)).get());
}

// Asks the books on a thread that can be left.
template <typename Ask>
auto ask(AddressBook::Flag cancelled, Ask work)
{
    using Answer = std::invoke_result_t<Ask, Books &, GCancellable *>;
    const auto onThread = [work = std::move(work)](GCancellable *cancellable) -> Answer {
        Result<Books> books = Books::open(cancellable);
        if (!books)
            return books.error();
        return work(books.value(), cancellable);
    };
    return call(std::function<Answer(GCancellable *)>(onThread), cancelled);
}

class DesktopAddressBook final : public AddressBook
{
public:
    Result<void> find(Flag cancelled) const override
    {
        return call(std::function([](GCancellable *cancellable) -> Result<void> {
                        const auto bus = busWithAddressBook(cancellable);
                        return bus ? Result<void>() : bus.error();
                    }),
                    cancelled, longestFind);
    }

    Result<AddressBookContents> read(Flag cancelled) const override
    {
        return ask(cancelled, [](Books &books, GCancellable *) { return readBooks(books); });
    }

    Result<Person> person(const QString &uid, Flag cancelled) const override
    {
        return ask(cancelled, [uid](Books &books, GCancellable *) -> Result<Person> {
            const Result<BookContact> found = books.contact(uid);
            if (!found)
                return found.error();
            return personOf(found.value().contact.get());
        });
    }

    Result<std::optional<Person>> ownCard(Flag cancelled) const override
    {
        return ask(cancelled, [](Books &books, GCancellable *) -> Result<std::optional<Person>> {
            const QString uid = ownUid();
            if (uid.isEmpty())
                return std::optional<Person>();
            const Result<BookContact> found = books.contact(uid);
            if (found)
                return std::optional(personOf(found.value().contact.get()));
            if (found.error().code == Error::Code::NotFound)
                return std::optional<Person>();
            return found.error();
        });
    }

    Result<QString> addPerson(const NewPerson &person, Flag cancelled) const override
    {
        return ask(cancelled, [person](Books &books, GCancellable *cancellable) {
            return add(books, newContact(person).get(), cancellable);
        });
    }

    Result<QString> addGroup(const QString &name, Flag cancelled) const override
    {
        return ask(cancelled, [name](Books &books, GCancellable *cancellable) {
            return add(books, newGroup(name).get(), cancellable);
        });
    }

    Result<void> setMembers(const QString &groupUid, const QStringList &personUids,
                            Flag cancelled) const override
    {
        return ask(cancelled, [groupUid, personUids](Books &books, GCancellable *cancellable) {
            return replaceMembers(books, groupUid, personUids, cancellable);
        });
    }
};

} // namespace

} // namespace kelvo

extern "C" Q_DECL_EXPORT const void *kelvoAddressBook(const char *version)
{
    if (std::strcmp(version, KELVO_VERSION) != 0)
        return nullptr;
    // Never destroyed: a call that was left behind may outlive every static object.
    static const kelvo::AddressBook &book = *new kelvo::DesktopAddressBook;
    return &book;
}
