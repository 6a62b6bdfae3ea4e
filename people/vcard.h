#pragma once

#include "people.h"

#include <QByteArray>
#include <QString>

#include <vector>

// People out of vCard files: 4.0, 3.0, and what phones still write, 2.1. Files are made by
// anybody, so nothing of them is believed. (The libraries that read cards come with a whole
// desktop.)
namespace kelvo {

struct CardPeople
{
    std::vector<Person> people; // in the file's order; groups are left out
    int damaged = 0;            // cards that could not be read; the others were
};

// Damaged where there is no card at all; TooLarge above the limits of size_limits.h.
Result<CardPeople> readCards(const QByteArray &bytes);
// The same, and as readFile().
Result<CardPeople> readCardFile(const QString &path);

} // namespace kelvo
