#pragma once

#include "people.h"
#include "result.h"

#include <QString>
#include <QStringList>

#include <vector>

// People out of the vCard files that somebody chose, one after the other.
namespace kelvo {

struct CardFile
{
    QString path;
    std::vector<Person> people;
};

struct CardProblem
{
    QString path;
    int damaged = 0;     // cards that were left out; 0: the file as a whole could not be read
    QString reason = {}; // of the file
};

struct CardFiles
{
    std::vector<CardFile> files; // each path once
    std::vector<CardProblem> problems;
};

// Reads these into `files`: one that is there already is read anew. What cannot be read is
// left as it was and said. Stops at the next file once `cancelled`.
CardFiles withCardFiles(std::vector<CardFile> files, const QStringList &paths,
                        AddressBook::Flag cancelled = nullptr);

// Of all files, by name, in the user's order of letters.
AddressBookContents peopleIn(const std::vector<CardFile> &files);

} // namespace kelvo
