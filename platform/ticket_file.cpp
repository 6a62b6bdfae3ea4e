#include "ticket_file.h"

#include "file_store.h"
#include "property_list.h"

#include <QFileInfo>

#include <array>

namespace kelvo {

namespace {

using Code = Error::Code;

constexpr qint64 formatVersion = 1;

// Stored in users' files: a key once written keeps its spelling.
const QString formatVersionKey = QStringLiteral("FormatVersion");
const QString ppdChoicesKey = QStringLiteral("PPDChoices");
const QString clientsKey = QStringLiteral("Clients");

// Takes the entries of a ticket file out of its root dictionary and remembers
// the first thing that was wrong.
class Reader
{
public:
    Reader(Dictionary root, QString where)
        : m_root(std::move(root))
        , m_where(std::move(where))
    {
    }

    void requireVersion()
    {
        const QVariant value = m_root.take(formatVersionKey);
        if (!value.isValid())
            return fail(Code::Damaged, formatVersionKey,
                        QStringLiteral("missing: this is not a ticket file"));
        const auto version = integer64(value);
        if (!version)
            return fail(Code::WrongType, formatVersionKey, QStringLiteral("not an integer"));
        if (*version != formatVersion)
            fail(Code::Unsupported, formatVersionKey,
                 QStringLiteral("%1; this program reads version %2")
                     .arg(*version)
                     .arg(formatVersion));
    }

    // The dictionary under `key`; empty when it is missing and may be.
    Dictionary section(const QString &key, bool required)
    {
        const QVariant value = m_root.take(key);
        if (!value.isValid()) {
            if (required)
                fail(Code::Damaged, key, QStringLiteral("missing: this is not a ticket file"));
            return {};
        }
        const auto entries = dictionary(value);
        if (!entries) {
            fail(Code::WrongType, key, QStringLiteral("not a dictionary"));
            return {};
        }
        if (entries->contains(QString()))
            fail(Code::Damaged, key, QStringLiteral("holds an entry without a key"));
        return *entries;
    }

    // The same, where every entry is a string.
    PPDDictionary words(const QString &key)
    {
        PPDDictionary words;
        const Dictionary entries = section(key, false);
        for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
            const auto word = string(entry.value());
            if (!word)
                fail(Code::WrongType, key + u'/' + entry.key(), QStringLiteral("not a string"));
            else
                words.insert(entry.key(), *word);
        }
        return words;
    }

    // Valid once everything of ours has been taken out.
    const Dictionary &rest() const { return m_root; }
    const std::optional<Error> &error() const { return m_error; }

private:
    void fail(Code code, const QString &keyPath, const QString &detail)
    {
        if (!m_error)
            m_error = Error{code, m_where + QStringLiteral(": ") + keyPath, detail};
    }

    Dictionary m_root;
    QString m_where;
    std::optional<Error> m_error;
};

Ticket ticketFrom(const Dictionary &values, const PPDDictionary &clients)
{
    Ticket ticket;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        ticket.entries.emplace_hint(ticket.entries.end(), value.key(),
                                    TicketEntry{value.value(), clients.value(value.key())});
    return ticket;
}

Dictionary valuesOf(const Ticket &ticket)
{
    Dictionary values;
    for (const auto &[key, entry] : ticket.entries)
        values.insert(values.cend(), key, entry.value);
    return values;
}

Ticket withoutLocks(Ticket ticket)
{
    for (auto &[key, entry] : ticket.entries)
        entry.locked = false;
    return ticket;
}

} // namespace

Result<TicketFile> ticketFileFromPropertyList(const QVariant &list, const QString &where)
{
    const auto root = dictionary(list);
    if (!root)
        return Error{Code::WrongType, where,
                     QStringLiteral("holds no dictionary: this is not a ticket file")};
    Reader reader(*root, where);
    reader.requireVersion();
    const Dictionary printSettings = reader.section(kPMPrintSettingsTicket, true);
    const Dictionary pageFormat = reader.section(kPMPageFormatTicket, false);
    const PPDDictionary choices = reader.words(ppdChoicesKey);
    const PPDDictionary clients = reader.words(clientsKey);
    if (reader.error())
        return *reader.error();

    TicketFile file{ticketFrom(printSettings, clients), ticketFrom(pageFormat, clients),
                    reader.rest()};
    file.printSettings.ppdChoices = choices;
    return file;
}

Dictionary propertyListFrom(const TicketFile &file)
{
    Dictionary clients;
    for (const Ticket *ticket : std::array{&file.pageFormat, &file.printSettings}) {
        for (const auto &[key, entry] : ticket->entries) {
            if (!entry.client.isEmpty())
                clients.insert(key, entry.client);
        }
    }
    Dictionary choices;
    const PPDDictionary &stored = file.printSettings.ppdChoices;
    for (auto choice = stored.cbegin(); choice != stored.cend(); ++choice)
        choices.insert(choices.cend(), choice.key(), choice.value());

    Dictionary root = file.unknown;
    root.insert(formatVersionKey, formatVersion);
    root.insert(kPMPrintSettingsTicket, valuesOf(file.printSettings));
    root.insert(kPMPageFormatTicket, valuesOf(file.pageFormat));
    root.insert(ppdChoicesKey, choices);
    root.insert(clientsKey, clients);
    return root;
}

Result<TicketFile> readTicketFile(const QString &path)
{
    const auto list = readPropertyList(path);
    if (!list)
        return list.error();
    return ticketFileFromPropertyList(list.value(), path);
}

Result<void> checkTicketTarget(const QString &path)
{
    const QFileInfo target(path);
    const QString folder = target.path();
    if (!QFileInfo(folder).isDir())
        return Error{Code::NotWritable, path,
                     QStringLiteral("the folder %1 does not exist").arg(folder)};
    if (!target.exists())
        return {};
    if (!target.isFile())
        return Error{Code::Refused, path, QStringLiteral("this is not a regular file")};
    if (target.size() == 0 || readTicketFile(path))
        return {};
    return Error{Code::Refused, path,
                 QStringLiteral("a file that is not a ticket stands there and is not replaced; "
                                "move it away or name another file")};
}

Result<void> writeTicketFile(const QString &path, const TicketFile &file)
{
    if (auto checked = checkTicketTarget(path); !checked)
        return checked;
    const auto xml = CFPropertyListCreateXMLData(propertyListFrom(file));
    if (!xml)
        return Error{xml.error().code, path + QStringLiteral(": ") + xml.error().where,
                     xml.error().detail};
    return replaceFile(path, xml.value());
}

TicketFile ticketFileFrom(const PrintSession &session)
{
    return {withoutLocks(session.printSettings()), withoutLocks(session.pageFormat()), {}};
}

void load(const TicketFile &file, PrintSession &session)
{
    session.printSettings() = file.printSettings;
    session.pageFormat() = file.pageFormat;
}

} // namespace kelvo
