#include "special_sheets.h"

#include "entry_words.h"
#include "ppd_words.h"
#include "values.h"

#include <algorithm>
#include <limits>

namespace kelvo {

namespace {

bool hasCover(const SpecialSheetKeys::Cover &cover, const PPDDictionary &choices,
              const PpdFile *ppd)
{
    const PpdOption *option = ppd ? ppd->findOption(cover.option) : nullptr;
    if (!option)
        return false;
    const QString choice = choices.value(cover.option, option->defaultChoice);
    return choice != cover.none && offers(*ppd, cover.option, choice);
}

Array arrayAt(const Ticket &ticket, const QString &key)
{
    const auto entry = ticket.entries.find(key);
    return entry == ticket.entries.end() ? Array() : array(entry->second.value).value_or(Array());
}

// A number of a ticket, brought within what pages can be counted with. Below zero
// stays so.
std::optional<int> numberIn(const Dictionary &dictionary, const QString &key)
{
    const auto number = integer64(dictionary, key);
    if (!number)
        return std::nullopt;
    constexpr std::int64_t most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<std::int64_t>(*number, -1, most));
}

QList<SpecialSheets::Insert> insertsFrom(const Array &list, const SpecialSheetKeys &keys)
{
    QList<SpecialSheets::Insert> inserts;
    inserts.reserve(list.size());
    for (const QVariant &each : list) {
        const auto entries = dictionary(each);
        if (!entries)
            continue;
        const int afterPage = numberIn(*entries, keys.inserts.afterPage).value_or(-1);
        const int sheets = numberIn(*entries, keys.inserts.quantity).value_or(1);
        if (afterPage >= 0 && sheets >= 1)
            inserts.append({afterPage, std::min(sheets, SpecialSheets::mostInsertSheets)});
    }
    std::stable_sort(inserts.begin(), inserts.end(),
                     [](const auto &a, const auto &b) { return a.afterPage < b.afterPage; });
    return inserts;
}

QList<SpecialSheets::Exception> exceptionsFrom(const Array &list, const SpecialSheetKeys &keys)
{
    QList<SpecialSheets::Exception> exceptions;
    exceptions.reserve(list.size());
    for (const QVariant &each : list) {
        const auto entries = dictionary(each);
        if (!entries)
            continue;
        SpecialSheets::Exception exception;
        exception.firstPage = numberIn(*entries, keys.exceptions.firstPage).value_or(0);
        exception.lastPage = numberIn(*entries, keys.exceptions.lastPage).value_or(0);
        if (exception.firstPage < 1 || exception.lastPage < exception.firstPage)
            continue;
        if (const auto sides = integer64(*entries, keys.exceptions.sides)) {
            if (keys.exceptions.twoSided.contains(*sides))
                exception.twoSided = true;
            else if (keys.exceptions.oneSided.contains(*sides))
                exception.twoSided = false;
        }
        exceptions.append(exception);
    }
    std::stable_sort(exceptions.begin(), exceptions.end(),
                     [](const auto &a, const auto &b) { return a.firstPage < b.firstPage; });
    int last = 0;
    exceptions.removeIf([&last](const SpecialSheets::Exception &exception) {
        if (exception.firstPage <= last)
            return true;
        last = exception.lastPage;
        return false;
    });
    return exceptions;
}

} // namespace

SpecialSheetKeys specialSheetKeysOf(const Bundle *bundle)
{
    SpecialSheetKeys keys;
    if (!bundle)
        return keys;
    const Dictionary all =
        dictionary(bundle->info(), QStringLiteral("KelvoSpecialPages")).value_or(Dictionary());
    const auto part = [&all](const QString &name) {
        return dictionary(all, name).value_or(Dictionary());
    };
    const auto text = [](const Dictionary &in, const QString &key) {
        return string(in, key).value_or(QString());
    };
    const auto words = [&](const Dictionary &in, const QString &key) {
        return plainText(*bundle, text(in, key));
    };
    const auto label = [&](const Dictionary &in) { return words(in, QStringLiteral("Label")); };
    const auto numbers = [](const Dictionary &in, const QString &key) {
        QList<std::int64_t> list;
        for (const QVariant &each : array(in, key).value_or(Array())) {
            if (const auto number = integer64(each))
                list << *number;
        }
        return list;
    };
    const auto cover = [&](const QString &name) {
        const Dictionary in = part(name);
        return SpecialSheetKeys::Cover{text(in, QStringLiteral("Option")),
                                       text(in, QStringLiteral("None")), label(in),
                                       words(in, QStringLiteral("LeftOut"))};
    };
    keys.frontCover = cover(QStringLiteral("FrontCover"));
    keys.backCover = cover(QStringLiteral("BackCover"));
    const QString entry = QStringLiteral("Entry");
    const Dictionary inserts = part(QStringLiteral("Inserts"));
    keys.inserts = {text(inserts, entry), text(inserts, QStringLiteral("AfterPage")),
                    text(inserts, QStringLiteral("Quantity")), label(inserts)};
    const Dictionary exceptions = part(QStringLiteral("Exceptions"));
    keys.exceptions = {text(exceptions, entry),
                       text(exceptions, QStringLiteral("FirstPage")),
                       text(exceptions, QStringLiteral("LastPage")),
                       text(exceptions, QStringLiteral("Sides")),
                       label(exceptions),
                       numbers(exceptions, QStringLiteral("OneSided")),
                       numbers(exceptions, QStringLiteral("TwoSided"))};
    return keys;
}

SpecialSheetsReader::SpecialSheetsReader(SpecialSheetKeys keys)
    : m_keys(std::move(keys))
{
}

const SpecialSheets &SpecialSheetsReader::read(const Ticket &printSettings, const PpdFile *ppd)
{
    m_sheets.hasFrontCover = hasCover(m_keys.frontCover, printSettings.ppdChoices, ppd);
    m_sheets.hasBackCover = hasCover(m_keys.backCover, printSettings.ppdChoices, ppd);
    const bool isRead = readsTickets(ppd);
    Array inserts = isRead ? arrayAt(printSettings, m_keys.inserts.entry) : Array();
    if (!inserts.isSharedWith(m_inserts)) {
        m_sheets.inserts = insertsFrom(inserts, m_keys);
        m_inserts = std::move(inserts);
    }
    Array exceptions = isRead ? arrayAt(printSettings, m_keys.exceptions.entry) : Array();
    if (!exceptions.isSharedWith(m_exceptions)) {
        m_sheets.exceptions = exceptionsFrom(exceptions, m_keys);
        m_exceptions = std::move(exceptions);
    }
    return m_sheets;
}

} // namespace kelvo
