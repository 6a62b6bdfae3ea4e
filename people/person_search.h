#pragma once

#include "people.h"

#include <QString>

#include <vector>

namespace kelvo {

// Finds people and groups as somebody types: every word that is typed begins a word of the
// name, the organization, an e-mail address, a number or the group's name; capitals and
// accents count alike. Made for 10,000 people and more.
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
    struct Entry;
    std::vector<QString> m_groupWords, m_peopleWords; // folded; see the source
};

} // namespace kelvo
