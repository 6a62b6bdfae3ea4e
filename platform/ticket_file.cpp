#include "ticket_file.h"

#include "file_names.h"
#include "file_store.h"
#include "property_list.h"
#include "texts.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include <array>

namespace kelvo {

namespace {

using Code = Error::Code;

constexpr qint64 formatVersion = 1;

// Stored in users' files: a key once written keeps its spelling.
const QString formatVersionKey = QStringLiteral("FormatVersion");
const QString clientsKey = QStringLiteral("Clients");
const QString isPartKey = QStringLiteral("IsPart");
const QString removedKey = QStringLiteral("Removed");
const QString choiceWordsKey = QStringLiteral("ChoiceWords");
const QString askedKey = QStringLiteral("Asked");

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
            return fail(Code::OtherKind, formatVersionKey, translate("Files", "missing"));
        const auto version = integer64(value);
        if (!version)
            return fail(Code::WrongType, formatVersionKey, translate("Files", "not an integer"));
        if (*version != formatVersion)
            fail(Code::Unsupported, formatVersionKey,
                 translate("Files", "%1; this program reads version %2")
                     .arg(*version)
                     .arg(formatVersion));
    }

    // The dictionary under `key`; empty when it is missing and may be.
    Dictionary section(const QString &key, bool required)
    {
        const QVariant value = m_root.take(key);
        if (!value.isValid()) {
            if (required)
                fail(Code::OtherKind, key, translate("Files", "missing"));
            return {};
        }
        const auto entries = dictionary(value);
        if (!entries) {
            fail(Code::WrongType, key, translate("Files", "not a dictionary"));
            return {};
        }
        if (entries->contains(QString()))
            fail(Code::Damaged, key, translate("Files", "holds an entry without a key"));
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
                fail(Code::WrongType, key + u'/' + entry.key(), translate("Files", "not a string"));
            else
                words.insert(entry.key(), *word);
        }
        return words;
    }

    bool flag(const QString &key)
    {
        const QVariant value = m_root.take(key);
        const auto flag = boolean(value);
        if (value.isValid() && !flag)
            fail(Code::WrongType, key, translate("Files", "not true or false"));
        return flag.value_or(false);
    }

    TicketPlaces places(const QString &key)
    {
        const QVariant value = m_root.take(key);
        TicketPlaces places;
        if (value.isValid() && !array(value))
            fail(Code::WrongType, key, translate("Files", "not an array"));
        for (const QVariant &element : array(value).value_or(Array())) {
            TicketPlace place;
            for (const QVariant &step : array(element).value_or(Array()))
                place << string(step).value_or(QString());
            static const QStringList parts{kPMPrintSettingsTicket, kPMPageFormatTicket,
                                           kPPDChoices};
            if (place.size() < 2 || place.contains(QString()) || !parts.contains(place.first()))
                fail(Code::WrongType, key,
                     translate("Files", "holds what is no place of a ticket"));
            else
                places.insert(place);
        }
        return places;
    }

    bool has(const QString &key) const { return m_root.contains(key); }
    // Valid once everything of ours has been taken out.
    const Dictionary &rest() const { return m_root; }
    const std::optional<Error> &error() const { return m_error; }

private:
    void fail(Code code, const QString &keyPath, const QString &detail)
    {
        if (!m_error)
            m_error = Error{code, m_where + QStringLiteral(": ") + keyPath, detail, 0, keyPath};
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

Dictionary dictionaryOf(const QMap<QString, QString> &words)
{
    Dictionary dictionary;
    for (auto word = words.cbegin(); word != words.cend(); ++word)
        dictionary.insert(dictionary.cend(), word.key(), word.value());
    return dictionary;
}

Array arrayOf(const TicketPlaces &places)
{
    Array array;
    for (const TicketPlace &place : places)
        array << QVariant(Array(place.cbegin(), place.cend()));
    return array;
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
        return Error{Code::OtherKind, where, translate("Files", "holds no dictionary")};
    Reader reader(*root, where);
    reader.requireVersion();
    const Dictionary printSettings = reader.section(kPMPrintSettingsTicket, true);
    const Dictionary pageFormat = reader.section(kPMPageFormatTicket, false);
    const PPDDictionary choices = reader.words(kPPDChoices);
    const PPDDictionary clients = reader.words(clientsKey);
    TicketFile file;
    file.isPart = reader.flag(isPartKey);
    file.removed = reader.places(removedKey);
    file.choiceWords = reader.words(choiceWordsKey);
    if (reader.has(askedKey))
        file.asked = reader.places(askedKey);
    if (reader.error())
        return *reader.error();

    file.printSettings = ticketFrom(printSettings, clients);
    file.printSettings.ppdChoices = choices;
    file.pageFormat = ticketFrom(pageFormat, clients);
    file.unknown = reader.rest();
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
    Dictionary root = file.unknown;
    root.insert(formatVersionKey, formatVersion);
    root.insert(kPMPrintSettingsTicket, valuesOf(file.printSettings));
    root.insert(kPMPageFormatTicket, valuesOf(file.pageFormat));
    root.insert(kPPDChoices, dictionaryOf(file.printSettings.ppdChoices));
    root.insert(clientsKey, clients);
    // The tickets that go with jobs have none of these.
    if (file.isPart)
        root.insert(isPartKey, true);
    if (!file.removed.empty())
        root.insert(removedKey, arrayOf(file.removed));
    if (file.asked)
        root.insert(askedKey, arrayOf(*file.asked));
    if (!file.choiceWords.isEmpty())
        root.insert(choiceWordsKey, dictionaryOf(file.choiceWords));
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
    const QString folder = QFileInfo(path).path();
    const auto inFolder = fileStatus(folder);
    if (!inFolder || !S_ISDIR(inFolder->st_mode))
        return Error{Code::NotWritable, path,
                     translate("Files",
                               "the folder %1 does not exist; make it first, or name another "
                               "file")
                         .arg(folder)};
    if (::access(fileNameBytes(folder).constData(), W_OK | X_OK) != 0) {
        const int reason = errno;
        return Error{Code::NotWritable, path,
                     joined({translate("Files", "nothing can be written into the folder %1 (%2)")
                                 .arg(folder, QString::fromUtf8(std::strerror(reason))),
                             writingAdvice(reason)}),
                     reason};
    }
    const auto target = fileStatus(path);
    if (!target)
        return {};
    if (!S_ISREG(target->st_mode))
        return Error{Code::Refused, path,
                     translate("Files", "this is not a regular file; name another one")};
    if (target->st_size == 0 || readTicketFile(path))
        return {};
    return Error{Code::Refused, path,
                 translate("Files",
                           "a file that is not a ticket stands there and is not replaced; "
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
    TicketFile file;
    file.printSettings = withoutLocks(session.printSettings());
    file.pageFormat = withoutLocks(session.pageFormat());
    return file;
}

void load(const TicketFile &file, PrintSession &session)
{
    session.printSettings() = file.printSettings;
    session.pageFormat() = file.pageFormat;
}

} // namespace kelvo
