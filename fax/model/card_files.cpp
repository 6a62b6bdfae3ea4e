#include "card_files.h"

#include "sort_by_name.h"
#include "vcard.h"

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
    sortByName(contents.people, &Person::fullName);
    return contents;
}

} // namespace kelvo
