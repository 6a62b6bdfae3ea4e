#pragma once

#include "people.h"

#include <QString>

#include <vector>

namespace kelvo {

// Finds people and groups as somebody types: every word that is typed begins a word of the
// name, the organization, an e-mail address, a number or the group's name; capitals and
// accents count alike, and digits match a number however it is punctuated. Made for 10,000
// people and more: a keystroke takes a millisecond, and making it, on any thread, a hundred.
class PersonSearch
{
public:
    PersonSearch() = default;
    explicit PersonSearch(const AddressBookContents &contents);

    struct Hits
    {
        std::vector<int> groups, people; // indices into the contents, in their order
    };
    Hits find(const QString &typed) const; // all for blanks

private:
    // Of each, what its words are, folded: " kim lee lee@x.org x.org org 15550100 5550100".
    std::vector<QString> m_groups, m_people;
};

} // namespace kelvo
