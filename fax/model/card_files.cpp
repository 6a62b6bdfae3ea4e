#include "card_files.h"

#include "vcard.h"

#include <QCollator>

#include <algorithm>
#include <utility>

namespace kelvo {

CardFiles withCardFiles(std::vector<CardFile> files, const QStringList &paths,
                        AddressBook::Flag cancelled)
{
    CardFiles read{std::move(files), {}};
    for (const QString &path : paths) {
        if (cancelled && *cancelled)
            break;
        Result<CardPeople> cards = readCardFile(path);
        if (!cards) {
            read.problems.push_back({.path = path, .reason = cards.error().detail});
            continue;
        }
        if (cards.value().damaged > 0)
            read.problems.push_back({.path = path, .damaged = cards.value().damaged});
        auto file = std::ranges::find(read.files, path, &CardFile::path);
        if (file == read.files.end())
            file = read.files.insert(file, {path, {}});
        file->people = std::move(cards.value().people);
    }
    return read;
}

AddressBookContents peopleIn(const std::vector<CardFile> &files)
{
    AddressBookContents contents;
    for (const CardFile &file : files)
        contents.people.insert(contents.people.end(), file.people.begin(), file.people.end());
    std::vector<std::pair<QCollatorSortKey, Person *>> order;
    const QCollator collator;
    for (Person &person : contents.people)
        order.emplace_back(collator.sortKey(person.fullName), &person);
    std::stable_sort(order.begin(), order.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<Person> sorted;
    sorted.reserve(order.size());
    for (const auto &[key, person] : order)
        sorted.push_back(std::move(*person));
    contents.people = std::move(sorted);
    return contents;
}

} // namespace kelvo
