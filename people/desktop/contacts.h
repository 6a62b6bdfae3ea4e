#pragma once

#include "glib_owner.h"
#include "people.h"

#include <tuple>
#include <vector>

// People as the address book keeps them: contacts, each a card.
namespace kelvo {

using Contact = GLibOwner<EContact>;

QString uidOf(EContact *contact);
bool isGroup(EContact *contact);
Person personOf(EContact *contact);

// What is there of the person and nothing else; the book adds a uid and when it was changed.
Contact newContact(const NewPerson &person);
Contact newGroup(const QString &name);

// A member of a group: whose contact, in which book. Books have uids of their own.
struct Member
{
    QString book, uid;
    friend bool operator<(const Member &one, const Member &other)
    {
        return std::tie(one.uid, one.book) < std::tie(other.uid, other.book);
    }
};
std::vector<Member> membersOf(EContact *group);

// Replaces the members; `client` is of the book that has them.
struct MemberContact
{
    EBookClient *client;
    EContact *contact;
};
void setMembers(EContact *group, const std::vector<MemberContact> &members);

} // namespace kelvo
